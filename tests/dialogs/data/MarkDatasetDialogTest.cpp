#include "dialogs/data/MarkDatasetDialog.h"

#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>

#include "dialogs/data/DialogChecks.h"
#include "modelspec/VariablePickerMark.h"
#include "pickers/NotePanel.h"

using namespace dialog_checks;

namespace
{
enum
{
    TIME,
    GROUP
};

struct MarkFixture
{
    MarkFixture() = default;
    explicit MarkFixture(DatasetMap given) : datasets(std::move(given)) {}

    wxWindow* Run() { return dialog.FindWindow(wxID_OK); }

    Stage stage;
    DatasetMap datasets = TwoDatasets();
    MarkDatasetDialog dialog{stage.Frame(), &datasets};
    Controls controls{&dialog};
    wxChoice* format = Find<wxChoice>(&dialog, 1);
};
} // namespace

TEST_CASE("mark dialog: layout")
{
    MarkFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Set Dataset Structure", 3);
    auto* const held = CheckBox(Item(sizer, 0), "Select Dataset && Structure Variables");
    CHECK(held->GetWindow() == Find<VariablePickerMark>(&dialog));
    CHECK(held->GetWindow()->GetParent() == Find<wxStaticBox>(&dialog));
    CHECK(PlacementOf(held) == Placement{1, wxEXPAND, 5});
    CHECK(Item(sizer, 1)->GetWindow() == Find<NotePanel>(&dialog));
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 10});
    CheckRunAndCancel(Item(sizer, 2), dialog);
}

TEST_CASE("mark dialog: the note is there whole")
{
    MarkFixture fixture;
    auto* const note = Find<NotePanel>(&fixture.dialog);
    auto* const html = Find<wxHtmlWindow>(note);
    CHECK(html->ToText().Trim(false).Trim()
          == "Leave the \"Group Id Variable\" field empty to mark the dataset as time-series. Leave both the "
             "\"Time Variable\" and \"Group Id Variable\" fields empty to remove any structure from the "
             "dataset (mark the dataset as cross-sectional).");
    RunDialog(fixture.dialog,
              [&]
              {
                  CHECK(note->GetMinSize().x == 200);
                  CHECK(html->GetClientSize().y >= html->GetInternalRepresentation()->GetHeight());
                  Keep(Photograph(&fixture.dialog), "MarkDatasetDialog");
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("mark dialog: no structure is an answer")
{
    MarkFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog, [&] { Click(fixture.Run()); }) == wxID_OK);
    CHECK(dialog.GetDatasetName() == "macro");
    CHECK(dialog.GetTimeVar() == wxEmptyString);
    CHECK(dialog.GetGroupVar() == wxEmptyString);
    CHECK(dialog.GetTimeFormat() == 0);
}

TEST_CASE("mark dialog: marked and accepted by hand")
{
    MarkFixture fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.controls;
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CHECK(fixture.Run()->HasFocus());
                                     picker_checks::Pick(controls.choice, 1);
                                     CHECK(dialog.GetDatasetName() == "wages");
                                     ClickEntry(controls.Left(), 1);
                                     Click(controls.Button(TIME));
                                     ClickEntry(controls.Left(), 2);
                                     Click(controls.Button(GROUP));
                                     picker_checks::Pick(fixture.format, 2);
                                     Click(fixture.Run());
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetTimeVar() == "age");
    CHECK(dialog.GetGroupVar() == "tenure");
    CHECK(dialog.GetTimeFormat() == 2);
}

TEST_CASE("mark dialog: a group without a time passes too")
{
    MarkFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        ClickEntry(fixture.controls.Left(), 0);
                        Click(fixture.controls.Button(GROUP));
                        CHECK(Accepts(dialog));
                        Press(WXK_RETURN);
                        // Enter on the button that moves only moves.
                        CHECK(dialog.IsModal());
                        fixture.Run()->SetFocus();
                        Press(WXK_RETURN);
                    })
          == wxID_OK);
    CHECK(dialog.GetTimeVar() == wxEmptyString);
    CHECK(dialog.GetGroupVar() == "gdp");
}

TEST_CASE("mark dialog: SetDataset empties the roles and keeps the format")
{
    MarkFixture fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.controls;
    SelectEntries(controls.Left(), {3});
    wxCommandEvent press;
    Find<VariablePickerMark>(&dialog)->OnUpperButton(press);
    CHECK(dialog.GetTimeVar() == "m2");
    fixture.format->SetSelection(3);
    dialog.SetDataset(0);
    CHECK(dialog.GetTimeVar() == wxEmptyString);
    CHECK(dialog.GetTimeFormat() == 3);
    dialog.SetDataset(1);
    CHECK(dialog.GetDatasetName() == "wages");
    CHECK(controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    for (int const outside : {2, -1, -2, 1000})
    {
        dialog.SetDataset(outside);
        CHECK(dialog.GetDatasetName().empty());
        CHECK(controls.Left()->IsEmpty());
    }
}

TEST_CASE("mark dialog: Escape, Cancel and closing the window cancel")
{
    MarkFixture fixture;
    CheckWaysOut(fixture.dialog);
}

TEST_CASE("mark dialog: the Tab key goes from the lists to the buttons, and not to the note")
{
    MarkFixture fixture;
    auto const& controls = fixture.controls;
    // The format is a choice too, whose focus the toolkit does not tell.
    CheckTabs(fixture.dialog, {controls.Left(), controls.Button(TIME), controls.Button(GROUP),
                               controls.Role(TIME), nullptr, controls.Role(GROUP)});
}

TEST_CASE("mark dialog: without datasets it opens, and gives nothing but empty names")
{
    MarkFixture fixture{DatasetMap()};
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        Click(fixture.controls.Button(TIME));
                        Click(fixture.controls.Button(GROUP));
                        Click(fixture.Run());
                    })
          == wxID_OK);
    CHECK(dialog.GetDatasetName().empty());
    CHECK(dialog.GetTimeVar() == wxEmptyString);
    CHECK(dialog.GetGroupVar() == wxEmptyString);
    CHECK(dialog.GetTimeFormat() == 0);
}

TEST_CASE("mark dialog: odd names")
{
    auto const odd = pair_checks::Wide(pair_checks::HostileNames());
    MarkFixture fixture{DatasetMap{{"donn\xc3\xa9" "es", MakeDataset(odd)}}};
    auto& dialog = fixture.dialog;
    auto* const picker = Find<VariablePickerMark>(&dialog);
    CHECK(dialog.GetDatasetName() == "donn\xc3\xa9" "es");
    wxCommandEvent press;
    SelectEntries(fixture.controls.Left(), {5});
    picker->OnUpperButton(press);
    SelectEntries(fixture.controls.Left(), {0});
    picker->OnLowerButton(press);
    CHECK(dialog.GetTimeVar() == wxString::FromUTF8("日本"));
    CHECK(dialog.GetGroupVar() == "a");
}
