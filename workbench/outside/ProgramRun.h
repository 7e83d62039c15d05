#pragma once

#include <string>

#include "workbench/outside/Process.h"
#include "workbench/outside/Program.h"

namespace workbench
{
class Output;
class Progress;

/// Hears what a program writes on its standard output while it runs. This one does nothing with it.
class Listener
{
public:
    virtual ~Listener();

    /// The next piece of it, as it comes.
    virtual void Hear(std::string const& piece);

    /// Whether a line, with its end, goes to the console.
    virtual bool Shows(std::string const& line) const;

    /// How far the run has come, from 0 to 1.
    virtual double Fraction() const;
};

/// Runs a program to its end, what it writes going to the console meanwhile; `progress` hears of it
/// about 20 times a second, and may interrupt, which ends the program and all that it started. The
/// launch is handed over without the program's path. Gives the last that it wrote on its standard error;
/// throws an Error in its own words if the program is not there or fails.
std::string RunProgram(Program const& program, Launch launch, Listener& listener, Output& output,
                       Progress& progress);
} // namespace workbench
