#include "workbench/engine/Structure.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "common/Number.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Variables.h"

namespace workbench
{
namespace
{
constexpr char const* INDEX = "index";

/// So many bad values are named in a message; there may be millions.
constexpr std::size_t NAMED = 5;

constexpr Eigen::Index REPORT_EVERY = 32768;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The number that the `count` digits from `from` on make; -1 if they are not all digits.
int Digits(std::string_view text, std::size_t from, std::size_t count)
{
    int number = 0;
    for (auto const c : text.substr(from, count))
    {
        if (!IsDigit(c))
            return -1;
        number = 10 * number + (c - '0');
    }
    return number;
}

int DaysIn(int year, int month)
{
    constexpr int DAYS[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool const leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return DAYS[month - 1] + (leap && month == 2 ? 1 : 0);
}

bool IsQuarter(std::string_view text)
{
    return text.size() == 6 && Digits(text, 0, 4) >= 0 && (text[4] == 'q' || text[4] == 'Q')
           && text[5] >= '1' && text[5] <= '4';
}

bool IsMonthNumber(int month) { return month >= 1 && month <= 12; }

bool IsMonth(std::string_view text)
{
    return text.size() == 7 && Digits(text, 0, 4) >= 0 && (text[4] == 'm' || text[4] == 'M')
           && IsMonthNumber(Digits(text, 5, 2));
}

bool IsDay(std::string_view text)
{
    if (text.size() != 10 || text[4] != '/' || text[7] != '/')
        return false;
    int const year = Digits(text, 0, 4);
    int const month = Digits(text, 5, 2);
    int const day = Digits(text, 8, 2);
    return year >= 0 && IsMonthNumber(month) && day >= 1 && day <= DaysIn(year, month);
}

/// A format that is written in text.
struct TextFormat
{
    char const* name;
    char const* example;
    bool (*fits)(std::string_view);
};

constexpr TextFormat TEXT_FORMATS[] = {{"yyyyqx", "2001q4", IsQuarter},
                                       {"yyyymxx", "2001m12", IsMonth},
                                       {"yyyy/mm/dd", "2001/12/31", IsDay}};

/// Throws an Error that begins with `message` and names the rows for which `isBad`; `describe` gives
/// what stands in one.
template <class IsBad, class Describe>
void RefuseRows(Eigen::Index rows, std::string const& message, IsBad const& isBad,
                Describe const& describe, ProgressScope& scope)
{
    std::string named;
    std::size_t bad = 0;
    for (Eigen::Index row = 0; row < rows; ++row)
    {
        if (row % REPORT_EVERY == 0)
            scope.Update(static_cast<std::uint64_t>(row), static_cast<std::uint64_t>(rows));
        if (!isBad(row))
            continue;
        if (bad < NAMED)
            named += (bad > 0 ? ", row " : "row ") + std::to_string(row + 1) + " has " + describe(row);
        ++bad;
    }
    if (bad > NAMED)
        named += ", and " + std::to_string(bad - NAMED) + " more";
    if (bad > 0)
        throw Error(message + ": " + named);
}

void CheckIndex(Dataset const& dataset, std::string const& name, ProgressScope& scope)
{
    auto const column = ColumnOf(dataset, name);
    if (HoldsText(dataset, column))
        throw Error("the time format \"index\" takes whole numbers, and the variable " + Quoted(name)
                    + " holds text");
    auto const values = dataset.data.col(column);
    RefuseRows(
        dataset.data.rows(), "the variable " + Quoted(name) + " does not fit the time format \"index\"",
        [&](Eigen::Index row)
        { return !std::isfinite(values[row]) || values[row] != std::floor(values[row]); },
        [&](Eigen::Index row)
        { return std::isnan(values[row]) ? "no value" : zenqo::FormatNumber(values[row]); },
        scope);
}

void CheckText(Dataset const& dataset, std::string const& name, TextFormat const& format,
               ProgressScope& scope)
{
    auto const column = ColumnOf(dataset, name);
    if (!HoldsText(dataset, column))
        throw Error("the time format " + Quoted(format.name) + " takes text such as " + format.example
                    + ", and the variable " + Quoted(name) + " holds numbers");
    auto const& text = dataset.labelledColumns.at(static_cast<int>(column));
    RefuseRows(
        dataset.data.rows(),
        "the variable " + Quoted(name) + " does not fit the time format " + Quoted(format.name),
        [&](Eigen::Index row) { return !format.fits(LabelAt(text, row)); },
        [&](Eigen::Index row)
        {
            auto const label = LabelAt(text, row);
            return label.empty() ? "no value" : Quoted(std::string(label));
        },
        scope);
}

void CheckTime(Dataset const& dataset, Structure const& structure, ProgressScope& scope)
{
    if (structure.format == INDEX)
        return CheckIndex(dataset, structure.time, scope);
    for (auto const& format : TEXT_FORMATS)
        if (structure.format == format.name)
            return CheckText(dataset, structure.time, format, scope);
}

void CheckGroup(Dataset const& dataset, std::string const& name, ProgressScope& scope)
{
    auto const column = ColumnOf(dataset, name);
    auto const labelled = dataset.labelledColumns.find(static_cast<int>(column));
    bool const isText = labelled != dataset.labelledColumns.end();
    RefuseRows(
        dataset.data.rows(), "the group variable " + Quoted(name) + " must have a value in every row",
        [&](Eigen::Index row) {
            return isText ? LabelAt(labelled->second, row).empty()
                          : std::isnan(dataset.data(row, column));
        },
        [](Eigen::Index) { return std::string("none"); }, scope);
}
} // namespace

std::vector<std::string> const& TimeFormats()
{
    static std::vector<std::string> const formats = []
    {
        std::vector<std::string> names{INDEX};
        for (auto const& format : TEXT_FORMATS)
            names.emplace_back(format.name);
        return names;
    }();
    return formats;
}

void CheckStructure(Dataset const& dataset, Structure const& structure, Progress& progress)
{
    auto const& formats = TimeFormats();
    bool const isKnown = std::find(formats.begin(), formats.end(), structure.format) != formats.end();
    if (!isKnown && !(structure.time.empty() && structure.format.empty()))
        throw Error("there is no time format " + Quoted(structure.format)
                    + "; the time formats are: index, yyyyqx, yyyymxx, yyyy/mm/dd");
    if (!structure.time.empty() && structure.time == structure.group)
        throw Error("the variable " + Quoted(structure.time)
                    + " cannot tell both the time and the group");
    ProgressScope scope(progress, "Checking the structure");
    if (!structure.time.empty())
        CheckTime(dataset, structure, scope);
    if (!structure.group.empty())
        CheckGroup(dataset, structure.group, scope);
}
} // namespace workbench
