#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <Eigen/Core>

namespace workbench
{
/// A column of a printed table: its cells have tabs between them, so that a selection copies as a
/// table, and are filled with blanks to one width, so that it stands straight on the screen.
struct TableColumn
{
    std::string title;
    bool text;             ///< Aligned at the left, and numbers at the right.
    std::size_t width = 0; ///< In characters.
};

/// "1 row", "2 rows".
std::string Count(Eigen::Index count, char const* one, char const* many);

/// A text as a cell: a tab or a line end in it would break the table.
std::string AsCell(std::string text);

/// A number as a cell: six significant digits, a missing value as a dot.
std::string NumberCell(double value);

/// A cell as wide as its column, so that the cells behind it begin at one tab stop.
std::string Pad(std::string const& cell, TableColumn const& column);

/// The lines of a table: the titles, then `rows`, each of which has a cell for each column. The
/// widths come from the cells.
std::string FormatTable(std::vector<TableColumn> columns,
                        std::vector<std::vector<std::string>> const& rows);
} // namespace workbench
