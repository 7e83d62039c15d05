#pragma once

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include <catch2/catch.hpp>

/// Whether a test must do without `program`, which it then says. Where ZENQO_TEST_OUTSIDE is set, a
/// program that is missing is a failure.
inline bool IsMissing(std::string const& program)
{
    std::istringstream folders(std::getenv("PATH"));
    for (std::string folder; std::getline(folders, folder, ':');)
        if (std::filesystem::exists(folder + "/" + program))
            return false;
    if (std::getenv("ZENQO_TEST_OUTSIDE"))
        FAIL(program << " is not installed; scripts/setup --outside installs it");
    WARN("skipped: " << program << " is not installed; scripts/setup --outside installs it");
    return true;
}
