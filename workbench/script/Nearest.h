#pragma once

#include <string>
#include <vector>

namespace workbench
{
/// The one of `known` that `name` most probably misspells; empty if none comes near.
std::string Nearest(std::string const& name, std::vector<std::string> const& known);

/// " did you mean ...?" or what is known, as the end of a message about `name`; `what` names the
/// known in the plural. A long list is cut.
std::string Suggestion(std::string const& name, std::vector<std::string> const& known,
                       std::string const& what);
} // namespace workbench
