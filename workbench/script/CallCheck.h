#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// Throws a ScriptError if `call` names no command, or its arguments and options do not fit the
/// parameters. `named` says whether the statement has a name on its left.
Command const& CheckCall(Call const& call, bool named);
} // namespace workbench
