#include "workbench/app/Batch.h"

#include <csignal>

#include <wx/frame.h>

#include "console/ZenqoConsole.h"
#include "workbench/app/ConsoleOutput.h"
#include "workbench/app/ScriptRunner.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/script/Interpreter.h"

namespace workbench
{
namespace
{
volatile std::sig_atomic_t isInterrupted = 0;

/// Makes Ctrl+C end the running statement, which so can clear away what it has begun. A second one ends
/// the process at once.
class StoppedBySignal : public Progress
{
public:
    StoppedBySignal()
    {
        struct sigaction action = {};
        action.sa_handler = [](int) { isInterrupted = 1; };
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(SIGINT, &action, nullptr);
        sigaction(SIGTERM, &action, nullptr);
    }

    void Update(double) override
    {
        if (isInterrupted != 0)
            throw Interrupted();
    }
};
} // namespace

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
        StoppedBySignal progress;
        done = Interpreter(workspace, output, progress).Run(ReadScript(path), Interpreter::Echo::Statements);
    }
    catch (Error const& error)
    {
        output.Error(error.what());
    }
    hidden->Destroy();
    return done ? 0 : 1;
}
} // namespace workbench
