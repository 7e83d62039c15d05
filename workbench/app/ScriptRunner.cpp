#include "workbench/app/ScriptRunner.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>

#include "console/ZenqoConsole.h"
#include "workbench/engine/Error.h"

namespace workbench
{
ScriptRunner::ScriptRunner(Workspace& workspace, ZenqoConsole& console, StatusBar& bar,
                           std::function<void(Workspace const& before)> onChanged)
    : m_workspace(workspace), m_console(console), m_output(console), m_progress(bar),
      m_interpreter(workspace, m_output, m_progress), m_onChanged(std::move(onChanged))
{
}

bool ScriptRunner::Run(std::string const& script)
{
    if (m_busy)
    {
        m_output.Warning("Another command is still running. Wait for its end, or stop it from the Script "
                         "menu, and try again.");
        return false;
    }
    m_console.PrintOnConsoleCode(script);
    return Execute(script, Interpreter::Echo::None);
}

bool ScriptRunner::RunFile(std::string const& path)
{
    if (m_busy)
        return Run({});
    try
    {
        return Execute(ReadScript(path), Interpreter::Echo::Statements);
    }
    catch (Error const& error)
    {
        m_output.Error(error.what());
        return false;
    }
}

bool ScriptRunner::Execute(std::string const& script, Interpreter::Echo echo)
{
    Workspace const before = m_workspace;
    m_busy = true;
    bool const done = m_interpreter.Run(script, echo);
    m_busy = false;
    if (done)
        m_history.push_back(script);
    if (!m_workspace.SameObjects(before))
        m_onChanged(before);
    return done;
}

std::string ReadScript(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (!file)
        throw Error("The script " + path + " can't be read: " + std::strerror(errno) + ".");
    return text;
}
} // namespace workbench
