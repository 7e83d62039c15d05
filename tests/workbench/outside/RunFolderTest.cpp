#include <catch2/catch.hpp>

#include <cstdlib>
#include <filesystem>

#include <sys/stat.h>

#include "workbench/Child.h"
#include "workbench/Scratch.h"
#include "workbench/outside/RunFolder.h"

using workbench::RunFolder;

namespace
{
/// Temporary files go to a scratch folder for the length of a test.
class OwnTemporary
{
public:
    OwnTemporary() { setenv("TMPDIR", m_scratch.Folder().c_str(), 1); }
    ~OwnTemporary() { unsetenv("TMPDIR"); }

    Scratch const* operator->() const { return &m_scratch; }

private:
    Scratch m_scratch;
};
} // namespace

TEST_CASE("a run's folder is its user's alone, and goes with all in it")
{
    OwnTemporary const temporary;
    std::string path;
    {
        RunFolder const folder;
        path = folder.Path();
        struct stat status;
        REQUIRE(stat(path.c_str(), &status) == 0);
        CHECK((status.st_mode & 0777) == 0700);
        folder.Write("a file", std::string("a\0b", 3));
        CHECK(ReadFile(folder.Path("a file")) == std::string("a\0b", 3));
        std::filesystem::create_directories(folder.Path("deep/er"));
        RunFolder const second;
        CHECK(second.Path() != path);
        CHECK(temporary->CountFiles() == 2);
    }
    CHECK(temporary->CountFiles() == 0);
}

TEST_CASE("what a killed process left behind goes with the next run, and nothing else")
{
    OwnTemporary const temporary;
    InChild(
        []
        {
            auto* const folder = new RunFolder;
            folder->Write("file", "left");
            return std::string("done");
        });
    CHECK(temporary->CountFiles() == 1);
    temporary->Write("zenqo-run-file", "mine");
    std::filesystem::create_directory(temporary->Path("other"));
    std::filesystem::create_directory_symlink("other", temporary->Path("zenqo-run-link"));
    {
        RunFolder const folder;
        CHECK(temporary->CountFiles() == 4);
    }
    CHECK(temporary->CountFiles() == 3);
}

TEST_CASE("no folder for temporary files is an error that says so")
{
    setenv("TMPDIR", "/nowhere/at/all", 1);
    CHECK(ErrorOf([] { RunFolder folder; })
          == "there is no folder for temporary files: No such file or directory");
    unsetenv("TMPDIR");
}

TEST_CASE("a file that can't be written is an error that names it")
{
    RunFolder const folder;
    CHECK(ErrorOf([&] { folder.Write("no/file", "x"); })
          == "\"" + folder.Path("no/file") + "\" cannot be written: No such file or directory");
}
