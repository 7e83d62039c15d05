#include "workbench/outside/JagsText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <set>
#include <utility>

#include "workbench/engine/Error.h"
#include "workbench/outside/NameList.h"

namespace workbench
{
namespace
{
constexpr std::size_t CHAIN_PREFIX = 5; ///< The length of "chain".

constexpr double MOST_ELEMENTS = 1e7;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The length of the name of JAGS with which `text` begins, 0 if it begins with none.
std::size_t NameLength(std::string const& text)
{
    std::size_t length = 0;
    if (!text.empty() && IsLetter(text.front()))
        while (length < text.size()
               && (IsLetter(text[length]) || IsDigit(text[length]) || text[length] == '_'
                   || text[length] == '.'))
            ++length;
    return length;
}

void AppendNumber(std::string& text, double number)
{
    if (std::isnan(number))
    {
        text += "NA";
        return;
    }
    // An exponent gets its sign, without which JAGS does not read it.
    std::array<char, 32> digits;
    text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

/// `name` <- 1, c(1,2) or structure(c(1,2), .Dim = c(1,2)).
void AppendValue(std::string& text, JagsValue const& entry)
{
    auto const& value = entry.value;
    text += "`" + entry.name + "` <- ";
    if (value.cols() > 1)
        text += "structure(";
    if (value.size() > 1)
        text += "c(";
    char const* before = "";
    for (double const number : value.reshaped())
    {
        text += before;
        AppendNumber(text, number);
        before = ",\n";
    }
    if (value.size() > 1)
        text += ")";
    if (value.cols() > 1)
        text += ", .Dim = c(" + std::to_string(value.rows()) + "," + std::to_string(value.cols()) + "))";
    text += "\n";
}

/// Reads one value.
class ValueReader
{
public:
    explicit ValueReader(std::string const& text) : m_text(text) {}

    /// False if the text is no value.
    bool Read(Eigen::MatrixXd& value)
    {
        return (Take('[') ? Elements(value)
                          : Filled("zeros", 0.0, value) || Filled("ones", 1.0, value) || Scalar(value))
               && (SkipBlanks(), m_at == m_text.size());
    }

private:
    void SkipBlanks()
    {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\t'))
            ++m_at;
    }

    bool Take(char symbol)
    {
        SkipBlanks();
        if (m_at == m_text.size() || m_text[m_at] != symbol)
            return false;
        ++m_at;
        return true;
    }

    bool Take(char const* word)
    {
        SkipBlanks();
        if (m_text.compare(m_at, std::strlen(word), word) != 0)
            return false;
        m_at += std::strlen(word);
        return true;
    }

    bool Number(double& number)
    {
        if (Take("NA") || Take("nan"))
        {
            number = std::numeric_limits<double>::quiet_NaN();
            return true;
        }
        if (!Take('+'))
            SkipBlanks();
        auto const* const end = m_text.data() + m_text.size();
        auto const [behind, error] = std::from_chars(m_text.data() + m_at, end, number);
        m_at = static_cast<std::size_t>(behind - m_text.data());
        return error == std::errc() && std::isfinite(number);
    }

    bool Scalar(Eigen::MatrixXd& value)
    {
        value.resize(1, 1);
        return Number(value(0, 0));
    }

    /// The word, and rows and columns in parentheses.
    bool Filled(char const* word, double number, Eigen::MatrixXd& value)
    {
        double rows = 0.0;
        double cols = 0.0;
        if (!Take(word) || !Take('(') || !Number(rows) || !Take(',') || !Number(cols) || !Take(')')
            || rows < 1.0 || cols < 1.0 || rows * cols > MOST_ELEMENTS || rows != std::floor(rows)
            || cols != std::floor(cols))
            return false;
        value.setConstant(static_cast<Eigen::Index>(rows), static_cast<Eigen::Index>(cols), number);
        return true;
    }

    /// From behind the opening bracket to the closing one.
    bool Elements(Eigen::MatrixXd& value)
    {
        std::vector<double> numbers;
        Eigen::Index rows = 0;
        Eigen::Index cols = 0;
        Eigen::Index inRow = 0;
        for (bool closed = false; !closed;)
        {
            closed = Take(']');
            if (closed || Take(';'))
            {
                // An empty row is none: it comes of a line end behind a semicolon.
                if (inRow > 0 && rows++ > 0 && inRow != cols)
                    return false;
                cols = std::max(std::exchange(inRow, 0), cols);
                continue;
            }
            numbers.emplace_back();
            if (!Number(numbers.back()))
                return false;
            ++inRow;
            Take(',');
        }
        if (rows == 0)
            return false;
        if (rows == 1)
            value = Eigen::Map<Eigen::VectorXd const>(numbers.data(), cols);
        else
            value = Eigen::Map<Eigen::MatrixXd const>(numbers.data(), cols, rows).transpose();
        return true;
    }

    std::string const& m_text;
    std::size_t m_at = 0;
};

JagsValue ReadAssignment(std::string const& text)
{
    JagsValue assigned;
    auto const length = NameLength(text);
    auto const equals = text.find_first_not_of(" \t", length);
    if (length > 0 && equals != std::string::npos && text[equals] == '=')
    {
        assigned.name = text.substr(0, length);
        if (ValueReader(text.substr(equals + 1)).Read(assigned.value))
            return assigned;
    }
    throw Error("\"" + text
                + "\" is no initial value; one is written as tau = 10, beta = zeros(3,1), "
                  "beta = ones(3,1), or beta = [1, 2, 3]");
}

/// `text` on one line: where it breaks within a matrix, a row ends.
std::string OnOneLine(std::string const& text)
{
    std::string line;
    for (char const c : text)
    {
        auto const last = line.find_last_not_of(" \t");
        bool const goesOn = last == std::string::npos || std::strchr("[;,(", line[last]) != nullptr;
        if (c == '\n')
            line += goesOn ? ' ' : ';';
        else if (c != '\r')
            line += c;
    }
    return line;
}
} // namespace

std::string JagsFile(std::vector<JagsValue> const& values)
{
    std::string text;
    std::set<std::string> names;
    for (auto const& entry : values)
    {
        if (!names.insert(entry.name).second)
            throw Error("two values are called \"" + entry.name + "\"");
        if (entry.value.size() == 0)
            throw Error("\"" + entry.name + "\" has no elements");
        if (entry.value.array().isInf().any())
            throw Error("\"" + entry.name + "\" holds an infinite value, which JAGS does not take");
        AppendValue(text, entry);
    }
    return text;
}

void CheckMonitor(std::string const& monitor)
{
    auto const length = NameLength(monitor);
    auto const rest = monitor.substr(length);
    bool const isRange = rest.size() > 2 && rest.front() == '[' && rest.back() == ']'
                         && rest.find_first_not_of("0123456789:, ", 1) == rest.size() - 1;
    if (length == 0 || (!rest.empty() && !isRange))
        throw Error("\"" + monitor
                    + "\" can't be monitored; what can is written as mu, beta[2] or beta[2:4]");
}

std::vector<std::vector<JagsValue>> ReadInitialValues(std::string const& text)
{
    std::vector<std::vector<JagsValue>> chains;
    for (auto const& chain : Split(text, "|"))
    {
        chains.emplace_back();
        for (auto const& piece : Split(chain, ",;\n"))
            if (!piece.empty())
                chains.back().push_back(ReadAssignment(piece));
    }
    return chains;
}

std::string InitialValuesText(std::map<std::string, std::string> const& chains)
{
    std::map<int, std::string> byNumber;
    for (auto const& [key, text] : chains)
    {
        std::vector<std::string> values;
        for (auto const& piece : Split(text, ",;\n"))
            if (!piece.empty())
                values.push_back(OnOneLine(piece));
        if (!values.empty())
            byNumber[std::stoi(key.substr(CHAIN_PREFIX))] = JoinNames(values);
    }
    std::string text;
    int at = 1;
    for (auto const& [number, values] : byNumber)
    {
        for (; at < number; ++at)
            text += text.empty() || text.back() == ' ' ? "| " : " | ";
        text += values;
    }
    return text;
}
} // namespace workbench
