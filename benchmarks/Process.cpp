#include "benchmarks/Process.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "benchmarks/Harness.h"

namespace benchmarks
{
namespace fs = std::filesystem;

std::string ProgramBeside(std::string const& name)
{
    return fs::read_symlink("/proc/self/exe").replace_filename(name).string();
}

Cost Run(std::string const& command)
{
    // Another program asks for the memory: a child of this one would inherit the mark of this one's.
    auto const file = fs::temp_directory_path() / ("zenqo-cost-" + std::to_string(getpid()));
    std::string const timed
        = "/usr/bin/time -q -f %M -o '" + file.string() + "' " + command + " >/dev/null 2>&1";
    int status = 0;
    double const seconds = Seconds([&] { status = std::system(timed.c_str()); });
    if (status != 0)
        throw std::runtime_error("this failed: " + timed);
    double kilobytes = 0.0;
    std::ifstream(file) >> kilobytes;
    fs::remove(file);
    return {seconds, kilobytes / 1000.0};
}

pid_t Start(std::string const& program)
{
    pid_t process = 0;
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    int const failure = posix_spawn(&process, program.c_str(), &quiet, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&quiet);
    if (failure != 0)
        throw std::runtime_error("this does not start: " + program);
    return process;
}

void Stop(pid_t process)
{
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}
} // namespace benchmarks
