#include "dialogs/data/SummarizeDataDialog.h"

#include "dialogs/data/VariableDialogChecks.h"

using namespace variable_dialog_checks;

TEST_CASE("summarize dialog: layout")
{
    Fixture<SummarizeDataDialog> fixture;
    auto* const sizer
        = CheckLayout(fixture, "Summarize Data", 3, "Select Dataset && Variables to Summarize", 235,
                      "Variables to Summarize");
    CheckRadioBox(Item(sizer, 1), Find<wxRadioBox>(&fixture.dialog), "Options",
                  {"Use all observartions available per variable",
                   "Use only observartions without missing values for all selected variables"},
                  1);
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
