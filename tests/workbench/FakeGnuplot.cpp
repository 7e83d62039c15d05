#include "workbench/FakeGnuplot.h"

#include <cstdlib>
#include <filesystem>

FakeGnuplot::FakeGnuplot(std::string const& script) : m_path(std::getenv("PATH"))
{
    if (!script.empty())
        std::filesystem::permissions(m_scratch.Write("gnuplot", "#!/bin/sh\nPATH=/usr/bin:/bin\n" + script + "\n"),
                                     std::filesystem::perms::owner_all);
    setenv("PATH", m_scratch.Folder().c_str(), 1);
}

FakeGnuplot::~FakeGnuplot() { setenv("PATH", m_path.c_str(), 1); }
