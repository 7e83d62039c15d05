#include "workbench/script/Table.h"

#include <algorithm>
#include <cmath>

#include "common/Number.h"
#include "workbench/engine/Utf8.h"

namespace workbench
{
namespace
{
/// The characters from one tab stop to the next. A cell that ends at a stop may by a fraction of a pixel
/// have reached it or not, and then touches the cell behind it; so no cell ends there.
constexpr std::size_t TAB_STOP = 8;
} // namespace

std::string Count(Eigen::Index count, char const* one, char const* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string AsCell(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

std::string NumberCell(double value) { return std::isnan(value) ? "." : zenqo::FormatNumber(value); }

std::string Pad(std::string const& cell, TableColumn const& column)
{
    auto const width = column.width % TAB_STOP == 0 ? column.width + 1 : column.width;
    std::string const blanks(width - CountCharacters(cell), ' ');
    return column.text ? cell + blanks : blanks + cell;
}

std::string FormatTable(std::vector<TableColumn> columns,
                        std::vector<std::vector<std::string>> const& rows)
{
    for (std::size_t j = 0; j < columns.size(); ++j)
    {
        columns[j].width = CountCharacters(columns[j].title);
        for (auto const& row : rows)
            columns[j].width = std::max(columns[j].width, CountCharacters(row[j]));
    }
    std::string text;
    for (std::size_t j = 0; j < columns.size(); ++j)
        text += (j == 0 ? "" : "\t") + Pad(columns[j].title, columns[j]);
    for (auto const& row : rows)
        for (std::size_t j = 0; j < columns.size(); ++j)
            text += (j == 0 ? "\n" : "\t") + Pad(row[j], columns[j]);
    return text + "\n";
}
} // namespace workbench
