#include "dialogs/analysis/AAD5b_Predict.h"

#include "dialogs/analysis/PredictChecks.h"

using namespace predict_checks;
using Fixture = PredictFixture<AAD5b_Predict>;

TEST_CASE("predictions b: the prefix as a piece of script")
{
    CheckPrefix<AAD5b_Predict>();
}

TEST_CASE("predictions b: the parameters as a piece of script")
{
    CheckParameters<AAD5b_Predict>();
}

TEST_CASE("predictions b: prefixes that it takes, and prefixes that it refuses")
{
    Fixture fixture;
    CheckNameCheck(fixture.dialog, fixture.prefix, NO_PREFIX, BAD_PREFIX);
}

TEST_CASE("predictions b: by hand")
{
    CheckByHand<AAD5b_Predict>("AAD5b_Predict");
}

TEST_CASE("predictions b: layout")
{
    Fixture fixture;
    auto const parts = CheckLayout(fixture, 1);
    CHECK(parts.size() == 5);
    CheckTypeBox(parts[0], "Type of predictions to be generated", {"P(y = 1)", "x'b"});
    CheckNote(fixture.dialog, parts, "A note.");
    CheckCentre(fixture.dialog, fixture.dialog.GetSize());
}

TEST_CASE("predictions b: without a note there is none")
{
    Fixture fixture({LONG_MODEL, "cars", "Prefix:", "p_", "", NIPPON, SENTINEL, "x", "y"});
    auto const parts = CheckLayout(fixture, 1);
    CHECK(parts.size() == 3);
    CheckTypeBox(parts[0], "Type of predictions to be generated", {Wide(NIPPON), SENTINEL});
    CheckNoNote(fixture.dialog);
    CheckCentre(fixture.dialog, wxSize(400, 300));
}

TEST_CASE("predictions b: two types")
{
    Fixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetType() == ", \"type\"=1");
    Radio(dialog, "x'b")->SetValue(true);
    CHECK(dialog.GetType() == ", \"type\"=2");
    // The parameters are a group of their own.
    CHECK(dialog.GetParameterPoint().empty());
    fixture.draws->SetValue(true);
    CHECK(dialog.GetType() == ", \"type\"=2");
    Radio(dialog, "P(y = 1)")->SetValue(true);
    CHECK(dialog.GetType() == ", \"type\"=1");
    BreakGroup(Radio(dialog, "x'b"));
    CHECK(Radio(dialog, "stray")->GetValue());
    CHECK(dialog.GetType() == BROKEN);
    CHECK(dialog.GetParameterPoint() == ", \"stats\"=true");
}
