#include "workbench/outside/Bridge.h"

#include <cstdlib>
#include <filesystem>
#include <set>

#include "engine/Functions.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/outside/ExchangeFile.h"
#include "workbench/outside/ProgramRun.h"
#include "workbench/outside/RunFolder.h"
#include "workbench/script/Output.h"

namespace fs = std::filesystem;

namespace workbench
{
namespace
{
void CheckNames(BridgeRun const& run)
{
    std::set<std::string> out;
    for (auto const& [name, object] : run.handedOut)
        if (!out.insert(name).second)
            throw Error("two of the objects to be handed out are called \"" + name + "\"");
    std::set<std::string> back;
    for (auto const& name : run.handedBack)
    {
        if (!CheckID(name) || name == zenqo::EMPTY_DATASET)
            throw Error("\"" + name + "\" can't be the name of an object here");
        if (!back.insert(name).second)
            throw Error("\"" + name + "\" is to be handed back twice");
    }
}

/// The names, one on a line.
std::string Lines(std::vector<std::string> const& names)
{
    std::string lines;
    for (auto const& name : names)
        lines += name + "\n";
    return lines;
}

void WriteFiles(Bridge const& bridge, BridgeRun const& run, RunFolder const& folder)
{
    for (auto const& [name, text] : bridge.files)
        folder.Write(name, text);
    std::vector<std::string> out;
    for (auto const& [name, object] : run.handedOut)
    {
        out.push_back(name);
        WriteExchange(folder.Path("in-" + name), object);
    }
    folder.Write("in", Lines(out));
    folder.Write("out", Lines(run.handedBack));
}

Object ReadBack(std::string const& name, Bridge const& bridge, RunFolder const& folder, Output& output)
{
    auto const path = folder.Path("out-" + name);
    if (!fs::exists(path))
        throw Error(std::string(bridge.program.name) + " handed back no \"" + name
                    + "\": the script ended it before");
    try
    {
        auto const exchanged = ReadExchange(path);
        if (!exchanged.warning.empty())
            output.Warning(exchanged.warning);
        return exchanged.object;
    }
    catch (Error const& error)
    {
        throw Error("\"" + name + "\": " + error.what());
    }
}

void SetUnlessSet(Launch& launch, char const* variable, std::string const& value)
{
    if (!std::getenv(variable))
        launch.environment.push_back(variable + ("=" + value));
}
} // namespace

std::vector<std::pair<std::string, Object>> RunBridge(Bridge const& bridge, BridgeRun const& run,
                                                      Output& output, Progress& progress)
{
    if (run.script.empty())
        throw Error("no script is given");
    InputFile const readable(run.script);
    CheckNames(run);
    ProgressScope const scope(progress, "Running " + std::string(bridge.program.name));
    RunFolder const folder;
    WriteFiles(bridge, run, folder);
    auto const script = fs::absolute(run.script);
    Launch launch;
    launch.arguments = bridge.arguments;
    launch.folder = script.parent_path().string();
    launch.environment = {"ZENQO_FOLDER=" + folder.Path(), "ZENQO_SCRIPT=" + script.string()};
    // Where no desktop has set these, Octave's toolkit complains on the console that it has no folder for
    // its sockets, and starts a bus for messages, which would stay when the run is over.
    SetUnlessSet(launch, "XDG_RUNTIME_DIR", folder.Path());
    SetUnlessSet(launch, "DBUS_SESSION_BUS_ADDRESS", "disabled:");
    Listener listener;
    RunProgram(bridge.program, launch, listener, output, progress);
    std::vector<std::pair<std::string, Object>> back;
    for (auto const& name : run.handedBack)
        back.emplace_back(name, ReadBack(name, bridge, folder, output));
    return back;
}
} // namespace workbench
