#pragma once

#include <string>

#include <sys/types.h>

namespace benchmarks
{
/// The path of a program that was built beside this one.
std::string ProgramBeside(std::string const& name);

/// What a process took from its start to its end.
struct Cost
{
    double seconds;
    double megabytes; ///< The most memory that it held at one time.
};

/// Runs `command`, a line of the shell, to its end. Its output goes nowhere.
/// Throws std::runtime_error if the command fails.
Cost Run(std::string const& command);

/// Starts a program, to be ended by Stop. What it complains of goes nowhere.
pid_t Start(std::string const& program);
void Stop(pid_t process);
} // namespace benchmarks
