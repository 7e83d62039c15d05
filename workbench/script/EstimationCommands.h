#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The command that estimates a linear regression. It is told in docs/script-language.md.
Outcome RunRegress(Context const& context, Arguments const& arguments);
} // namespace workbench
