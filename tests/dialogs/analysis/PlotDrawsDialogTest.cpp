#include "dialogs/analysis/PlotDrawsDialog.h"

#include "dialogs/analysis/ModelChecks.h"
#include "pickers/DrawsPicker.h"

using namespace model_checks;

namespace
{
constexpr char NONE_SELECTED[] = "No draws have been selected.";

struct PlotFixture : Fixture<PlotDrawsDialog>
{
    using Fixture::Fixture;

    /// Chooses draws of the model shown, by their places in the left list.
    void ChooseDraws(std::vector<int> const& draws) { driver.MoveIn(0, draws); }

    Driver<DrawsPicker> driver{Find<DrawsPicker>(&dialog),
                               {&DrawsPicker::OnLhsVarSelected,
                                {&DrawsPicker::OnRhsVarSelected},
                                {&DrawsPicker::OnMoveButton}}};
    Controls const& controls = driver.controls;
    wxRadioBox* types = Find<wxRadioBox>(&dialog);
};
} // namespace

TEST_CASE("plot draws dialog: layout")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Plot Samples", 3);
    auto* const held = CheckBox(Item(CheckCell(Item(sizer, 0)), 0), "Select Model && Draws to Plot");
    CHECK(PlacementOf(held) == Placement{1, wxEXPAND, 5});
    CHECK(held->GetWindow() == fixture.driver.picker);
    CHECK(held->GetWindow()->GetParent() == Find<wxStaticBox>(&dialog));
    auto* const below = BelowRow(fixture.driver.picker);
    auto* const columns = CheckButtonColumn(below->GetSizer(), fixture.driver.picker, 1, 18);
    CheckColumn(Item(columns, 2), fixture.controls.Role(0),
                {"Draws to Plot", wxSize(180, 235), 4, {{3, 20}}});
    CheckRunAndCancel(Item(sizer, 2), dialog);
}

TEST_CASE("plot draws dialog: the types of plot")
{
    PlotFixture fixture;
    CheckRadioBox(Item(fixture.dialog.GetSizer(), 1), fixture.types, "Plot type",
                  {"Histogram              ", "History                ", "All plots in one figure",
                   "Kernel density         ", "Correlogram (acf)      "},
                  3);
    for (unsigned i = 0; i < 5; ++i)
        CHECK(fixture.types->GetString(i).length() == 23);
}

TEST_CASE("plot draws dialog: every type wants a draw, and one is enough for every type")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    RunDialog(dialog,
              [&]
              {
                  for (int const draws : {0, 1, 2, 3})
                      for (int type = 0; type < 5; ++type)
                      {
                          INFO(draws << " draws, type " << type);
                          dialog.SetSelection(0);
                          if (draws > 0)
                              fixture.ChooseDraws(FirstOnes(draws));
                          fixture.types->SetSelection(type);
                          CHECK(dialog.GetPlotType() == type);
                          if (draws == 0)
                              CheckRefused(dialog, NONE_SELECTED, [&] { CHECK(!Accepts(dialog)); });
                          else
                              CHECK(Accepts(dialog));
                      }
                  dialog.EndModal(wxID_CANCEL);
              });
}

TEST_CASE("plot draws dialog: refused by hand, mended by hand")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.controls;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            CHECK(fixture.Run()->HasFocus());
            CheckRefused(dialog, NONE_SELECTED, [] { Press(WXK_RETURN); });
            picker_checks::Pick(controls.choice, 2);
            ClickEntry(controls.Left(), 2);
            ClickEntry(controls.Left(), 0, WXK_CONTROL);
            Click(controls.Button(0));
            // The items stand in rows: the last of the first row is the one of all in one figure.
            auto* const types = fixture.types;
            ClickAt(types, wxPoint(types->GetSize().x * 5 / 6, types->GetSize().y / 2));
            Keep(Photograph(&dialog), "PlotDrawsDialog");
            Click(fixture.Run());
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetModelName() == "wage_equation");
    CHECK(dialog.GetVarNames() == Names({"constant", "tau"}));
    CHECK(dialog.GetPlotType() == 2);
}

TEST_CASE("plot draws dialog: SetSelection picks a model and drops what was chosen")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    fixture.ChooseDraws({0, 1});
    CHECK(dialog.GetVarNames() == Names({"constant", "educ"}));
    dialog.SetSelection(2);
    CHECK(dialog.GetModelName() == "wage_equation");
    CHECK(dialog.GetVarNames() == Names({""}));
    CHECK(fixture.controls.Left()->GetStrings() == Names({"constant", "educ", "tau"}));
    // A model without draws is a model.
    dialog.SetSelection(1);
    CHECK(dialog.GetModelName() == "no_draws");
    CHECK(fixture.controls.Left()->IsEmpty());
    for (int const outside : {3, -1, -2, 1000})
    {
        dialog.SetSelection(outside);
        CHECK(dialog.GetModelName().empty());
        CHECK(fixture.controls.Left()->IsEmpty());
    }
}

TEST_CASE("plot draws dialog: without models it opens and warns")
{
    PlotFixture fixture{ModelMap()};
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetModelName().empty());
    CHECK(dialog.GetVarNames() == Names({""}));
    CheckNothingToChoose(dialog, fixture.controls.Button(0), NONE_SELECTED);
}

TEST_CASE("plot draws dialog: odd names and a thousand draws")
{
    auto const odd = pair_checks::HostileNames();
    PlotFixture fixture{ModelMap{{"many", MakeModel(ThousandNames())}, {"mod\xc3\xa8" "le", MakeModel(odd)}}};
    auto& dialog = fixture.dialog;
    CHECK(fixture.controls.Left()->GetCount() == 1000);
    fixture.ChooseDraws(FirstOnes(1000));
    CHECK(fixture.controls.Left()->IsEmpty());
    CHECK(RunDialog(dialog, [&] { Click(fixture.Run()); }) == wxID_OK);
    CHECK(dialog.GetVarNames() == pair_checks::Wide(ThousandNames()));

    dialog.SetSelection(1);
    CHECK(dialog.GetModelName() == "mod\xc3\xa8" "le");
    CHECK(fixture.controls.Left()->GetStrings() == pair_checks::Wide(odd));
    fixture.ChooseDraws({0, 4, 5});
    CHECK(Accepts(dialog));
    CHECK(dialog.GetVarNames() == Names({"a", "données", "日本"}));
}

TEST_CASE("plot draws dialog: Escape, Cancel and closing the window cancel")
{
    PlotFixture fixture;
    CheckWaysOut(fixture.dialog);
}

TEST_CASE("plot draws dialog: the Tab key goes from top to bottom")
{
    PlotFixture fixture;
    auto const& controls = fixture.controls;
    CheckTabs(fixture.dialog, {controls.Left(), controls.Button(0), controls.Role(0), fixture.types});
}
