#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The commands that work with an estimated linear regression. Each is told in docs/script-language.md.
///@{
Outcome RunEffects(Context const& context, Arguments const& arguments);
Outcome RunForecast(Context const& context, Arguments const& arguments);
Outcome RunPredict(Context const& context, Arguments const& arguments);
Outcome RunStore(Context const& context, Arguments const& arguments);
///@}
} // namespace workbench
