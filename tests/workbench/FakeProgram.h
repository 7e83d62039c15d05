#pragma once

#include <string>

#include "workbench/Scratch.h"

/// A program of its own under a known name, which alone is found for the length of a test.
class FakeProgram
{
public:
    /// `script` is what the shell runs; without one there is no such program at all.
    explicit FakeProgram(std::string const& name, std::string const& script = {});
    ~FakeProgram();
    FakeProgram(FakeProgram const&) = delete;
    FakeProgram& operator=(FakeProgram const&) = delete;

private:
    Scratch m_scratch;
    std::string m_path;
};

/// A gnuplot of its own.
struct FakeGnuplot : FakeProgram
{
    explicit FakeGnuplot(std::string const& script = {}) : FakeProgram("gnuplot", script) {}
};
