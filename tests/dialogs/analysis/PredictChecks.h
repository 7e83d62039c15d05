#pragma once

#include "dialogs/analysis/ActionChecks.h"

/// What the two dialogs of predictions have in common.
namespace predict_checks
{
using namespace action_checks;

constexpr char NO_PREFIX[] = "Please provide a prefix for the new variable names.";
constexpr char BAD_PREFIX[] = "The variable name prefix must not contain\nspaces or special characters "
                              "and it must not\nbegin with a number.";

template <class Dialog>
struct PredictFixture
{
    explicit PredictFixture(Arguments given = {"probit", "cars", "Prefix:", "p_", "A note.", "P(y = 1)",
                                               "x'b"})
        : arguments(std::move(given))
    {
    }

    Stage stage;
    Arguments arguments;
    Dialog dialog{stage.Frame(), arguments};
    wxTextCtrl* prefix = Find<wxTextCtrl>(&dialog);
    wxRadioButton* mean = Radio(dialog, "posterior mean of the parameters");
    wxRadioButton* draws = Radio(dialog, "each draw from the posterior");
};

/// Layout of what both have, which begins with part `first`; gives the parts between the sentence and
/// the buttons.
template <class Dialog>
Items CheckLayout(PredictFixture<Dialog>& fixture, std::size_t first)
{
    auto const& arguments = fixture.arguments;
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    auto const parts = CheckFrame(fixture.dialog, "Generate predictions",
                                  "Generating predictions for model \"" + arguments[0]
                                      + "\" and storing them in dataset \"" + arguments[1] + "\".",
                                  380);
    REQUIRE(parts.size() >= first + 2);
    auto* const inner = CheckBox(parts[first], "Parameter values to be used for generating predictions",
                                 {0, wxEXPAND | wxALL, 7});
    CHECK(Shape(inner->GetSizer()) == "2 rows, 1 column, not flexible in both directions");
    CHECK(dynamic_cast<wxFlexGridSizer*>(inner->GetSizer())->GetFlexibleDirection() == wxVERTICAL);
    CheckRadioPair(inner->GetSizer(), "posterior mean of the parameters",
                   "each draw from the posterior");
    CHECK(fixture.mean->GetValue());
    CheckNameRow(parts[first + 1], Wide(arguments[2]), Wide(arguments[3]));
    return parts;
}

template <class Dialog>
void CheckPrefix()
{
    PredictFixture<Dialog> fixture;
    auto const says = [&](std::string const& prefix)
    {
        fixture.prefix->SetValue(Wide(prefix));
        return fixture.dialog.GetVarName();
    };
    CHECK(fixture.dialog.GetVarName().empty());
    CHECK(says("p") == ", \"prefix\" = p");
    CHECK(says("p_1") == ", \"prefix\" = p_1");
    CHECK(says("abc") == ", \"prefix\" = abc");
    CHECK(says("P_") == ", \"prefix\" = P_");
    CHECK(says("p__") == ", \"prefix\" = p__");
    CHECK(says(" p_") == ", \"prefix\" =  p_");
    CHECK(says("") == ", \"prefix\" = ");
    CHECK(says(ZURICH) == ", \"prefix\" = " + ZURICH);
    CHECK(says("p_").empty());
    CHECK(says("p_").empty());
    AsciiLocale const ascii;
    CHECK(says(ZURICH) == ", \"prefix\" = ");
}

template <class Dialog>
void CheckParameters()
{
    PredictFixture<Dialog> fixture;
    CHECK(fixture.dialog.GetParameterPoint().empty());
    fixture.draws->SetValue(true);
    CHECK(fixture.dialog.GetParameterPoint() == ", \"stats\"=true");
    fixture.mean->SetValue(true);
    CHECK(fixture.dialog.GetParameterPoint().empty());
    BreakGroup(fixture.mean);
    CHECK(fixture.dialog.GetParameterPoint() == BROKEN);
}

template <class Dialog>
void CheckByHand(wxString const& photograph)
{
    PredictFixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Click(fixture.draws);
                  Click(fixture.prefix);
                  fixture.prefix->SelectAll();
                  TypeText("my p");
                  CheckRefused(dialog, BAD_PREFIX, [] { Press(WXK_RETURN); });
                  CHECK(fixture.prefix->GetValue() == "my p");
                  fixture.prefix->Clear();
                  CheckRefused(dialog, NO_PREFIX, [&] { Click(dialog.FindWindow(wxID_OK)); });
                  Click(fixture.prefix);
                  TypeText("abc");
                  Keep(Photograph(&dialog), photograph);
                  Press(WXK_RETURN);
              })
          == wxID_OK);
    CHECK(dialog.GetVarName() == ", \"prefix\" = abc");
    CHECK(dialog.GetParameterPoint() == ", \"stats\"=true");
    CheckWaysOut(dialog);
}
} // namespace predict_checks
