#pragma once

#include <string>

#include "engine/Globals.h"
#include "engine/Sentinels.h"

namespace workbench
{
/// A program of others that the workbench knows.
struct Program
{
    char const* name;        ///< As messages call it.
    char const* command;     ///< What it is usually called in PATH.
    std::string const* path; ///< Where it is, if the user has told.

    /// What to start.
    std::string Binary() const
    {
        return *path == zenqo::DEFAULT_STRING || path->empty() ? command : *path;
    }
};

inline constexpr Program JAGS{"JAGS", "jags", &Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryJAGS};
inline constexpr Program OCTAVE{"GNU Octave", "octave", &Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryOCTAVE};
inline constexpr Program R_PROJECT{"R", "R", &Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryR};
} // namespace workbench
