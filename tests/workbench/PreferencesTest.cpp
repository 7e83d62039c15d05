#include "workbench/app/Preferences.h"

#include <catch2/catch.hpp>

#include <wx/checkbox.h>
#include <wx/filefn.h>
#include <wx/filepicker.h>

#include "dialogs/application/OptionsDialog.h"
#include "engine/Globals.h"
#include "engine/Sentinels.h"
#include "support/Find.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "workbench/Scratch.h"

using workbench::LoadSettings;
using workbench::Preferences;
using workbench::Settings;

namespace
{
/// Preferences that are kept in a file of a scratch folder, and the warnings that they give.
struct Desk
{
    ~Desk() { workbench::ApplyPrograms(Settings()); }

    Preferences Open()
    {
        return {file, [this](std::string const& text) { warnings.push_back(text); }};
    }

    /// What a later run would begin with.
    Settings Kept() const
    {
        std::string warning;
        auto const settings = LoadSettings(file, warning);
        CHECK(warning.empty());
        return settings;
    }

    Stage stage;
    Scratch scratch;
    std::string file = scratch.Path("settings.json");
    std::vector<std::string> warnings;
};

constexpr bool Settings::*CHOICES[] = {
    &Settings::promptWorkspace,  &Settings::promptScripts,    &Settings::dirOnImport,
    &Settings::dirOnExport,      &Settings::dirOnLoadWorkspace, &Settings::dirOnSaveWorkspace,
    &Settings::dirOnOpenScript,  &Settings::dirOnSaveScript};

constexpr wxCheckBox* OptionsDialog::*BOXES[] = {
    &OptionsDialog::m_promptWorkspace,    &OptionsDialog::m_promptScripts,
    &OptionsDialog::m_dirOnImport,        &OptionsDialog::m_dirOnExport,
    &OptionsDialog::m_dirOnLoadWorkspace, &OptionsDialog::m_dirOnSaveWorkspace,
    &OptionsDialog::m_dirOnOpenScript,    &OptionsDialog::m_dirOnSaveScript};

/// Answers a dialog of preferences, of which box `index` alone is changed.
ModalScript::Answer Change(std::size_t index, int end)
{
    return [index, end](wxDialog* dialog)
    {
        auto* const options = dynamic_cast<OptionsDialog*>(dialog);
        REQUIRE(options);
        auto* const box = options->*BOXES[index];
        box->SetValue(!box->GetValue());
        return end;
    };
}

/// Answers the dialog of paths after typing into field `index`.
ModalScript::Answer SetPath(std::size_t index, wxString const& path, int end = wxID_OK)
{
    return [=](wxDialog* dialog)
    {
        Find<wxFilePickerCtrl>(dialog, index)->SetPath(path);
        return end;
    };
}
} // namespace

TEST_CASE("preferences: each box is a setting of its own, which is kept at once and is there again")
{
    Desk desk;
    for (std::size_t i = 0; i < std::size(CHOICES); ++i)
    {
        auto preferences = desk.Open();
        auto const before = preferences.Get();
        ModalScript script;
        script.Then(Change(i, wxID_OK));
        preferences.Edit(desk.stage.Frame());
        CHECK(script.Shown().at(0).parent == desk.stage.Frame());
        auto const kept = desk.Kept();
        for (std::size_t j = 0; j < std::size(CHOICES); ++j)
        {
            CAPTURE(i, j);
            CHECK(kept.*CHOICES[j] == (before.*CHOICES[j] != (i == j)));
            CHECK(preferences.Get().*CHOICES[j] == kept.*CHOICES[j]);
        }
    }
    CHECK(desk.warnings.empty());
}

TEST_CASE("preferences: what is cancelled changes nothing")
{
    Desk desk;
    auto preferences = desk.Open();
    ModalScript script;
    script.Then(Change(0, wxID_CANCEL)).Then(SetPath(0, "/opt/jags", wxID_CANCEL));
    preferences.Edit(desk.stage.Frame());
    preferences.EditPaths(desk.stage.Frame());
    CHECK(preferences.Get().promptWorkspace);
    CHECK(Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryJAGS == zenqo::DEFAULT_STRING);
    CHECK(desk.scratch.CountFiles() == 0);
}

