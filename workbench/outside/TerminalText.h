#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace workbench
{
class Output;

/// `text` as a console can show it: in UTF-8, with line feeds at the ends of lines, without control
/// characters and the sequences that colour a terminal. A byte that is no UTF-8 becomes a question mark.
std::string Presentable(std::string const& text);

/// The last whole lines of `text`, so many bytes of it at most; the end of a line that is longer.
std::string LastLines(std::string const& text, std::size_t size);

/// Brings what a program writes to the console, line by line. Of a program that writes more than anyone
/// reads, the first lines and the last are shown, and how much was left out between them.
class TerminalText
{
public:
    /// Whether a line is worth showing.
    using Filter = std::function<bool(std::string const& line)>;

    /// The programs' two streams.
    enum Stream
    {
        OUTPUT,
        MESSAGES
    };

    TerminalText(Output& output, Filter filter);

    /// More came on a stream.
    void Add(Stream stream, std::string const& piece);

    /// Shows the whole lines that have come.
    void Show();

    /// Shows all that is left: nothing more will come.
    void Finish();

private:
    void AddLine(std::string const& line);

    Output& m_output;
    Filter m_filter;
    std::string m_begun[2]; ///< The line that has begun on each stream.
    std::string m_pending;  ///< Whole lines to be shown next.
    std::string m_last;     ///< The last of those that are left out.
    std::uint64_t m_shown = 0;
    std::uint64_t m_leftOut = 0;
};
} // namespace workbench
