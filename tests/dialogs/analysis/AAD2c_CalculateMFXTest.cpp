#include "dialogs/analysis/AAD2c_CalculateMFX.h"

#include "dialogs/analysis/EffectsChecks.h"

using namespace effects_checks;

namespace effects_checks
{
template <>
Arguments TypesOf<AAD2c_CalculateMFX>()
{
    return {SENTINEL, "a", "b", "c"};
}
} // namespace effects_checks

TEST_CASE("marginal effects c: layout with a note and without")
{
    CheckNotes<AAD2c_CalculateMFX>();
}

TEST_CASE("marginal effects c: each point has its text")
{
    CheckPoints<AAD2c_CalculateMFX>();
}

TEST_CASE("marginal effects c: the user's own point")
{
    CheckOwnPoint<AAD2c_CalculateMFX>();
}

TEST_CASE("marginal effects c: no names, and a thousand")
{
    CheckLists<AAD2c_CalculateMFX>();
}

TEST_CASE("marginal effects c: by hand")
{
    CheckByHand<AAD2c_CalculateMFX>("AAD2c_CalculateMFX");
}

TEST_CASE("marginal effects c: three types")
{
    CheckTypes<AAD2c_CalculateMFX>({"a", "b", "c"});
    CheckSentinels<AAD2c_CalculateMFX>({"first", "second", "third"});
}