TEST_CASE("preferences: each path goes to its global and is there again, and a path that is taken away is none")
{
    namespace System = Zenqo_SYSTEM_NAMESPACE;
    std::pair<std::string const*, char const*> const programs[] = {
        {&System::GLOBAL_DirectoryJAGS, "jags"},     {&System::GLOBAL_DirectoryBUGS, "openbugs"},
        {&System::GLOBAL_DirectorySTAN, "stan"},     {&System::GLOBAL_DirectoryMATLAB, "matlab"},
        {&System::GLOBAL_DirectoryOCTAVE, "octave"}, {&System::GLOBAL_DirectoryR, "r"},
        {&System::GLOBAL_DirectorySTATA, "stata"}};
    Desk desk;
    for (std::size_t i = 0; i < std::size(programs); ++i)
    {
        auto preferences = desk.Open();
        std::string const path = "/opt/my prögrams/" + std::to_string(i);
        ModalScript script;
        script.Then(SetPath(i, wxString::FromUTF8(path)));
        preferences.EditPaths(desk.stage.Frame());
        CHECK(*programs[i].first == path);
        CHECK(desk.Kept().programs.at(programs[i].second) == path);
    }
    CHECK(desk.Kept().programs.size() == std::size(programs));

    // As a later run finds them.
    workbench::ApplyPrograms(Settings());
    auto preferences = desk.Open();
    CHECK(System::GLOBAL_DirectorySTATA == "/opt/my prögrams/6");
    ModalScript script;
    script.Then(SetPath(6, ""));
    preferences.EditPaths(desk.stage.Frame());
    CHECK(System::GLOBAL_DirectorySTATA == zenqo::DEFAULT_STRING);
    CHECK(desk.Kept().programs.count("stata") == 0);
    CHECK(desk.Kept().programs.size() == std::size(programs) - 1);
}

TEST_CASE("preferences: the quick-start page stays until it is not wanted, and an empty box takes nothing back")
{
    Desk desk;
    auto preferences = desk.Open();
    auto const close = [](bool isTicked)
    {
        return [isTicked](wxDialog* dialog)
        {
            CHECK(!Find<wxCheckBox>(dialog)->GetValue());
            Find<wxCheckBox>(dialog)->SetValue(isTicked);
            return wxID_CANCEL;
        };
    };
    ModalScript script;
    script.Then(close(false)).Then(close(true)).Then(close(false));
    preferences.ShowQuickStart(desk.stage.Frame());
    CHECK(desk.scratch.CountFiles() == 0);
    preferences.ShowQuickStart(desk.stage.Frame());
    CHECK(!desk.Kept().showQuickStart);
    preferences.ShowQuickStart(desk.stage.Frame());
    CHECK(!desk.Kept().showQuickStart);
}

TEST_CASE("preferences: the working directory follows a file where that is wanted")
{
    Desk desk;
    wxString const before = wxGetCwd();
    desk.scratch.Write("settings.json", "{\"dirOnImport\": true}");
    auto const preferences = desk.Open();
    wxString const path = desk.scratch.Path("data.csv");
    preferences.FollowTo(path, &Settings::dirOnExport);
    CHECK(wxGetCwd() == before);
    preferences.FollowTo("data.csv", &Settings::dirOnImport);
    CHECK(wxGetCwd() == before);
    preferences.FollowTo(path, &Settings::dirOnImport);
    CHECK(wxGetCwd() == desk.scratch.Folder());
    wxSetWorkingDirectory(before);
}

TEST_CASE("preferences: what is wrong with their file is told, and without a file they last as long as the program")
{
    Desk desk;
    desk.scratch.Write("settings.json", "{");
    auto preferences = desk.Open();
    REQUIRE(desk.warnings.size() == 1);
    CHECK(desk.warnings[0]
          == "The settings in " + desk.file + " are damaged, and the defaults hold instead. The file is set aside as "
                 + desk.file + ".damaged.");
    desk.file = desk.scratch.Write("file", "") + "/settings.json";
    auto nowhere = desk.Open();
    Preferences unkept({}, [&](std::string const& text) { desk.warnings.push_back(text); });
    ModalScript script;
    script.Then(Change(1, wxID_OK)).Then(Change(1, wxID_OK));
    nowhere.Edit(desk.stage.Frame());
    CHECK(nowhere.Get().promptScripts);
    REQUIRE(desk.warnings.size() == 2);
    CHECK(desk.warnings[1] == "The settings can't be kept in " + desk.file + ": Not a directory.");
    unkept.Edit(desk.stage.Frame());
    CHECK(unkept.Get().promptScripts);
    CHECK(desk.warnings.size() == 2);
}
