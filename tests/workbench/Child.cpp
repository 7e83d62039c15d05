#include "workbench/Child.h"

#include <cerrno>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

pid_t StartChild(std::function<void()> const& action)
{
    pid_t const child = fork();
    if (child < 0)
        throw std::runtime_error("no child process");
    if (child > 0)
        return child;
    try
    {
        action();
    }
    catch (...)
    {
        _exit(1);
    }
    _exit(0);
}

std::string InChild(std::function<std::string()> const& action)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    pid_t const child = StartChild(
        [&]
        {
            auto const text = action();
            if (write(ends[1], text.data(), text.size()) != static_cast<ssize_t>(text.size()))
                _exit(1);
        });
    close(ends[1]);
    std::string result;
    char buffer[4096];
    for (ssize_t got; (got = read(ends[0], buffer, sizeof buffer)) != 0;)
        if (got > 0)
            result.append(buffer, static_cast<std::size_t>(got));
        else if (errno != EINTR)
            break;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? result : "(the child process failed)";
}
