#include "workbench/Scratch.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

Scratch::Scratch() : m_folder((fs::temp_directory_path() / "zenqo-XXXXXX").string())
{
    if (!mkdtemp(m_folder.data()))
        throw std::runtime_error("no scratch folder");
    // Tests that drop their privileges must still reach it.
    fs::permissions(m_folder, fs::perms::owner_all | fs::perms::group_all | fs::perms::others_all);
}

Scratch::~Scratch()
{
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

std::string Scratch::Write(std::string const& name, std::string const& content) const
{
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
}

std::string Scratch::WriteProgram(std::string const& name, std::string const& script) const
{
    auto const path = Write(name, "#!/bin/sh\n" + script + "\n");
    fs::permissions(path, fs::perms::owner_all);
    return path;
}

int Scratch::CountFiles() const
{
    return static_cast<int>(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()));
}

std::string ReadFile(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
