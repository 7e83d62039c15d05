#include "dialogs/application/OptionsDialog.h"

#include <array>

#include <wx/checkbox.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "dialogs/application/DialogChecks.h"
#include "support/Layout.h"
#include "support/TabOrder.h"

namespace
{
using Settings = std::array<bool, 8>;

/// The dialog for settings in the order of the constructor's arguments.
std::unique_ptr<OptionsDialog> DialogFor(wxWindow* parent, Settings const& s)
{
    return std::make_unique<OptionsDialog>(parent, s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7]);
}

/// The check boxes in the same order.
std::array<wxCheckBox*, 8> BoxesOf(OptionsDialog const& dialog)
{
    return {dialog.m_promptWorkspace,    dialog.m_promptScripts,      dialog.m_dirOnImport,
            dialog.m_dirOnExport,        dialog.m_dirOnLoadWorkspace, dialog.m_dirOnSaveWorkspace,
            dialog.m_dirOnOpenScript,    dialog.m_dirOnSaveScript};
}

Settings SettingsOf(OptionsDialog const& dialog)
{
    Settings settings;
    auto const boxes = BoxesOf(dialog);
    std::transform(boxes.begin(), boxes.end(), settings.begin(),
                   [](wxCheckBox const* box) { return box->GetValue(); });
    return settings;
}
} // namespace

TEST_CASE("preferences: layout")
{
    Stage stage;
    auto const dialog = DialogFor(stage.Frame(), {});
    auto* const sizer = CheckFrame(*dialog, "Preferences", 0x2000181C, 2);
    CheckCentred(*dialog);
    auto* const box = CheckBox(Item(sizer, 0), "Working directory && prompts on exit",
                               {0, wxEXPAND | wxALL, 5});
    CheckButtons(*dialog, Item(sizer, 1), "&OK", "&Cancel", AtTheEnd());

    REQUIRE(box->GetItemCount() == 1);
    CHECK(PlacementOf(Item(box, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const column = dynamic_cast<wxBoxSizer*>(Item(box, 0)->GetSizer());
    CHECK(column->GetOrientation() == wxVERTICAL);
    REQUIRE(column->GetItemCount() == 5);
    auto* const heading = dynamic_cast<wxStaticText*>(Item(column, 0)->GetWindow());
    CHECK(heading->GetLabel() == "Change working directory when:");
    CHECK(PlacementOf(Item(column, 0)) == Placement{0, wxTOP, 5});
    CHECK(PlacementOf(Item(column, 1)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(column, 2)->GetWindow() == dialog->m_line);
    CHECK(dialog->m_line->IsVertical() == false);
    CHECK(PlacementOf(Item(column, 2)) == Placement{0, wxEXPAND | wxTOP | wxBOTTOM, 5});
    CHECK(Item(column, 3)->GetWindow() == dialog->m_promptWorkspace);
    CHECK(PlacementOf(Item(column, 3)) == Placement{0, wxLEFT | wxRIGHT, 5});
    CHECK(Item(column, 4)->GetWindow() == dialog->m_promptScripts);
    CHECK(PlacementOf(Item(column, 4)) == Placement{0, wxLEFT | wxRIGHT, 5});

    auto* const grid = dynamic_cast<wxGridSizer*>(Item(column, 1)->GetSizer());
    CHECK(!dynamic_cast<wxFlexGridSizer*>(grid));
    CHECK(grid->GetRows() == 3);
    CHECK(grid->GetCols() == 2);
    CHECK(grid->GetHGap() == 0);
    CHECK(grid->GetVGap() == 0);
    REQUIRE(grid->GetItemCount() == 6);
    auto const boxes = BoxesOf(*dialog);
    for (std::size_t i = 0; i < 6; ++i)
    {
        CHECK(Item(grid, i)->GetWindow() == boxes[i + 2]);
        CHECK(PlacementOf(Item(grid, i))
              == Placement{0, i % 2 == 0 ? wxRIGHT : wxLEFT | wxRIGHT, 5});
    }
}

TEST_CASE("preferences: labels")
{
    Stage stage;
    auto const dialog = DialogFor(stage.Frame(), {});
    CHECK(dialog->m_promptWorkspace->GetLabel() == "Prompt to save workspace on exit");
    CHECK(dialog->m_promptScripts->GetLabel() == "Prompt to save unsaved scripts on closing or exit");
    CHECK(dialog->m_dirOnImport->GetLabel() == "importing data");
    CHECK(dialog->m_dirOnExport->GetLabel() == "exporting data");
    CHECK(dialog->m_dirOnLoadWorkspace->GetLabel() == "loading a workspace");
    CHECK(dialog->m_dirOnSaveWorkspace->GetLabel() == "saving a workspace");
    CHECK(dialog->m_dirOnOpenScript->GetLabel() == "opening a script");
    CHECK(dialog->m_dirOnSaveScript->GetLabel() == "saving a script");
}

TEST_CASE("preferences: each argument is the value of its own box")
{
    Stage stage;
    bool const others = GENERATE(false, true);
    for (std::size_t i = 0; i < 8; ++i)
    {
        CAPTURE(others, i);
        Settings settings;
        settings.fill(others);
        settings[i] = !others;
        CHECK(SettingsOf(*DialogFor(stage.Frame(), settings)) == settings);
    }
}

TEST_CASE("preferences: ticked by hand and accepted")
{
    Stage stage;
    auto const dialog = DialogFor(stage.Frame(), {true, false, true, false, true, false, true, false});
    int const answer = RunDialog(*dialog,
                                 [&]
                                 {
                                     CheckFits(*dialog);
                                     for (auto* const box : BoxesOf(*dialog))
                                         ClickAt(box, wxPoint(10, box->GetSize().y / 2));
                                     Click(dialog->m_dirOnExport);
                                     Keep(Photograph(dialog.get()), "OptionsDialog");
                                     Click(dialog->FindWindow(wxID_OK));
                                 });
    CHECK(answer == wxID_OK);
    CHECK(SettingsOf(*dialog) == Settings{false, true, false, false, false, true, false, true});
}

TEST_CASE("preferences: by the keys alone, in the order on the screen")
{
    Stage stage;
    auto const dialog = DialogFor(stage.Frame(), {});
    int const answer = RunDialog(
        *dialog,
        [&]
        {
            auto* const ok = dialog->FindWindow(wxID_OK);
            CHECK(wxWindow::FindFocus() == ok);
            auto const boxes = BoxesOf(*dialog);
            CHECK(TabOrder(ok)
                  == std::vector<wxWindow*>{ok, boxes[2], boxes[3], boxes[4], boxes[5], boxes[6], boxes[7],
                                            boxes[0], boxes[1], dialog->FindWindow(wxID_CANCEL)});
            dialog->m_dirOnOpenScript->SetFocus();
            Press(WXK_SPACE);
            Press(WXK_RETURN);
        });
    CHECK(answer == wxID_OK);
    CHECK(SettingsOf(*dialog) == Settings{false, false, false, false, false, false, true, false});
}

TEST_CASE("preferences: all the ways out that cancel")
{
    Stage stage;
    auto const dialog = DialogFor(stage.Frame(), {});
    CheckWaysOut(*dialog);
}
