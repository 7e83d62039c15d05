#pragma once

#include <string>

namespace workbench
{
/// Runs the script file at `path` without a window: the console writes on standard output. Gives the
/// process's exit status: 0, or 1 at the first error. `RUN_GUI` must be false.
int RunBatch(std::string const& path);
} // namespace workbench
