#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The commands that are done by programs of others. Each is told in docs/script-language.md.
///@{
Outcome RunJagsCommand(Context const& context, Arguments const& arguments);
Outcome RunOctaveCommand(Context const& context, Arguments const& arguments);
Outcome RunRCommand(Context const& context, Arguments const& arguments);
///@}
} // namespace workbench
