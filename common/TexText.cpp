#include "common/TexText.h"

#include <algorithm>
#include <sstream>

#include <boost/algorithm/string/replace.hpp>

namespace zenqo
{
namespace
{
/// The count of a row that is a rule.
constexpr int RULE = -1;

struct Row
{
    int line;  ///< Index within the selection.
    int count; ///< Tabs in the line plus 2, or RULE.
};

int CountLines(std::istringstream& text)
{
    int count = 0;
    for (std::string line; std::getline(text, line);)
        ++count;
    return count;
}

std::vector<Row> FindRows(std::istringstream& text, std::vector<int> const& ruleLines)
{
    std::vector<Row> rows;
    std::size_t nextRule = 0;
    int index = 0;
    for (std::string line; std::getline(text, line); ++index)
    {
        int const rule = nextRule < ruleLines.size() ? ruleLines[nextRule] : -1;
        auto const tabs = static_cast<int>(std::count(line.begin(), line.end(), '\t'));
        if (tabs > 0)
            rows.push_back({index, tabs + 2});
        else if (index == rule)
        {
            rows.push_back({index, RULE});
            ++nextRule;
        }
    }
    return rows;
}

void Escape(std::string& line)
{
    for (char const* const special : {"%", "#", "&", "_"})
        boost::algorithm::replace_all(line, special, std::string("\\") + special);
}

/// Writes the lines one by one and knows whether a table stands open.
class TexWriter
{
public:
    TexWriter(std::vector<Row> rows, int lineCount) : m_rows(std::move(rows)), m_lineCount(lineCount) {}

    void WriteLine(std::string line)
    {
        Escape(line);
        if (m_row == m_rows.size() || m_line < m_rows[m_row].line)
            m_output << line << '\n';
        else
        {
            if (m_rows[m_row].count == RULE)
                WriteRule();
            else
                WriteRow(line);
            ++m_row;
        }
        ++m_line;
    }

    std::string Text() const { return m_output.str(); }

private:
    /// The row after the current one, or null.
    Row const* Next() const { return m_row + 1 < m_rows.size() ? &m_rows[m_row + 1] : nullptr; }

    /// True if the next row is the following line of the selection.
    bool NextFollows() const
    {
        return Next() && m_line != m_lineCount - 1 && Next()->line == m_line + 1;
    }

    void WriteHead(int count)
    {
        m_output << "\\begin{tabular}{l" << std::string(static_cast<std::size_t>(std::max(0, count - 2)), 'r')
                 << "}\n";
    }

    void WriteEnd() { m_output << "\\end{tabular}\n\\newline\n"; }

    void WriteRow(std::string& line)
    {
        int const count = m_rows[m_row].count;
        boost::algorithm::replace_all(line, "\t", "&");
        if (!m_tableOpen)
            WriteHead(count);
        m_output << line << "\\\\\n";

        m_tableOpen = NextFollows() && (Next()->count == count || Next()->count == RULE);
        if (!m_tableOpen)
            WriteEnd();
    }

    void WriteRule()
    {
        if (!m_tableOpen)
        {
            if (Next())
                WriteHead(Next()->count);
            m_output << "\\hline\n";
            m_tableOpen = true;
        }
        else if (!NextFollows())
        {
            m_output << "\\hline\n";
            WriteEnd();
            m_tableOpen = false;
        }
        else
        {
            if (Next()->count != m_rows[m_row - 1].count)
            {
                WriteEnd();
                WriteHead(Next()->count);
            }
            m_output << "\\hline\n";
        }
    }

    std::vector<Row> m_rows;
    int m_lineCount;
    std::ostringstream m_output;
    int m_line = 0;
    std::size_t m_row = 0;
    bool m_tableOpen = false;
};
} // namespace

std::string TextToTex(std::string const& selection, std::vector<int> const& ruleLines)
{
    std::istringstream text(selection);
    auto const rewind = [&]
    {
        text.clear();
        text.str(selection);
    };

    int const lineCount = CountLines(text);
    rewind();
    TexWriter writer(FindRows(text, ruleLines), lineCount);
    rewind();
    for (std::string line; std::getline(text, line);)
        writer.WriteLine(std::move(line));
    return writer.Text();
}
} // namespace zenqo
