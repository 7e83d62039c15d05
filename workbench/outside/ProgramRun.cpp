#include "workbench/outside/ProgramRun.h"

#include <chrono>

#include "workbench/engine/Progress.h"
#include "workbench/outside/TerminalText.h"
#include "workbench/script/Output.h"

namespace workbench
{
namespace
{
constexpr std::chrono::milliseconds STEP{50};

/// So much of what a program said at last is told as the reason of its failure.
constexpr std::size_t KEPT_MESSAGES = 4096;

/// `messages` without the blank lines around them.
std::string Trimmed(std::string const& messages)
{
    char const* const blanks = " \t\n";
    auto const words = Presentable(messages);
    auto const begin = words.find_first_not_of(blanks);
    return begin == std::string::npos ? ""
                                      : words.substr(begin, words.find_last_not_of(blanks) + 1 - begin);
}

Process StartProgram(Program const& program, Launch& launch)
{
    launch.program = program.Binary();
    try
    {
        return Process(launch);
    }
    catch (StartError const& error)
    {
        throw Error(std::string(program.name) + " (\"" + launch.program + "\") cannot be started: "
                    + error.what() + (error.isMissing ? "; install it, or set" : "; set")
                    + " its path among the paths to external programs");
    }
}
} // namespace

Listener::~Listener() = default;

void Listener::Hear(std::string const&) {}

bool Listener::Shows(std::string const&) const { return true; }

double Listener::Fraction() const { return 0.5; }

std::string RunProgram(Program const& program, Launch launch, Listener& listener, Output& output,
                       Progress& progress)
{
    auto process = StartProgram(program, launch);
    TerminalText terminal(output, [&](auto const& line) { return listener.Shows(line); });
    std::string messages;
    auto due = std::chrono::steady_clock::now();
    for (bool ended = false; !ended;)
    {
        ended = process.Wait(static_cast<int>(STEP.count()));
        auto const said = process.TakeOutput();
        auto const complained = process.TakeMessages();
        listener.Hear(said);
        terminal.Add(TerminalText::OUTPUT, said);
        terminal.Add(TerminalText::MESSAGES, complained);
        messages = LastLines(messages + complained, KEPT_MESSAGES);
        if (std::chrono::steady_clock::now() < due)
            continue;
        terminal.Show();
        progress.Update(listener.Fraction());
        due = std::chrono::steady_clock::now() + STEP;
    }
    terminal.Finish();
    auto const failure = process.Failure();
    messages = Trimmed(messages);
    if (!failure.empty())
        throw Error(program.name + (" " + failure) + (messages.empty() ? "" : ": " + messages));
    return messages;
}
} // namespace workbench
