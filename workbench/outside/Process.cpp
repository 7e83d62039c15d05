#include "workbench/outside/Process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace workbench
{
namespace
{
/// A program that writes without end must not keep its owner from anything else.
constexpr std::size_t MOST_AT_A_TIME = std::size_t{1} << 21;

void Close(int& descriptor)
{
    if (descriptor >= 0)
        close(std::exchange(descriptor, -1));
}

/// A file without a name that holds `text`, to be read from its beginning. Unlike a pipe it takes the
/// whole text at once, and nobody's end breaks it.
int FileOf(std::string const& text)
{
    int descriptor = memfd_create("zenqo-input", MFD_CLOEXEC);
    for (std::size_t done = 0; descriptor >= 0 && done < text.size();)
    {
        auto const written =
            pwrite(descriptor, text.data() + done, text.size() - done, static_cast<off_t>(done));
        if (written > 0)
            done += static_cast<std::size_t>(written);
        else if (written == 0 || errno != EINTR)
            Close(descriptor);
    }
    return descriptor;
}

/// Takes what is there to be read, and closes the descriptor at its end.
void Drain(int& descriptor, std::string& taken)
{
    std::array<char, 65536> buffer;
    for (std::size_t total = 0; descriptor >= 0 && total < MOST_AT_A_TIME;)
    {
        auto const got = read(descriptor, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0 && errno == EAGAIN)
            break;
        if (got <= 0)
            Close(descriptor);
        else
            taken.append(buffer.data(), static_cast<std::size_t>(got));
        total += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
}

/// The strings as C has them, which live no longer than `strings`.
std::vector<char*> PointersTo(std::vector<std::string>& strings)
{
    std::vector<char*> pointers;
    for (auto& text : strings)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// This process's environment with `changes`.
std::vector<std::string> EnvironmentWith(std::vector<std::string> const& changes)
{
    auto all = changes;
    for (char** entry = environ; *entry; ++entry)
    {
        std::string const old = *entry;
        auto const name = old.substr(0, old.find('=') + 1);
        if (std::none_of(changes.begin(), changes.end(),
                         [&](auto const& change) { return change.compare(0, name.size(), name) == 0; }))
            all.push_back(old);
    }
    return all;
}

/// The program by a path that holds wherever it is started.
std::string WhereverStarted(std::string const& program)
{
    std::error_code ignored;
    return program.find('/') == std::string::npos ? program
                                                  : std::filesystem::absolute(program, ignored).string();
}
} // namespace

StartError::StartError(int error) : Error(std::strerror(error)), isMissing(error == ENOENT) {}

Process::Process(Launch const& launch)
{
    int input = FileOf(launch.input);
    int output[2] = {-1, -1};
    int messages[2] = {-1, -1};
    int error = 0;
    if (input < 0 || pipe2(output, O_CLOEXEC | O_NONBLOCK) != 0
        || pipe2(messages, O_CLOEXEC | O_NONBLOCK) != 0)
        error = errno;
    m_outputEnd = output[0];
    m_messagesEnd = messages[0];
    if (error == 0)
        error = Start(launch, input, output[1], messages[1]);
    Close(input);
    Close(output[1]);
    Close(messages[1]);
    if (error != 0)
    {
        End();
        throw StartError(error);
    }
    m_end = static_cast<int>(syscall(SYS_pidfd_open, m_process, 0));
}

Process::~Process() { End(); }

int Process::Start(Launch const& launch, int input, int output, int messages)
{
    // The program's own ends wait as usual.
    fcntl(output, F_SETFL, 0);
    fcntl(messages, F_SETFL, 0);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, messages, STDERR_FILENO);
    if (!launch.folder.empty())
        posix_spawn_file_actions_addchdir_np(&actions, launch.folder.c_str());

    // In a group of its own it can be ended with all that it started; and it takes signals as usual,
    // whatever this process does with them.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    posix_spawnattr_setpgroup(&attributes, 0);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    for (int const signal : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGCHLD})
        sigaddset(&signals, signal);
    posix_spawnattr_setsigdefault(&attributes, &signals);

    std::vector<std::string> words{launch.program};
    words.insert(words.end(), launch.arguments.begin(), launch.arguments.end());
    auto environment = EnvironmentWith(launch.environment);
    int const error =
        posix_spawnp(&m_process, WhereverStarted(launch.program).c_str(), &actions, &attributes,
                     PointersTo(words).data(), PointersTo(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        m_process = -1;
    return error;
}

bool Process::HasEnded()
{
    if (m_process < 0)
        return true;
    // Its number stays taken until it is waited for, and so does that of its group.
    siginfo_t ended{};
    if (waitid(P_PID, static_cast<id_t>(m_process), &ended, WEXITED | WNOHANG | WNOWAIT) == 0
        && ended.si_pid == 0)
        return false;
    kill(-m_process, SIGKILL);
    waitpid(m_process, &m_status, 0);
    m_process = -1;
    return true;
}

bool Process::Wait(int milliseconds)
{
    if (m_process < 0)
        return true;
    pollfd ready[] = {{m_outputEnd, POLLIN, 0}, {m_messagesEnd, POLLIN, 0}, {m_end, POLLIN, 0}};
    poll(ready, std::size(ready), milliseconds);
    // What it wrote before its end is there to be read behind it: a pipe holds less than a read takes.
    bool const ended = HasEnded();
    Drain(m_outputEnd, m_output);
    Drain(m_messagesEnd, m_messages);
    if (ended)
        End();
    return ended;
}

std::string Process::TakeOutput() { return std::exchange(m_output, {}); }

std::string Process::TakeMessages() { return std::exchange(m_messages, {}); }

std::string Process::Failure() const
{
    if (WIFSIGNALED(m_status))
        return "was ended by the signal " + std::to_string(WTERMSIG(m_status));
    return m_status == 0 ? "" : "ended with status " + std::to_string(WEXITSTATUS(m_status));
}

void Process::End()
{
    if (m_process > 0)
    {
        kill(-m_process, SIGKILL);
        waitpid(m_process, &m_status, 0);
        m_process = -1;
    }
    Close(m_end);
    Close(m_outputEnd);
    Close(m_messagesEnd);
}
} // namespace workbench
