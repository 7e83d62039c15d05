#include <catch2/catch.hpp>

#include <cstdlib>
#include <filesystem>

#include "workbench/FakeProgram.h"
#include "workbench/outside/BridgeDesk.h"

namespace
{
/// What is the same for both programs is tested with programs of our own in their places.
struct Which
{
    char const* command;
    char const* program;
    std::string name;
};

Which const BOTH[] = {{"octave", "octave", "GNU Octave"}, {"rproject", "R", "R"}};

/// Hands back each file that was handed over.
constexpr char const* MIRROR =
    "cd \"$ZENQO_FOLDER\"; for name in $(cat out); do cp in-$name out-$name; done";
} // namespace

TEST_CASE("a script runs in its own folder, and is handed what it asked for")
{
    for (auto const& which : BOTH)
    {
        FakeProgram const fake(
            which.program, std::string("pwd; echo \"$ZENQO_SCRIPT\"; cat \"$ZENQO_SCRIPT\";"
                                       "ls \"$ZENQO_FOLDER\" | grep -c 'in-'; cat \"$ZENQO_FOLDER/in\";"
                                       "head -c 11 \"$ZENQO_FOLDER/in-x\"; echo said >&2;")
                               + MIRROR);
        BridgeDesk desk(which.command);
        auto const text = desk.Run(desk.Call("the script\n", "A, d; d.x", "x,  A, d"));
        auto const& shown = desk.output.terminal;
        CHECK(Has(shown, desk.scratch.Folder() + "\n" + desk.scratch.Path("ein Skript's $HOME *ä")
                             + "\nthe script\n3\nA\nd\nx\nmatrix 3 1\n"));
        CHECK(Has(shown, "said\n"));
        CHECK(text
              == "\nMatrix x: 3 rows, 1 column\nMatrix A: 2 rows, 3 columns\nDataset d: 3 observations "
                 "of 3 variables\n");
        CHECK(desk.meter.begun == std::vector<std::string>{"Running " + which.name});
        CHECK(desk.meter.ended == 1);
        CHECK(desk.output.warnings.empty());
    }
}

TEST_CASE("without a desktop a script starts no bus for messages, with one it finds that")
{
    FakeProgram const fake("octave", "echo \"$DBUS_SESSION_BUS_ADDRESS\"");
    BridgeDesk desk("octave");
    char const* const bus = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    std::string const kept = bus ? bus : "";
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    desk.Run(desk.Call("", "", ""));
    CHECK(Has(desk.output.terminal, "disabled:\n"));
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/a/bus", 1);
    desk.output.terminal.clear();
    desk.Run(desk.Call("", "", ""));
    CHECK(Has(desk.output.terminal, "unix:path=/a/bus\n"));
    if (bus)
        setenv("DBUS_SESSION_BUS_ADDRESS", kept.c_str(), 1);
    else
        unsetenv("DBUS_SESSION_BUS_ADDRESS");
}

TEST_CASE("what comes back is there under its name, whatever had that before")
{
    FakeProgram const fake(
        "octave",
        "cd \"$ZENQO_FOLDER\"; cp in-A out-d; printf 'dataset 1 1\\nnumber a b\\n12345678' > out-A");
    BridgeDesk desk("octave");
    auto const sent = desk.Matrix("A");
    desk.Run(desk.Call("", "A", "d, A"));
    CHECK(SameBits(desk.Matrix("d"), sent));
    CHECK(desk["A"].varNames[1] == "a_b");
    CHECK(desk["A"].name == "A");
    CHECK(desk.workspace.datasets.size() == 1);
    CHECK(desk.output.warnings
          == std::vector<std::string>{"Names in \"what came back\" were changed to make them legal and "
                                      "unique: \"a b\" to \"a_b\"."});
}

TEST_CASE("a script may be handed nothing and hand nothing back")
{
    FakeProgram const fake("octave", "wc -c < \"$ZENQO_FOLDER/in\"; wc -c < \"$ZENQO_FOLDER/out\"");
    BridgeDesk desk("octave");
    desk.Run(desk.Call("", "", " , "));
    CHECK(desk.output.terminal == "0\n0\n");
    CHECK(desk.output.text == "\n");
}

