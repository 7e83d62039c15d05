#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The commands that weigh what estimated models tell. Each is told in docs/script-language.md.
///@{
Outcome RunCompare(Context const& context, Arguments const& arguments);
Outcome RunTest(Context const& context, Arguments const& arguments);
///@}
} // namespace workbench
