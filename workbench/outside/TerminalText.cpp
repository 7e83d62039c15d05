#include "workbench/outside/TerminalText.h"

#include <algorithm>
#include <utility>

#include "workbench/engine/Utf8.h"
#include "workbench/script/Output.h"

namespace workbench
{
namespace
{
/// So many bytes of a run are shown as they come; a console on the screen holds about a third.
constexpr std::uint64_t MOST_SHOWN = 200000;

/// So many are shown of the end of a longer output.
constexpr std::size_t LAST_SHOWN = 4000;

/// A line that goes on is cut here.
constexpr std::size_t LONGEST_LINE = 4000;

constexpr char ESCAPE = '\x1b';

/// The position behind the sequence for a terminal that begins at `position`, "\x1b[1;31m".
std::size_t SkipSequence(std::string const& text, std::size_t position)
{
    ++position;
    if (position == text.size() || text[position] != '[')
        return position;
    ++position;
    while (position < text.size() && text[position] >= ' ' && text[position] < '@')
        ++position;
    return std::min(position + 1, text.size());
}
} // namespace

std::string Presentable(std::string const& text)
{
    std::string shown;
    for (std::size_t i = 0; i < text.size();)
    {
        char const c = text[i];
        auto const length = CharacterLength(text, i);
        if (c == ESCAPE)
        {
            i = SkipSequence(text, i);
            continue;
        }
        if (c == '\r')
            shown += i + 1 < text.size() && text[i + 1] == '\n' ? "" : "\n";
        else if (length == 0)
            shown += '?';
        else if (length > 1 || c == '\n' || c == '\t' || (c >= ' ' && c != '\x7f'))
            shown.append(text, i, length);
        i += length == 0 ? 1 : length;
    }
    return shown;
}

std::string LastLines(std::string const& text, std::size_t size)
{
    if (text.size() <= size)
        return text;
    auto const lineEnd = text.find('\n', text.size() - size - 1);
    return lineEnd >= text.size() - 1 ? text.substr(text.size() - size) : text.substr(lineEnd + 1);
}

TerminalText::TerminalText(Output& output, Filter filter) : m_output(output), m_filter(std::move(filter))
{
}

void TerminalText::Add(Stream stream, std::string const& piece)
{
    auto& begun = m_begun[stream];
    for (std::size_t begin = 0; begin < piece.size();)
    {
        auto const lineEnd = piece.find('\n', begin);
        auto const room = LONGEST_LINE - begun.size();
        auto const count =
            std::min(room, lineEnd == std::string::npos ? piece.size() - begin : lineEnd - begin);
        begun.append(piece, begin, count);
        begin += count;
        if (begin == lineEnd)
            ++begin;
        else if (begun.size() < LONGEST_LINE)
            return;
        AddLine(std::exchange(begun, {}) + "\n");
    }
}

void TerminalText::AddLine(std::string const& line)
{
    if (m_leftOut == 0 && m_shown + line.size() <= MOST_SHOWN)
    {
        if (!m_filter(line))
            return;
        m_shown += line.size();
        m_pending += line;
        return;
    }
    m_leftOut += line.size();
    m_last += line;
    if (m_last.size() > 4 * LAST_SHOWN)
        m_last = LastLines(m_last, LAST_SHOWN);
}

void TerminalText::Show()
{
    if (auto const text = Presentable(std::exchange(m_pending, {})); !text.empty())
        m_output.Terminal(text);
}

void TerminalText::Finish()
{
    for (auto& begun : m_begun)
        if (!begun.empty())
            AddLine(std::exchange(begun, {}) + "\n");
    if (m_leftOut > 0)
    {
        auto const last = LastLines(m_last, LAST_SHOWN);
        if (m_leftOut > last.size())
            m_pending +=
                "[" + std::to_string(m_leftOut - last.size()) + " bytes more are not shown here]\n";
        m_pending += last;
    }
    Show();
}
} // namespace workbench
