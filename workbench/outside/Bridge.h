#pragma once

#include <string>
#include <utility>
#include <vector>

#include "workbench/engine/Workspace.h"
#include "workbench/outside/Program.h"

namespace workbench
{
class Output;
class Progress;

/// How a program of others runs a script on objects of the workspace.
struct Bridge
{
    Program program;
    std::vector<std::string> arguments;                     ///< Makes it begin with the files.
    std::vector<std::pair<std::string, std::string>> files; ///< Names and texts, in its language.
};

/// The bridges to GNU Octave and R.
///@{
Bridge const& OctaveBridge();
Bridge const& RBridge();
///@}

/// What a script gets and gives.
struct BridgeRun
{
    std::string script; ///< The path of its file.
    std::vector<std::pair<std::string, Object>>
        handedOut;                       ///< Datasets and matrices, and their names there.
    std::vector<std::string> handedBack; ///< The names of what comes back.
};

/// Runs a script in its own folder, and gives what came back, in the order of the names. What the
/// program writes goes to `output`. Throws an Error if something is asked that can't be, or the program
/// is not there, or the script fails.
std::vector<std::pair<std::string, Object>> RunBridge(Bridge const& bridge, BridgeRun const& run,
                                                      Output& output, Progress& progress);
} // namespace workbench
