#include "workbench/engine/Settings.h"

#include <catch2/catch.hpp>

#include <sys/stat.h>

#include "engine/Globals.h"
#include "engine/Sentinels.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Error.h"

using workbench::LoadSettings;
using workbench::SaveSettings;
using workbench::Settings;

TEST_CASE("settings: without a file they are the defaults")
{
    Scratch scratch;
    std::string warning;
    auto const settings = LoadSettings(scratch.Path("none/settings.json"), warning);
    CHECK(warning.empty());
    CHECK(settings.promptWorkspace);
    CHECK(!settings.promptScripts);
    CHECK(settings.showQuickStart);
    CHECK(!settings.dirOnImport);
    CHECK(settings.programs.empty());
}

TEST_CASE("settings: what is kept comes back, in a folder that is made for it")
{
    Scratch scratch;
    auto const path = scratch.Path("a/b/settings.json");
    Settings settings;
    settings.promptWorkspace = false;
    settings.dirOnSaveScript = true;
    settings.showQuickStart = false;
    settings.programs["jags"] = "/opt/my \"jags\" \u00e4/jags";
    SaveSettings(settings, path);
    std::string warning;
    auto const again = LoadSettings(path, warning);
    CHECK(warning.empty());
    CHECK(!again.promptWorkspace);
    CHECK(again.dirOnSaveScript);
    CHECK(!again.dirOnOpenScript);
    CHECK(!again.showQuickStart);
    CHECK(again.programs == settings.programs);
}

TEST_CASE("settings: a file of a later version, or with less in it, is read as far as it is known")
{
    Scratch scratch;
    auto const path = scratch.Write("settings.json", "{\"dirOnImport\": true, \"colour\": \"blue\"}");
    std::string warning;
    auto const settings = LoadSettings(path, warning);
    CHECK(warning.empty());
    CHECK(settings.dirOnImport);
    CHECK(settings.promptWorkspace);
}

TEST_CASE("settings: a damaged file is set aside with a warning, and nothing of it holds")
{
    Scratch scratch;
    for (std::string const text : {"", "{\"dirOnImport\": true", "[1, 2]", "{} x", "{\"dirOnImport\": \"yes\"}",
                                   "{\"programs\": {\"jags\": 7}}", "\xff\xfe"})
    {
        CAPTURE(text);
        auto const path = scratch.Write("settings.json", text);
        std::string warning;
        auto const settings = LoadSettings(path, warning);
        CHECK(warning
              == "The settings in " + path + " are damaged, and the defaults hold instead. The file is set aside as "
                     + path + ".damaged.");
        CHECK(!settings.dirOnImport);
        CHECK(ReadFile(path + ".damaged") == text);
        struct stat status;
        CHECK(stat(path.c_str(), &status) != 0);
    }
}

TEST_CASE("settings: a place that can't be written is one error")
{
    Scratch scratch;
    auto const file = scratch.Write("file", "");
    CHECK_THROWS_AS(SaveSettings({}, file + "/settings.json"), workbench::Error);
}

TEST_CASE("settings: the paths of programs are those of the globals")
{
    namespace System = Zenqo_SYSTEM_NAMESPACE;
    Settings settings;
    settings.programs["octave"] = "/opt/octave";
    ApplyPrograms(settings);
    CHECK(System::GLOBAL_DirectoryOCTAVE == "/opt/octave");
    CHECK(System::GLOBAL_DirectoryR == zenqo::DEFAULT_STRING);
    System::GLOBAL_DirectoryR = "/opt/R";
    TakePrograms(settings);
    CHECK(settings.programs == std::map<std::string, std::string>{{"octave", "/opt/octave"}, {"r", "/opt/R"}});
    ApplyPrograms(Settings());
    CHECK(System::GLOBAL_DirectoryOCTAVE == zenqo::DEFAULT_STRING);
    CHECK(System::GLOBAL_DirectoryR == zenqo::DEFAULT_STRING);
}
