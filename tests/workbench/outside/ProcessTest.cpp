#include <catch2/catch.hpp>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "workbench/Scratch.h"
#include "workbench/outside/Process.h"

using workbench::Launch;
using workbench::Process;

namespace
{
/// What a program writes until its end.
struct Run
{
    explicit Run(Launch const& launch)
    {
        Process process(launch);
        while (!process.Wait(1000))
            continue;
        output = process.TakeOutput();
        messages = process.TakeMessages();
        failure = process.Failure();
    }

    std::string output;
    std::string messages;
    std::string failure;
};

std::string Refused(std::string const& program)
{
    return ErrorOf([&] { Process process({program}); });
}

bool HasChild() { return waitpid(-1, nullptr, WNOHANG) >= 0; }
} // namespace

TEST_CASE("arguments reach a program as they are")
{
    Scratch const scratch;
    auto const program = scratch.WriteProgram("ein \"Prog'ramm\" ü *", "printf '<%s>' \"$@\"");
    std::vector<std::string> const arguments = {
        "two words", "",    "it's", "\"quoted\"", "$(touch made) `touch made` $HOME", "*", "a\nb",
        "ä ∑",       "\\n", "-x",   ";|&"};
    std::string expected;
    for (auto const& argument : arguments)
        expected += "<" + argument + ">";
    Run const run({program, arguments, scratch.Folder()});
    CHECK(run.output == expected);
    CHECK(run.messages == "");
    CHECK(run.failure == "");
    CHECK(scratch.CountFiles() == 1);
}

TEST_CASE("a program works in its folder, with its environment and its input")
{
    Scratch const scratch;
    auto const folder = scratch.Path("Ördner mit \"Lücke\"");
    std::filesystem::create_directory(folder);
    setenv("ZENQO_A", "old", 1);
    setenv("ZENQO_AB", "kept", 1);
    Run const run({"/bin/sh",
                   {"-c", "pwd; echo \"$ZENQO_A,$ZENQO_AB,$ZENQO_C\"; cat; echo bad >&2"},
                   folder,
                   {"ZENQO_A=new = it", "ZENQO_C=ü"},
                   "line 1\nline 2\n"});
    unsetenv("ZENQO_A");
    unsetenv("ZENQO_AB");
    CHECK(run.output == folder + "\nnew = it,kept,ü\nline 1\nline 2\n");
    CHECK(run.messages == "bad\n");
}

TEST_CASE("a program is found in PATH, and by a relative path wherever it works")
{
    CHECK(Run({"sh", {"-c", "echo found"}, "/"}).output == "found\n");
    Scratch const scratch;
    scratch.WriteProgram("here", "echo here");
    auto const before = std::filesystem::current_path();
    std::filesystem::current_path(scratch.Folder());
    CHECK(Run({"./here", {}, "/"}).output == "here\n");
    std::filesystem::current_path(before);
}

TEST_CASE("how a program ended is told")
{
    CHECK(Run({"sh", {"-c", "exit 7"}}).failure == "ended with status 7");
    CHECK(Run({"sh", {"-c", "kill -SEGV $$"}}).failure == "was ended by the signal 11");
    CHECK(Run({"true"}).failure == "");
}

TEST_CASE("what can't be started is told in the system's words")
{
    Scratch const scratch;
    CHECK(Refused("zenqo-no-such-program") == "No such file or directory");
    CHECK(Refused(scratch.Path("none")) == "No such file or directory");
    CHECK(Refused(scratch.Write("no program", "text")) == "Permission denied");
    CHECK(Refused(scratch.Folder()) == "Permission denied");
    auto const empty = scratch.WriteProgram("torn", "");
    scratch.Write("torn", "\177ELF and no more");
    CHECK(Refused(empty) == "Exec format error");
    CHECK_FALSE(HasChild());
}

TEST_CASE("all that a program wrote before its end is taken")
{
    auto const output = Run({"sh", {"-c", "head -c 3000000 /dev/zero; echo end"}}).output;
    CHECK(output.size() == 3000004);
    CHECK(output.substr(3000000) == "end\n");
}

TEST_CASE("the end of a process is the end of all that it started")
{
    Scratch const scratch;
    auto const fifo = scratch.Path("fifo");
    REQUIRE(mkfifo(fifo.c_str(), 0600) == 0);
    int const reader = open(fifo.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    auto const script = "exec 3>'" + fifo + "'; (trap '' TERM HUP INT; sleep 1000) & echo started; ";
    bool const byOwner = GENERATE(true, false);
    {
        Process process({"sh", {"-c", script + (byOwner ? "wait" : "exit 0")}});
        for (std::string output; output.empty();)
        {
            process.Wait(1000);
            output = process.TakeOutput();
        }
        while (!byOwner && !process.Wait(1000))
            continue;
    }
    // Whoever still lives holds the other end: only without it is there an end to read.
    fcntl(reader, F_SETFL, 0);
    char byte = 0;
    CHECK(read(reader, &byte, 1) == 0);
    close(reader);
    CHECK_FALSE(HasChild());
}
