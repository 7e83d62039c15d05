#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The commands that make new datasets of old ones, and look at their variables. Each is told in
/// docs/script-language.md.
///@{
Outcome RunCreate(Context const& context, Arguments const& arguments);
Outcome RunDrop(Context const& context, Arguments const& arguments);
Outcome RunSort(Context const& context, Arguments const& arguments);
Outcome RunSummarize(Context const& context, Arguments const& arguments);
///@}
} // namespace workbench
