#pragma once

#include <map>
#include <string>

namespace workbench
{
/// What the user has set once for all runs of the workbench.
struct Settings
{
    bool promptWorkspace = true; ///< Ask for a workspace that is not saved before the window closes.
    bool promptScripts = false;  ///< Ask for a session that is not saved as a script.

    /// Whether the working directory becomes that of the file whenever the user has chosen one.
    ///@{
    bool dirOnImport = false;
    bool dirOnExport = false;
    bool dirOnLoadWorkspace = false;
    bool dirOnSaveWorkspace = false;
    bool dirOnOpenScript = false;
    bool dirOnSaveScript = false;
    ///@}

    bool showQuickStart = true; ///< Show the quick-start page when the window opens.

    /// The paths to the binaries of outside programs: "jags", "openbugs", "stan", "matlab", "octave",
    /// "r" and "stata". A program that is not here has no path.
    std::map<std::string, std::string> programs;
};

/// Reads the settings of the file `path`; without such a file they are the defaults, and a setting that
/// the file lacks is its default. A file that can't be read as settings is set aside under its name with
/// ".damaged" behind it, and `warning` tells so.
Settings LoadSettings(std::string const& path, std::string& warning);

/// Writes them whole or not at all (see AtomicFile), and makes the folder if there is none. Throws an
/// Error that says why they can't be written.
void SaveSettings(Settings const& settings, std::string const& path);

/// Brings the programs' paths to the globals that hold them, and back.
///@{
void ApplyPrograms(Settings const& settings);
void TakePrograms(Settings& settings);
///@}
} // namespace workbench
