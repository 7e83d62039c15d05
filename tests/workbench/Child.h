#pragma once

#include <functional>
#include <string>

#include <sys/types.h>

/// Runs `action` in a child process and gives what it returns. For what a test must not do to its
/// own process: drop privileges, limit the size of files, mount a disk.
std::string InChild(std::function<std::string()> const& action);

/// Starts a child process that runs `action` and ends. The caller waits for it.
pid_t StartChild(std::function<void()> const& action);
