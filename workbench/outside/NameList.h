#pragma once

#include <string>
#include <vector>

namespace workbench
{
/// Cuts `text` at each character of `separators` that stands in no brackets or parentheses, and takes
/// the blanks off around the pieces. There is always one piece at least.
std::vector<std::string> Split(std::string const& text, std::string const& separators);

/// The names of a list as a user types it: commas, semicolons or line ends stand between them, and each
/// may be in double quotes. What is empty is left out.
std::vector<std::string> SplitNames(std::string const& text);

/// The names with commas between them.
std::string JoinNames(std::vector<std::string> const& names);
} // namespace workbench