TEST_CASE("what can't be asked of a script is one error, and nothing changes")
{
    FakeProgram const fake("octave", MIRROR);
    BridgeDesk desk("octave");
    desk.workspace.Assign("m", std::make_shared<Model>());
    auto const failure = [&](std::string const& out, std::string const& back)
    { return desk.Failure(desk.Call("", out, back)); };
    CHECK(Has(failure("A, B", ""), "there is nothing called \"B\" in the workspace"));
    CHECK(Has(failure("m", ""),
              "\"m\" is a model; what can be handed out are datasets, their variables, and matrices"));
    CHECK(Has(failure("A.x", ""), "\"A\" is no dataset, so it has no variables"));
    CHECK(failure("d.name", "") == "Line 1, column 1: the variable \"name\" holds text");
    CHECK(failure("A, A", "")
          == "Line 1, column 1: two of the objects to be handed out are called \"A\"");
    CHECK(failure("", "A, A") == "Line 1, column 1: \"A\" is to be handed back twice");
    for (std::string const bad : {"a.b", "1a", "a b", "__ZenqoEmptyDataset__", "../a", "ä"})
        CHECK(failure("", bad)
              == "Line 1, column 1: \"" + bad + "\" can't be the name of an object here");
    CHECK(desk.Failure("octave(\"\", \"\", \"\");") == "Line 1, column 1: no script is given");
    CHECK(desk.Failure("octave(\"/nowhere/s.m\", \"\", \"\");")
          == "Line 1, column 1: \"/nowhere/s.m\" cannot be read: No such file or directory");
    CHECK(desk.Failure("octave(\"/tmp\", \"\", \"\");")
          == "Line 1, column 1: \"/tmp\" cannot be read: it is a folder");
    CHECK(desk.output.terminal.empty());
}

TEST_CASE("a program that is missing, fails, or hands nothing back is one error")
{
    for (auto const& which : BOTH)
    {
        BridgeDesk desk(which.command);
        auto const failure = [&] { return desk.Failure(desk.Call("", "A", "A")); };
        {
            FakeProgram const none(which.program);
            CHECK(failure()
                  == "Line 1, column 1: " + which.name + " (\"" + which.program
                         + "\") cannot be started: No such file or directory; install it, or set its "
                           "path among the "
                           "paths to external programs");
        }
        {
            FakeProgram const failing(which.program, "echo 'error: boom' >&2; exit 1");
            CHECK(failure() == "Line 1, column 1: " + which.name + " ended with status 1: error: boom");
        }
        {
            FakeProgram const crashing(which.program, "kill -SEGV $$");
            CHECK(failure() == "Line 1, column 1: " + which.name + " was ended by the signal 11");
        }
        {
            FakeProgram const silent(which.program, "exit 0");
            CHECK(failure()
                  == "Line 1, column 1: " + which.name
                         + " handed back no \"A\": the script ended it before");
        }
        {
            FakeProgram const torn(which.program, "echo matrix 1 1 > \"$ZENQO_FOLDER/out-A\"");
            CHECK(failure() == "Line 1, column 1: \"A\": what came back is torn");
        }
        {
            FakeProgram const hanging(which.program, "exec sleep 1000");
            desk.meter.stopAt = static_cast<int>(desk.meter.fractions.size()) + 2;
            CHECK(failure() == "Line 1, column 1: interrupted; the statement changed nothing");
        }
        CHECK(desk.meter.ended == static_cast<int>(desk.meter.begun.size()));
    }
}

TEST_CASE("no run leaves files behind")
{
    Scratch const temporary;
    setenv("TMPDIR", temporary.Folder().c_str(), 1);
    {
        BridgeDesk desk("octave");
        for (std::string const& script :
             {std::string(MIRROR), std::string("exit 1"), std::string("exit 0")})
        {
            FakeProgram const fake("octave",
                                   "ls -d \"$ZENQO_FOLDER\" >/dev/null || echo no folder; " + script);
            desk.interpreter.Run(desk.Call("", "A", "A"), workbench::Interpreter::Echo::None);
        }
        CHECK(desk.output.terminal.empty());
        FakeProgram const hanging("octave", "exec sleep 1000");
        desk.meter.stopAt = static_cast<int>(desk.meter.fractions.size()) + 1;
        CHECK(desk.Failure(desk.Call("", "A", "A"))
              == "Line 1, column 1: interrupted; the statement changed nothing");
        int runs = 0;
        for (auto const& entry : std::filesystem::directory_iterator(temporary.Folder()))
            runs += Has(entry.path().filename().string(), "zenqo-run-");
        CHECK(runs == 0);
    }
    unsetenv("TMPDIR");
}
