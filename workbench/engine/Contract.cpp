// The engine's side of the contract with the widget library: its globals, functions and event.

#include "engine/Engine.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "workbench/engine/Utf8.h"

wxDEFINE_EVENT(wxEVT_PRINT_AND_RUN, wxCommandEvent);

namespace Zenqo_SYSTEM_NAMESPACE
{
bool RUN_GUI = true;
std::string ZENQO_SYSTEM = ".";

// 20,000 draws of one chain after a burn-in of 10,000, none of them skipped; any seed would do.
Eigen::VectorXd GLOBAL_Gibbs = (Eigen::VectorXd(5) << 20000, 10000, 1, 1, 42).finished();

// A tab between the columns makes a copied matrix a table; the padding keeps it straight on screen.
Eigen::IOFormat GLOBAL_IOFormatConsole(6, 0, "\t", "\n", "", "", "", "");

// 17 digits bring back every number to the last bit; Eigen's own "full precision" stops at 16.
// The brackets around the matrix are written by whoever composes a fragment.
Eigen::IOFormat GLOBAL_IOFormatInput(std::numeric_limits<double>::max_digits10, Eigen::DontAlignCols,
                                     ", ", "; ");

std::string GLOBAL_DirectoryJAGS = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryBUGS = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectorySTAN = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryMATLAB = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryOCTAVE = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectoryR = zenqo::DEFAULT_STRING;
std::string GLOBAL_DirectorySTATA = zenqo::DEFAULT_STRING;
} // namespace Zenqo_SYSTEM_NAMESPACE

namespace
{
/// The width of the console's horizontal rule, to which messages are broken.
constexpr std::size_t CONSOLE_WIDTH = 92;

/// What the console writes before a warning, on the message's first line.
constexpr std::string_view PREFIX = "WARNING: ";

/// The width of a model's detail on the console: a title of up to 28 columns fits before it.
constexpr std::size_t DETAIL_WIDTH = 64;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Appends `line`, a line without newlines, broken at blanks. `column` is where it starts.
void AppendBroken(std::string& result, std::string_view line, std::size_t column)
{
    std::string_view gap;
    bool atStart = true;
    while (!line.empty())
    {
        auto const blanks = std::min(line.find_first_not_of(' '), line.size());
        gap = line.substr(0, blanks);
        line.remove_prefix(blanks);
        auto const word = line.substr(0, line.find(' '));
        line.remove_prefix(word.size());

        auto const needed = gap.size() + workbench::CountCharacters(word);
        if (!atStart && !word.empty() && column + needed > CONSOLE_WIDTH)
        {
            result += '\n';
            column = 0;
        }
        else
        {
            result += gap;
            column += gap.size();
        }
        result += word;
        column += workbench::CountCharacters(word);
        atStart = false;
    }
}
} // namespace

// The text's own newlines stay. A line is broken where blanks stand, which the break replaces; a
// word longer than the console is wide stays whole. With `flag` the first line begins behind the
// prefix of a warning and has that much less room.
std::string BreakLongMassage(std::string const& text, bool flag)
{
    std::string result;
    std::size_t column = flag ? PREFIX.size() : 0;
    for (std::string_view rest = text;;)
    {
        auto const end = rest.find('\n');
        AppendBroken(result, rest.substr(0, end), column);
        if (end == std::string_view::npos)
            return result;
        result += '\n';
        rest.remove_prefix(end + 1);
        column = 0;
    }
}

// The long form is 64 characters wide on one line: a shorter text is filled up with blanks, of a
// longer one the first 61 characters are kept and "..." put behind them. A tab or a newline in it
// becomes a blank.
std::string ExpandContractStringLong(std::string const& text)
{
    std::string line = text;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    auto const length = workbench::CountCharacters(line);
    if (length > DETAIL_WIDTH)
        return std::string(workbench::FirstCharacters(line, DETAIL_WIDTH - 3)) + "...";
    return line + std::string(DETAIL_WIDTH - length, ' ');
}

bool CheckID(std::string const& id)
{
    return !id.empty() && IsLetter(id.front())
           && std::all_of(id.begin(), id.end(), [](char c) { return IsLetter(c) || IsDigit(c); });
}

// What is legal stays. A run of other characters becomes one underscore, and none at the end; a
// leading digit gets an underscore before it; of a text without any legal character comes "unnamed".
void ProcessID(std::string& id)
{
    std::string legal;
    bool gap = false;
    for (char const c : id)
    {
        if (!IsLetter(c) && !IsDigit(c))
        {
            gap = true;
            continue;
        }
        if (gap || (legal.empty() && IsDigit(c)))
            legal += '_';
        gap = false;
        legal += c;
    }
    id = legal.empty() ? "unnamed" : legal;
}
