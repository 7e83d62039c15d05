#include "dialogs/analysis/AAD4_PlotIRFs.h"

#include "dialogs/analysis/ActionChecks.h"

using namespace action_checks;

namespace
{
struct ResponsesFixture
{
    explicit ResponsesFixture(Arguments given = {"var", "A note."}) : arguments(std::move(given)) {}

    Stage stage;
    Arguments arguments;
    AAD4_PlotIRFs dialog{stage.Frame(), arguments};
    wxSpinCtrl* periods = Find<wxSpinCtrl>(&dialog);
    wxRadioButton* raw = Radio(dialog, "on raw errors");
    wxRadioButton* orthogonal = Radio(dialog, "orthogonal errors");
    wxRadioButton* unit = Radio(dialog, "one unit of the variable");
    wxRadioButton* deviation = Radio(dialog, "one standard deviation");
};

/// Layout; gives the parts between the sentence and the buttons.
Items CheckLayout(ResponsesFixture& fixture, std::string const& model)
{
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    auto const parts = CheckFrame(fixture.dialog, "Plot Impulse Responses",
                                  "Plotting impulse responses for model \"" + model + "\".", 380);
    auto* const row = CheckBoxRow(
        parts, 0, "1 row, 3 columns, column 0 grows, column 1 grows, column 2 grows", 3);
    CheckHorizon(Item(row, 0), "Horizon", 10);
    auto* const type = CheckBox(Item(row, 1), "Type of shock", {1, wxEXPAND, 5});
    CHECK(PlacementOf(type) == Placement{1, wxEXPAND, 5});
    CheckRadioPair(CheckEvenGrid(type->GetSizer(), 2, 1), "on raw errors", "orthogonal errors");
    auto* const unit = CheckBox(Item(row, 2), "Unit of shock", {1, wxEXPAND, 5});
    CHECK(PlacementOf(unit) == Placement{1, wxEXPAND, 5});
    CheckRadioPair(CheckEvenGrid(unit->GetSizer(), 2, 1), "one unit of the variable",
                   "one standard deviation");
    return parts;
}
} // namespace

TEST_CASE("impulse responses dialog: layout")
{
    ResponsesFixture fixture;
    auto const parts = CheckLayout(fixture, "var");
    CHECK(parts.size() == 3);
    CheckNote(fixture.dialog, parts, "A note.");
    CheckCentre(fixture.dialog, fixture.dialog.GetSize());
}

TEST_CASE("impulse responses dialog: without a note, and with entries that are not read")
{
    ResponsesFixture fixture({LONG_MODEL, "", SENTINEL, "x"});
    CHECK(CheckLayout(fixture, LONG_MODEL).size() == 1);
    CheckNoNote(fixture.dialog);
    CheckCentre(fixture.dialog, wxSize(400, 300));
}

TEST_CASE("impulse responses dialog: what a new dialog says")
{
    ResponsesFixture fixture;
    CHECK(fixture.dialog.GetPeriods() == 10);
    CHECK(fixture.dialog.GetOrthogonal());
    CHECK(fixture.dialog.GetScaled());
}

TEST_CASE("impulse responses dialog: the two pairs have no effect on each other")
{
    ResponsesFixture fixture;
    auto& dialog = fixture.dialog;
    fixture.raw->SetValue(true);
    CHECK(!dialog.GetOrthogonal());
    CHECK(dialog.GetScaled());
    fixture.unit->SetValue(true);
    CHECK(!dialog.GetOrthogonal());
    CHECK(!dialog.GetScaled());
    fixture.orthogonal->SetValue(true);
    CHECK(dialog.GetOrthogonal());
    CHECK(!dialog.GetScaled());
}

TEST_CASE("impulse responses dialog: settings made by hand")
{
    ResponsesFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Click(fixture.raw);
                  Click(fixture.unit);
                  fixture.periods->SetFocus();
                  fixture.periods->SetSelection(-1, -1);
                  TypeText("24");
                  Keep(Photograph(&dialog), "AAD4_PlotIRFs");
                  Click(dialog.FindWindow(wxID_OK));
              })
          == wxID_OK);
    CHECK(dialog.GetPeriods() == 24);
    CHECK(!dialog.GetOrthogonal());
    CHECK(!dialog.GetScaled());
    CheckWaysOut(dialog);
}
