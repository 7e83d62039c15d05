#include "dialogs/analysis/AAD2b_CalculateMFX.h"

#include "dialogs/analysis/EffectsChecks.h"

using namespace effects_checks;

namespace effects_checks
{
template <>
Arguments TypesOf<AAD2b_CalculateMFX>()
{
    return {SENTINEL, "E(y)", "P(y = 0)"};
}
} // namespace effects_checks

TEST_CASE("marginal effects b: layout with a note and without")
{
    CheckNotes<AAD2b_CalculateMFX>();
}

TEST_CASE("marginal effects b: each point has its text")
{
    CheckPoints<AAD2b_CalculateMFX>();
}

TEST_CASE("marginal effects b: the user's own point")
{
    CheckOwnPoint<AAD2b_CalculateMFX>();
}

TEST_CASE("marginal effects b: no names, and a thousand")
{
    CheckLists<AAD2b_CalculateMFX>();
}

TEST_CASE("marginal effects b: by hand")
{
    CheckByHand<AAD2b_CalculateMFX>("AAD2b_CalculateMFX");
}

TEST_CASE("marginal effects b: two types")
{
    CheckTypes<AAD2b_CalculateMFX>({"E(y)", "P(y = 0)"});
    CheckSentinels<AAD2b_CalculateMFX>({"first", "second"});
}
