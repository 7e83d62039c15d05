#include "dialogs/analysis/AAD5a_Predict.h"

#include "dialogs/analysis/PredictChecks.h"

using namespace predict_checks;
using Fixture = PredictFixture<AAD5a_Predict>;

TEST_CASE("predictions a: the prefix as a piece of script")
{
    CheckPrefix<AAD5a_Predict>();
}

TEST_CASE("predictions a: the parameters as a piece of script")
{
    CheckParameters<AAD5a_Predict>();
}

TEST_CASE("predictions a: prefixes that it takes, and prefixes that it refuses")
{
    Fixture fixture;
    CheckNameCheck(fixture.dialog, fixture.prefix, NO_PREFIX, BAD_PREFIX);
}

TEST_CASE("predictions a: by hand")
{
    CheckByHand<AAD5a_Predict>("AAD5a_Predict");
}

TEST_CASE("predictions a: layout")
{
    Fixture fixture({"probit", "cars", "Prefix:", "p_", "A note."});
    auto const parts = CheckLayout(fixture, 0);
    CHECK(parts.size() == 4);
    CheckNote(fixture.dialog, parts, "A note.");
    CheckCentre(fixture.dialog, fixture.dialog.GetSize());
}

TEST_CASE("predictions a: an empty note is shown, and entries behind it are not read")
{
    Fixture fixture({LONG_MODEL, NIPPON, "", ZURICH, "", "x", SENTINEL});
    auto const parts = CheckLayout(fixture, 0);
    CHECK(parts.size() == 4);
    CheckNote(fixture.dialog, parts, "");
    CHECK(FindAll<wxRadioButton>(&fixture.dialog).size() == 2);
    CHECK(fixture.dialog.GetVarName() == ", \"prefix\" = " + ZURICH);
}
