#include "workbench/engine/Settings.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <nlohmann/json.hpp>

#include "engine/Globals.h"
#include "engine/Sentinels.h"
#include "workbench/engine/AtomicFile.h"
#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
namespace System = Zenqo_SYSTEM_NAMESPACE;
using Json = nlohmann::json;

struct Choice
{
    char const* key;
    bool Settings::*value;
};

constexpr Choice CHOICES[] = {
    {"promptWorkspace", &Settings::promptWorkspace},
    {"promptScripts", &Settings::promptScripts},
    {"dirOnImport", &Settings::dirOnImport},
    {"dirOnExport", &Settings::dirOnExport},
    {"dirOnLoadWorkspace", &Settings::dirOnLoadWorkspace},
    {"dirOnSaveWorkspace", &Settings::dirOnSaveWorkspace},
    {"dirOnOpenScript", &Settings::dirOnOpenScript},
    {"dirOnSaveScript", &Settings::dirOnSaveScript},
    {"showQuickStart", &Settings::showQuickStart},
};

struct Program
{
    char const* key;
    std::string* path;
};

constexpr Program PROGRAMS[] = {
    {"jags", &System::GLOBAL_DirectoryJAGS},     {"openbugs", &System::GLOBAL_DirectoryBUGS},
    {"stan", &System::GLOBAL_DirectorySTAN},     {"matlab", &System::GLOBAL_DirectoryMATLAB},
    {"octave", &System::GLOBAL_DirectoryOCTAVE}, {"r", &System::GLOBAL_DirectoryR},
    {"stata", &System::GLOBAL_DirectorySTATA},
};

/// Throws a Json::exception at what are no settings.
Settings Read(std::string const& text)
{
    auto const json = Json::parse(text).get<std::map<std::string, Json>>();
    Settings settings;
    for (auto const& [key, value] : CHOICES)
        if (json.count(key) > 0)
            json.at(key).get_to(settings.*value);
    if (json.count("programs") > 0)
        json.at("programs").get_to(settings.programs);
    return settings;
}
} // namespace

Settings LoadSettings(std::string const& path, std::string& warning)
{
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return {};
    std::ifstream file(path, std::ios::binary);
    std::string const text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    try
    {
        return Read(text);
    }
    catch (Json::exception const&)
    {
        auto const aside = path + ".damaged";
        std::filesystem::rename(path, aside, error);
        warning = "The settings in " + path + " are damaged, and the defaults hold instead. "
                  + (error ? "The file could not be set aside: " + error.message() + "."
                           : "The file is set aside as " + aside + ".");
        return {};
    }
}

void SaveSettings(Settings const& settings, std::string const& path)
{
    Json json;
    for (auto const& [key, value] : CHOICES)
        json[key] = settings.*value;
    json["programs"] = settings.programs;
    auto const text = json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";

    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error)
        throw Error("The settings can't be kept in " + path + ": " + error.message() + ".");
    AtomicFile file(path);
    file.Write(text.data(), text.size());
    file.Commit();
}

void ApplyPrograms(Settings const& settings)
{
    for (auto const& [key, path] : PROGRAMS)
    {
        auto const known = settings.programs.find(key);
        *path = known == settings.programs.end() ? zenqo::DEFAULT_STRING : known->second;
    }
}

void TakePrograms(Settings& settings)
{
    settings.programs.clear();
    for (auto const& [key, path] : PROGRAMS)
        if (*path != zenqo::DEFAULT_STRING)
            settings.programs[key] = *path;
}
} // namespace workbench
