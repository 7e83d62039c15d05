#include <catch2/catch.hpp>

#include <sys/resource.h>
#include <sys/wait.h>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/outside/ProgramRun.h"
#include "workbench/outside/TerminalText.h"

using namespace workbench;

namespace
{
/// Hears all, and shows what does not begin with a hash.
class Ear : public Listener
{
public:
    void Hear(std::string const& piece) override { heard += piece; }
    bool Shows(std::string const& line) const override { return line.front() != '#'; }
    double Fraction() const override { return heard.empty() ? 0.0 : 1.0; }

    std::string heard;
};

/// Runs scripts of the shell as a program called "Fake".
struct Desk
{
    std::string Run(std::string const& script)
    {
        path = scratch.WriteProgram("fake", script);
        return RunProgram(program, {}, ear, output, meter);
    }

    /// The same without an ear.
    void RunUnheard(std::string const& script)
    {
        path = scratch.WriteProgram("fake", script);
        Listener deaf;
        RunProgram(program, {}, deaf, output, meter);
    }

    std::string Failure(std::string const& script)
    {
        return ErrorOf([&] { Run(script); });
    }

    Scratch scratch;
    std::string path;
    Program program{"Fake", "fake", &path};
    Ear ear;
    Recorder output;
    Meter meter;
};

bool HasChild() { return waitpid(-1, nullptr, WNOHANG) >= 0; }

long PeakKilobytes()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}
} // namespace

TEST_CASE("what a program writes goes to the console, and what it said at last comes back")
{
    Desk desk;
    CHECK(desk.Run("printf 'one\\n# mark\\ntwo'; echo 'ä warning' >&2") == "ä warning");
    CHECK(desk.output.terminal.size() == std::string("one\ntwo\nä warning\n").size());
    CHECK(desk.output.terminal.find("one\n") == 0);
    CHECK(desk.output.terminal.find("ä warning\n") != std::string::npos);
    CHECK(desk.output.terminal.find("two\n") != std::string::npos);
    CHECK(desk.ear.heard == "one\n# mark\ntwo");
    CHECK(desk.output.text.empty());
    CHECK(desk.output.errors.empty());
    CHECK_FALSE(desk.meter.fractions.empty());
}

TEST_CASE("a program that fails is one error in its own words")
{
    Desk desk;
    CHECK(desk.Failure("echo 'no such thing' >&2; echo >&2; echo '  in line 3' >&2; exit 2")
          == "Fake ended with status 2: no such thing\n\n  in line 3");
    CHECK(desk.Failure("exit 1") == "Fake ended with status 1");
    CHECK(desk.Failure("kill -SEGV $$") == "Fake was ended by the signal 11");
    CHECK_FALSE(HasChild());
}

TEST_CASE("a program that isn't there is an error that tells where to set its path")
{
    Desk desk;
    auto const failure = [&]
    { return ErrorOf([&] { RunProgram(desk.program, {}, desk.ear, desk.output, desk.meter); }); };
    desk.program.command = "zenqo-no-such-program";
    desk.path = zenqo::DEFAULT_STRING;
    std::string const missing =
        "Fake (\"zenqo-no-such-program\") cannot be started: No such file or directory; "
        "install it, or set its path among the paths to external programs";
    CHECK(failure() == missing);
    desk.path = "";
    CHECK(failure() == missing);
    desk.path = "/nowhere/fäke";
    CHECK(failure()
          == "Fake (\"/nowhere/fäke\") cannot be started: No such file or directory; install it, or set "
             "its "
             "path among the paths to external programs");
    desk.path = desk.scratch.Write("text", "no program");
    CHECK(failure()
          == "Fake (\"" + desk.path
                 + "\") cannot be started: Permission denied; set its path among the paths to external "
                   "programs");
}

TEST_CASE("a program that hangs can be interrupted, and is gone then")
{
    Desk desk;
    desk.meter.stopAt = 3;
    SECTION("with its output open") { CHECK_THROWS_AS(desk.Run("sleep 1000"), Interrupted); }
    SECTION("with its output closed")
    {
        CHECK_THROWS_AS(desk.Run("exec sleep 1000 >&- 2>&-"), Interrupted);
    }
    SECTION("while it writes") { CHECK_THROWS_AS(desk.Run("exec yes"), Interrupted); }
    CHECK_FALSE(HasChild());
}

TEST_CASE("of a program that writes very much the first and the last is shown")
{
    Desk desk;
    [[maybe_unused]] auto const before = PeakKilobytes();
    desk.RunUnheard("echo first; yes 'and so on' | head -c 220000000; echo; echo the last");
#ifndef __SANITIZE_ADDRESS__
    // The address sanitizer keeps much of what was freed, so that there the peak tells nothing.
    CHECK(PeakKilobytes() - before < 40000);
#endif
    auto const& shown = desk.output.terminal;
    CHECK(shown.size() < 206000);
    CHECK(shown.substr(0, 17) == "first\nand so on\na");
    CHECK(shown.substr(shown.size() - 20) == "and so on\n\nthe last\n");
    auto const begin = shown.find('[');
    auto const end = shown.find('\n', begin) + 1;
    REQUIRE(begin != std::string::npos);
    // What is shown and what is said to be left out are all of it.
    auto const leftOut = 220000016 - (shown.size() - (end - begin));
    CHECK(shown.substr(begin - 11, end - begin + 21)
          == "\nand so on\n[" + std::to_string(leftOut)
                 + " bytes more are not shown here]\nand so on\n");
    CHECK(shown.find('[', end) == std::string::npos);
}

TEST_CASE("a line without an end is cut")
{
    Desk desk;
    desk.Run("head -c 10000 /dev/zero | tr '\\0' x");
    CHECK(desk.output.terminal
          == std::string(4000, 'x') + "\n" + std::string(4000, 'x') + "\n" + std::string(2000, 'x')
                 + "\n");
}

TEST_CASE("what a console can't show is left out or replaced")
{
    CHECK(Presentable("plain\ttext\n") == "plain\ttext\n");
    CHECK(Presentable("ä ∑ 𝄞\n") == "ä ∑ 𝄞\n");
    CHECK(Presentable("a\r\nb\rc\r") == "a\nb\nc\n");
    CHECK(Presentable("\x1b[1;31mred\x1b[0m \x1b[K\x1b") == "red ");
    CHECK(Presentable(std::string("a\0b\ac\x7f", 6)) == "abc");
    CHECK(Presentable("caf\xe9 \xff\xc3") == "caf? ??");
    CHECK(Presentable("") == "");
}

TEST_CASE("the last lines of a text are whole ones")
{
    CHECK(LastLines("one\ntwo\nthree\n", 100) == "one\ntwo\nthree\n");
    CHECK(LastLines("one\ntwo\nthree\n", 10) == "two\nthree\n");
    CHECK(LastLines("one\ntwo\nthree\n", 9) == "three\n");
    CHECK(LastLines("one\ntwo\nthree\n", 4) == "ree\n");
    CHECK(LastLines("one\ntwo\nthree", 5) == "three");
    CHECK(LastLines("onetwothree", 5) == "three");
}
