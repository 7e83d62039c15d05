#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// `plot(name, "variables", "type", ["path"]);`
Outcome RunPlot(Context const& context, Arguments const& arguments);
} // namespace workbench
