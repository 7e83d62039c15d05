#pragma once

#include "workbench/estimation/SamplerSettings.h"
#include "workbench/script/Commands.h"

namespace workbench
{
/// The settings of a sampler, each by its option or else by its default.
SamplerSettings SettingsOf(Arguments const& arguments);

/// The command that estimates a linear regression. It is told in docs/script-language.md.
Outcome RunRegress(Context const& context, Arguments const& arguments);
} // namespace workbench
