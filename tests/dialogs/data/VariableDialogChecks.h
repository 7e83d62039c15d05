#pragma once

#include "dialogs/data/DialogChecks.h"
#include "pickers/VariablePickerSingle.h"

/// What the dialogs have in common in which the user chooses some of a dataset's variables.
namespace variable_dialog_checks
{
using namespace dialog_checks;

constexpr char NONE_SELECTED[] = "No variables have been selected.";

/// A dialog on the two datasets that the pickers' tests have too.
template <class Dialog>
struct Fixture
{
    Fixture() = default;
    explicit Fixture(DatasetMap given) : datasets(std::move(given)) {}

    wxButton* Run() { return dynamic_cast<wxButton*>(dialog.FindWindow(wxID_OK)); }

    Stage stage;
    DatasetMap datasets = TwoDatasets();
    Dialog dialog{stage.Frame(), &datasets};
    Controls controls{&dialog};
};

/// Gives the sizer of the dialog, whose first part holds the picker.
template <class Dialog>
wxSizer* CheckLayout(Fixture<Dialog>& fixture, wxString const& title, std::size_t parts,
                     wxString const& label, int listHeight, wxString const& caption)
{
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, title, parts);
    auto* const held = CheckBox(Item(CheckCell(Item(sizer, 0)), 0), label);
    CHECK(PlacementOf(held) == Placement{1, wxEXPAND, 5});
    CHECK(dynamic_cast<VariablePickerSingle*>(held->GetWindow()));
    CHECK(held->GetWindow()->GetParent() == Find<wxStaticBox>(&dialog));
    CHECK(fixture.controls.Role(0)->GetMinSize() == wxSize(180, listHeight));
    CHECK(fixture.controls.captions.back()->GetLabel() == caption);
    CheckRunAndCancel(Item(sizer, parts - 1), dialog);
    return sizer;
}

/// Without a choice the dialog warns and stays, by a click and by the keyboard; with one it is accepted.
template <class Dialog>
void WarnsAndStays()
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            CHECK(fixture.Run()->HasFocus());
            CheckRefused(dialog, NONE_SELECTED, [&] { Click(fixture.Run()); });
            CheckRefused(dialog, NONE_SELECTED, [] { Press(WXK_RETURN); });
            // Enter is heard in a list too.
            ClickEntry(fixture.controls.Left(), 2);
            CheckRefused(dialog, NONE_SELECTED, [] { Press(WXK_RETURN); });
            CHECK(Selected(fixture.controls.Left()) == std::vector<int>{2});
            Click(fixture.controls.Button(0));
            ClickEntry(fixture.controls.Left(), 0);
            Click(fixture.controls.Button(0));
            Keep(Photograph(&dialog), dialog.GetTitle());
            Click(fixture.Run());
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetDatasetName() == "macro");
    CHECK(dialog.GetVarNames() == Names({"rate", "gdp"}));
}

/// Enter accepts at once what was chosen by program, in the order in which it was given.
template <class Dialog>
void EarlierChoice()
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    auto names = Names({"tenure", "wage"});
    dialog.SetVariables(1, names);
    CHECK(RunDialog(dialog, [] { Press(WXK_RETURN); }) == wxID_OK);
    CHECK(dialog.GetDatasetName() == "wages");
    CHECK(dialog.GetVarNames() == Names({"tenure", "wage"}));
    CHECK(fixture.controls.Left()->GetStrings() == Names({"age", "educ"}));

    // Another one takes the place of it, and what the getter gives for none is none.
    auto others = Names({"fx"});
    dialog.SetVariables(0, others);
    CHECK(dialog.GetDatasetName() == "macro");
    CHECK(dialog.GetVarNames() == Names({"fx"}));
    auto none = Names({""});
    dialog.SetVariables(0, none);
    CHECK(dialog.GetVarNames() == Names({""}));
    CHECK(fixture.controls.Left()->GetCount() == 5);
    for (int const outside : {2, 1000, -1, -2})
    {
        dialog.SetVariables(outside, none);
        CHECK(dialog.GetDatasetName().empty());
        CHECK(dialog.GetVarNames() == Names({""}));
        CHECK(fixture.controls.Left()->IsEmpty());
    }
}

template <class Dialog>
void WaysOut()
{
    Fixture<Dialog> fixture;
    CheckWaysOut(fixture.dialog);
}

/// Without datasets there is nothing to choose, and the dialog still opens.
template <class Dialog>
void NoDatasets()
{
    Fixture<Dialog> fixture{DatasetMap()};
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetDatasetName().empty());
    CHECK(dialog.GetVarNames() == Names({""}));
    CheckNothingToChoose(dialog, fixture.controls.Button(0), NONE_SELECTED);
}

/// The Tab key goes through the controls from top to bottom and from left to right; `extra` stand
/// between the lists and the buttons.
template <class Dialog>
void Tabs(std::function<std::vector<wxWindow*>(Dialog&)> const& extra = {})
{
    Fixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.controls;
    std::vector<wxWindow*> expected{controls.Left(), controls.Button(0), controls.Role(0)};
    if (extra)
        for (auto* const window : extra(dialog))
            expected.push_back(window);
    CheckTabs(dialog, std::move(expected));
}

/// Names as no one should give them, and a great many.
template <class Dialog>
void OddNames()
{
    auto const odd = pair_checks::Wide(pair_checks::HostileNames());
    wxArrayString many;
    for (int i = 0; i < 1000; ++i)
        many.Add(wxString::Format("a_rather_long_name_of_a_variable_%d", i));
    Fixture<Dialog> fixture{DatasetMap{{"donn\xc3\xa9" "es", MakeDataset(odd)}, {"many", MakeDataset(many)}}};
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetDatasetName() == "donn\xc3\xa9" "es");
    CHECK(fixture.controls.Left()->GetStrings() == odd);
    auto some = Names({"日本", "a", "a"});
    dialog.SetVariables(0, some);
    CHECK(Accepts(dialog));
    CHECK(dialog.GetVarNames() == some);

    dialog.SetVariables(1, many);
    CHECK(dialog.GetDatasetName() == "many");
    CHECK(fixture.controls.Left()->IsEmpty());
    CHECK(RunDialog(dialog, [&] { Click(fixture.Run()); }) == wxID_OK);
    CHECK(dialog.GetVarNames() == many);
}

/// All of these for one dialog.
template <class Dialog>
void CheckAll(std::function<std::vector<wxWindow*>(Dialog&)> const& betweenListsAndButtons = {})
{
    SECTION("without a choice it warns and stays") { WarnsAndStays<Dialog>(); }
    SECTION("an earlier choice can be put back") { EarlierChoice<Dialog>(); }
    SECTION("Escape, Cancel and closing the window cancel") { WaysOut<Dialog>(); }
    SECTION("without datasets it opens and warns") { NoDatasets<Dialog>(); }
    SECTION("the Tab key goes from top to bottom") { Tabs<Dialog>(betweenListsAndButtons); }
    SECTION("odd names and many names") { OddNames<Dialog>(); }
}
} // namespace variable_dialog_checks
