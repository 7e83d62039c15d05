#include "workbench/outside/NameList.h"

namespace workbench
{
namespace
{
std::string Trim(std::string const& text, char const* blanks)
{
    auto const begin = text.find_first_not_of(blanks);
    return begin == std::string::npos ? ""
                                      : text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}
} // namespace

std::vector<std::string> Split(std::string const& text, std::string const& separators)
{
    std::vector<std::string> pieces(1);
    int depth = 0;
    for (char const c : text)
    {
        if (c == '[' || c == '(')
            ++depth;
        else if (c == ']' || c == ')')
            --depth;
        if (depth <= 0 && separators.find(c) != std::string::npos)
            pieces.emplace_back();
        else
            pieces.back() += c;
    }
    for (auto& piece : pieces)
        piece = Trim(piece, " \t\r\n");
    return pieces;
}

std::vector<std::string> SplitNames(std::string const& text)
{
    std::vector<std::string> names;
    for (auto const& piece : Split(text, ",;\n"))
        if (auto const name = Trim(piece, "\" \t"); !name.empty())
            names.push_back(name);
    return names;
}

std::string JoinNames(std::vector<std::string> const& names)
{
    std::string text;
    for (auto const& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}
} // namespace workbench
