#pragma once

#include <string>

#include "workbench/Scratch.h"

/// A program of its own called gnuplot, which alone is found for the length of a test.
class FakeGnuplot
{
public:
    /// `script` is what the shell runs; without one there is no such program at all.
    explicit FakeGnuplot(std::string const& script = {});
    ~FakeGnuplot();
    FakeGnuplot(FakeGnuplot const&) = delete;
    FakeGnuplot& operator=(FakeGnuplot const&) = delete;

private:
    Scratch m_scratch;
    std::string m_path;
};
