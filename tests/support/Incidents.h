#pragma once

#include <string>
#include <vector>

/// What must not happen while a test runs: a toolkit assertion, a line in the toolkit's log, a byte
/// on standard error, a box that no test asked for. Each is noted here, and the test in which it
/// happened fails.
namespace incidents
{
/// Notes one incident.
void Report(std::string const& what);

/// The incidents since the last call, which it forgets. Tests of the harness itself use it.
std::vector<std::string> Take();

/// Begins to watch: assertions, log, standard error, boxes. Called once, after the toolkit started.
void Watch();

/// Puts standard error back.
void Unwatch();
} // namespace incidents
