#include "workbench/app/Batch.h"

#include <wx/frame.h>

#include "console/ZenqoConsole.h"
#include "workbench/app/ConsoleOutput.h"
#include "workbench/app/ScriptRunner.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/script/Interpreter.h"

namespace workbench
{
int RunBatch(std::string const& path)
{
    // The console is a widget in text mode too, so it needs a parent, which is never shown.
    auto* const hidden = new wxFrame(nullptr, wxID_ANY, "Zenqo Workbench");
    auto& console = *new ZenqoConsole(hidden);
    ConsoleOutput output(console);
    bool done = false;
    try
    {
        Workspace workspace;
        Progress silent;
        done = Interpreter(workspace, output, silent).Run(ReadScript(path), Interpreter::Echo::Statements);
    }
    catch (Error const& error)
    {
        output.Error(error.what());
    }
    hidden->Destroy();
    return done ? 0 : 1;
}
} // namespace workbench
