#pragma once

#include <string>

namespace workbench
{
class Progress;
struct Workspace;

/// Writes `workspace` to the workspace file `path`, whole or not at all (see AtomicFile).
/// Throws an Error if it cannot be written, or if it holds what the file could not bring back: a
/// text that is not UTF-8, a dataset whose parts do not fit together.
void SaveWorkspace(Workspace const& workspace, std::string const& path, Progress& progress);

/// Reads the workspace file `path`. What `SaveWorkspace` wrote comes back the same to the last bit.
/// Throws an Error if the file is missing, damaged or of another kind.
Workspace LoadWorkspace(std::string const& path, Progress& progress);
} // namespace workbench
