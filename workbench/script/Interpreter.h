#pragma once

#include <string>

#include "workbench/script/Output.h"
#include "workbench/script/Script.h"

namespace workbench
{
class Progress;
struct Workspace;

/// Runs scripts on a workspace. docs/script-language.md tells the language.
class Interpreter
{
public:
    /// Whether the statements are shown before they run.
    enum class Echo
    {
        None,
        Statements
    };

    /// The three must live as long as the interpreter.
    Interpreter(Workspace& workspace, Output& output, Progress& progress);

    /// Runs all statements of `script`. Nothing runs if the script as a whole cannot be read, or
    /// uses a command in a way that does not exist. A statement that fails changes nothing; the
    /// ones behind it do not run. Either gives one error on the output, with line and column, and
    /// false.
    bool Run(std::string const& script, Echo echo);

private:
    void Execute(Statement const& statement);

    Workspace& m_workspace;
    Output& m_output;
    Progress& m_progress;
};
} // namespace workbench
