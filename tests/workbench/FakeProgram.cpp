#include "workbench/FakeProgram.h"

#include <cstdlib>

FakeProgram::FakeProgram(std::string const& name, std::string const& script)
    : m_path(std::getenv("PATH"))
{
    if (!script.empty())
        m_scratch.WriteProgram(name, "PATH=/usr/bin:/bin\n" + script);
    setenv("PATH", m_scratch.Folder().c_str(), 1);
}

FakeProgram::~FakeProgram() { setenv("PATH", m_path.c_str(), 1); }
