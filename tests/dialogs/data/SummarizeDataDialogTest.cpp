#include "dialogs/data/SummarizeDataDialog.h"

#include <wx/radiobox.h>

#include "dialogs/data/VariableDialogChecks.h"

using namespace variable_dialog_checks;

TEST_CASE("summarize dialog: layout")
{
    Fixture<SummarizeDataDialog> fixture;
    auto* const sizer
        = CheckLayout(fixture, "Summarize Data", 3, "Select Dataset && Variables to Summarize", 235,
                      "Variables to Summarize");
    auto* const options = Find<wxRadioBox>(&fixture.dialog);
    CHECK(Item(sizer, 1)->GetWindow() == options);
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    CHECK(options->GetLabel() == "Options");
    REQUIRE(options->GetCount() == 2);
    CHECK(options->GetString(0) == "Use all observartions available per variable");
    CHECK(options->GetString(1)
          == "Use only observartions without missing values for all selected variables");
    CHECK(options->GetColumnCount() == 1);
    CHECK(options->HasFlag(wxRA_SPECIFY_COLS));
    CHECK(options->GetSelection() == 0);
}

TEST_CASE("summarize dialog: choosing variables")
{
    CheckAll<SummarizeDataDialog>(
        [](SummarizeDataDialog& dialog) -> std::vector<wxWindow*>
        { return {Find<wxRadioBox>(&dialog)}; });
}

TEST_CASE("summarize dialog: the second option is told as true")
{
    Fixture<SummarizeDataDialog> fixture;
    auto& dialog = fixture.dialog;
    CHECK(!dialog.GetSummarizeAll());
    auto names = Names({"gdp"});
    dialog.SetVariables(0, names);
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     auto* const options = Find<wxRadioBox>(&dialog);
                                     ClickAt(options, wxPoint(20, options->GetSize().y - 15));
                                     CHECK(dialog.GetSummarizeAll());
                                     Press(WXK_RETURN);
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetSummarizeAll());
    Find<wxRadioBox>(&dialog)->SetSelection(0);
    CHECK(!dialog.GetSummarizeAll());
}
