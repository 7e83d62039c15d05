#include "workbench/engine/DelimitedText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/LabelMaker.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/RecordReader.h"
#include "workbench/engine/VariableNames.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
namespace
{
constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();

/// A first line with more names than this belongs to a file of another kind.
constexpr std::size_t MAX_VARIABLES = 100000;

enum class CellKind
{
    Missing,
    Number,
    OutOfRange, ///< A number as it is written, which no double comes near to.
    Text
};

CellKind ReadNumber(std::string_view text, double& value)
{
    if (text.front() == '+' && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    auto const* const end = text.data() + text.size();
    auto const result = std::from_chars(text.data(), end, value);
    // "nan(123)" is no number that anyone means.
    if (result.ptr != end || end[-1] == ')')
        return CellKind::Text;
    if (result.ec == std::errc::result_out_of_range)
        return CellKind::OutOfRange;
    if (result.ec != std::errc())
        return CellKind::Text;
    return std::isnan(value) ? CellKind::Missing : CellKind::Number;
}

/// What a cell holds, its quotes not regarded.
CellKind ReadCell(std::string_view text, double& value)
{
    if (text.empty() || text == "." || text == "NA")
        return CellKind::Missing;
    return ReadNumber(text, value);
}

/// What is known of a column while it is read.
struct Column
{
    bool hasNumbers = false;
    bool isText = false;
    bool readAgain = false; ///< It turned out to be text after numbers had been stored.
    std::optional<TextPlace> outOfRange;
    LabelMaker text;
};

/// A file's table while it is read.
struct Table
{
    explicit Table(InputFile const& source) : file(source) {}

    InputFile const& file;
    VariableNames names;
    std::shared_ptr<Dataset> dataset; ///< Null until the header is complete.
    std::vector<Column> columns;      ///< Without the hidden one.
    bool quotesMeanText = false;      ///< Unless all names of the header stand in quotes.

    CellKind Classify(std::string_view text, bool quoted, double& value) const
    {
        return quoted && quotesMeanText ? CellKind::Text : ReadCell(text, value);
    }

    Eigen::Index Rows() const { return dataset->data.rows(); }

    double& At(Eigen::Index row, std::size_t column)
    {
        return dataset->data(row, static_cast<Eigen::Index>(column + 1));
    }

    [[noreturn]] void FailChanged() const
    {
        throw Error(Quoted(file.Path()) + " changed while it was read");
    }
};

std::string Count(std::size_t count, char const* what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

/// The first reading: stores numbers, and labels of columns that show themselves as text in time.
class FirstReading : public RecordSink
{
public:
    FirstReading(Table& table, Survey const& survey) : m_table(table), m_survey(survey) {}

    void Cell(std::string_view text, bool quoted, TextPlace const& place) override
    {
        if (m_table.dataset)
            Value(text, quoted, place);
        else
            Name(text, quoted, place);
        ++m_index;
    }

    void EndRecord(TextPlace const& place) override
    {
        if (!m_table.dataset)
            EndHeader();
        else if (m_index != m_table.columns.size())
            throw Error(Quoted(m_table.file.Path()) + ", line " + std::to_string(place.line) + ": "
                        + Count(m_index, "value") + ", but the first line holds "
                        + Count(m_table.columns.size(), "name"));
        else
            ++m_row;
        m_index = 0;
    }

    /// The table is read to its end.
    void Finish()
    {
        if (!m_table.dataset)
            throw Error(Quoted(m_table.file.Path())
                        + " is empty: its first line must hold the names of variables");
        if (m_row == 0)
            throw Error(Quoted(m_table.file.Path()) + " holds names of variables, but no observations");
        for (auto const& column : m_table.columns)
            if (column.outOfRange && !column.isText)
                throw Error(Describe(m_table.file, *column.outOfRange)
                            + "a number beyond what can be stored, about 1e-308 to 1e308 in size");
        if (m_row != m_table.Rows())
            m_table.FailChanged();
    }

private:
    void Name(std::string_view text, bool quoted, TextPlace const& place)
    {
        if (m_index == MAX_VARIABLES)
            throw Error(Describe(m_table.file, place) + "more than " + Count(MAX_VARIABLES, "variable"));
        m_table.names.Add(text);
        m_table.quotesMeanText = m_table.quotesMeanText || !quoted;
    }

    void EndHeader()
    {
        auto const& names = m_table.names.Names();
        m_table.columns.resize(names.size());
        // Each value takes a byte at least. Where the file is too small for a full table a line is
        // too short: it will be found without memory for values.
        auto const rows = m_survey.records - 1;
        bool const plausible = rows <= (m_table.file.Size() + 1) / names.size();
        m_table.dataset = MakeDataset(names, plausible ? static_cast<Eigen::Index>(rows) : 0);
    }

    void Value(std::string_view text, bool quoted, TextPlace const& place)
    {
        // A record that is too long is refused at its end, with the number of its values.
        if (m_index >= m_table.columns.size() || m_row >= m_table.Rows())
            return;
        auto& column = m_table.columns[m_index];
        double value = MISSING;
        auto const kind = m_table.Classify(text, quoted, value);
        if (kind == CellKind::Text && !column.isText)
            TurnToText(column);
        if (kind == CellKind::OutOfRange && !column.outOfRange)
            column.outOfRange = place;

        if (!column.isText)
            column.hasNumbers = column.hasNumbers || kind != CellKind::Missing;
        else if (!column.readAgain)
            value = column.text.Add(kind == CellKind::Missing ? std::string_view() : text);
        m_table.At(m_row, m_index) = value;
    }

    void TurnToText(Column& column) const
    {
        column.isText = true;
        column.readAgain = column.hasNumbers;
        if (column.readAgain)
            return;
        column.text.made.labels.reserve(static_cast<std::size_t>(m_table.Rows()));
        column.text.made.labels.resize(static_cast<std::size_t>(m_row));
    }

    Table& m_table;
    Survey m_survey;
    std::size_t m_index = 0; ///< Of the cell in its record.
    Eigen::Index m_row = 0;
};

/// The second reading, for columns that had begun as numbers: takes all their cells as labels.
class SecondReading : public RecordSink
{
public:
    explicit SecondReading(Table& table) : m_table(table) {}

    void Cell(std::string_view text, bool quoted, TextPlace const&) override
    {
        auto const index = m_index++;
        if (m_row < 0 || m_row >= m_table.Rows() || index >= m_table.columns.size())
            return;
        auto& column = m_table.columns[index];
        if (!column.readAgain)
            return;
        double value = MISSING;
        bool const missing = m_table.Classify(text, quoted, value) == CellKind::Missing;
        m_table.At(m_row, index) = column.text.Add(missing ? std::string_view() : text);
    }

    void EndRecord(TextPlace const&) override
    {
        m_index = 0;
        ++m_row;
    }

    void Finish() const
    {
        for (auto const& column : m_table.columns)
            if (column.readAgain
                && column.text.made.labels.size() != static_cast<std::size_t>(m_table.Rows()))
                m_table.FailChanged();
    }

private:
    Table& m_table;
    std::size_t m_index = 0;
    Eigen::Index m_row = -1; ///< The header comes first.
};
} // namespace

void CheckDelimiter(char delimiter)
{
    auto const c = static_cast<unsigned char>(delimiter);
    bool const alphanumeric = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    bool const control = (c < ' ' && c != '\t') || c > '~';
    if (alphanumeric || control || std::string_view("\"+-._").find(delimiter) != std::string_view::npos)
        throw Error(
            "the delimiter must be a comma, a semicolon, a tab or another character that stands in "
            "no number and no name");
}

Import ImportDelimited(std::string const& path, char delimiter, Progress& progress)
{
    // The shares of the work in the time that it takes.
    constexpr double SURVEYED = 0.2;
    constexpr double READ = 0.7;

    CheckDelimiter(delimiter);
    ProgressScope scope(progress, "Importing " + path);
    InputFile const file(path);
    auto const survey = SurveyText(file, delimiter, scope, SURVEYED);
    Table table(file);
    FirstReading first(table, survey);
    ReadRecords(file, survey, delimiter, first, scope, SURVEYED, READ);
    first.Finish();

    if (std::any_of(table.columns.begin(), table.columns.end(),
                    [](auto const& c) { return c.readAgain; }))
    {
        SecondReading second(table);
        ReadRecords(file, survey, delimiter, second, scope, READ, 1.0);
        second.Finish();
    }
    scope.Update(1.0);

    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (table.columns[i].isText)
            table.dataset->labelledColumns.emplace(static_cast<int>(i + 1),
                                                   std::move(table.columns[i].text.made));
    return {std::move(table.dataset), table.names.Warning(path)};
}
} // namespace workbench
