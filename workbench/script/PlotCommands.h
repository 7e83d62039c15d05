#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// `plot(dataset, "variables", "type", ["path"]);`
Outcome RunPlot(Context const& context, Arguments const& arguments);
} // namespace workbench
