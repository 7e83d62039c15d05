#pragma once

#include <functional>
#include <string>
#include <vector>

#include "workbench/app/ConsoleOutput.h"
#include "workbench/app/GaugeProgress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"

namespace workbench
{
/// The one road on which a command runs in the window, whether it comes from a menu, a dropped file
/// or a script: echo, interpreter, history, and word to the panes.
class ScriptRunner
{
public:
    /// `onChanged` is called after each run that changed the workspace, with the workspace as it was.
    ScriptRunner(Workspace& workspace, ZenqoConsole& console, StatusBar& bar,
                 std::function<void(Workspace const& before)> onChanged);

    /// Echoes and runs `script`; false if it failed or another command is still running.
    bool Run(std::string const& script);

    /// Runs the script file at `path`, statement by statement.
    bool RunFile(std::string const& path);

    /// Where the figures of commands are shown.
    void SetFigureViewer(ConsoleOutput::FigureViewer viewer) { m_output.SetFigureViewer(std::move(viewer)); }

    bool IsBusy() const { return m_busy; }

    /// Asks the running command to end.
    void Stop() { m_progress.Stop(); }

    /// What ran without an error since the start, in order.
    std::vector<std::string> const& History() const { return m_history; }

private:
    bool Execute(std::string const& script, Interpreter::Echo echo);

    Workspace& m_workspace;
    ZenqoConsole& m_console;
    ConsoleOutput m_output;
    GaugeProgress m_progress;
    Interpreter m_interpreter;
    std::function<void(Workspace const&)> m_onChanged;
    std::vector<std::string> m_history;
    bool m_busy = false;
};

/// The whole text of the file at `path`, or an Error that names it.
std::string ReadScript(std::string const& path);
} // namespace workbench
