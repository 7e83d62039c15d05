#pragma once

#include <string>

#include "workbench/engine/Workspace.h"

namespace workbench
{
/// A file in which a dataset or a matrix goes to a script of another program, or comes back: to the last
/// bit, and easily read and written there. docs/file-formats.md tells the format.
///@{

/// Writes one. Throws an Error if that fails.
void WriteExchange(std::string const& path, Object const& object);

/// What comes back, and a warning if the names of a dataset's variables are not those of the file.
struct Exchanged
{
    Object object;
    std::string warning; ///< Empty if there is nothing to warn of.
};

/// Reads one. Throws an Error if it is torn.
Exchanged ReadExchange(std::string const& path);
///@}
} // namespace workbench
