#pragma once

struct Dataset;

namespace zenqo
{
/// False for the placeholder dataset and for one without usable variables, which the panes skip.
bool HasVariables(Dataset const& dataset);
} // namespace zenqo
