#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

#include "workbench/engine/Error.h"

namespace workbench
{
/// What a program is started with.
struct Launch
{
    std::string program; ///< A path, or a name that is looked for in PATH.
    std::vector<std::string> arguments = {};
    std::string folder = {};                   ///< Where it works; empty for this process's own folder.
    std::vector<std::string> environment = {}; ///< "NAME=value", in place of or beside this process's.
    std::string input = {};                    ///< What it reads from its standard input.
};

/// A program that could not be started, in the system's words.
struct StartError : Error
{
    explicit StartError(int error);

    bool isMissing; ///< There is no such program.
};

/// A program that runs beside this process, in a process group of its own, started without a shell.
/// Whoever owns this lets it go on with `Wait`.
class Process
{
public:
    /// Throws a StartError if the program can't be started.
    explicit Process(Launch const& launch);

    /// Ends the program, and whatever it started in its group, if it is still running.
    ~Process();

    Process(Process const&) = delete;
    Process& operator=(Process const&) = delete;

    /// Takes what the program has written, but no more than a few megabytes at a time; waits up to so
    /// long if there is nothing. True once the program has ended and all that it wrote is taken.
    bool Wait(int milliseconds);

    /// What came on its standard output, and on its standard error, since the last call.
    ///@{
    std::string TakeOutput();
    std::string TakeMessages();
    ///@}

    /// How it ended, as "ended with status 1"; empty if it ended well.
    std::string Failure() const;

    /// Ends the program and its group.
    void End();

private:
    int Start(Launch const& launch, int input, int output, int messages);
    bool HasEnded();

    pid_t m_process = -1;
    int m_end = -1;       ///< A descriptor that is ready to be read once the program has ended.
    int m_outputEnd = -1; ///< The descriptors from which its output and its messages come.
    int m_messagesEnd = -1;
    int m_status = 0;
    std::string m_output;
    std::string m_messages;
};
} // namespace workbench
