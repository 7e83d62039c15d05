#pragma once

#include <string>
#include <vector>

#include "workbench/script/Script.h"

namespace workbench
{
/// The statements of a whole script. Throws a ScriptError at the first place where the text leaves
/// the grammar (docs/script-language.md).
std::vector<Statement> ParseScript(std::string const& script);
} // namespace workbench
