#pragma once

#include <filesystem>

#include "workbench/Scratch.h"

/// A copy of the workbench's samples as the current folder, for the length of a test.
class SampleFolder
{
public:
    SampleFolder();
    ~SampleFolder();
    SampleFolder(SampleFolder const&) = delete;
    SampleFolder& operator=(SampleFolder const&) = delete;

private:
    Scratch m_scratch;
    std::filesystem::path m_old;
};
