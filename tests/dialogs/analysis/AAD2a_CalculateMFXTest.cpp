#include "dialogs/analysis/AAD2a_CalculateMFX.h"

#include "dialogs/analysis/EffectsChecks.h"

using namespace effects_checks;

namespace effects_checks
{
template <>
Arguments TypesOf<AAD2a_CalculateMFX>()
{
    return {};
}
} // namespace effects_checks

TEST_CASE("marginal effects a: layout with a note and without")
{
    CheckNotes<AAD2a_CalculateMFX>();
}

TEST_CASE("marginal effects a: each point has its text")
{
    CheckPoints<AAD2a_CalculateMFX>();
}

TEST_CASE("marginal effects a: the user's own point")
{
    CheckOwnPoint<AAD2a_CalculateMFX>();
}

TEST_CASE("marginal effects a: no names, and a thousand")
{
    CheckLists<AAD2a_CalculateMFX>();
}

TEST_CASE("marginal effects a: by hand")
{
    CheckByHand<AAD2a_CalculateMFX>("AAD2a_CalculateMFX");
}

TEST_CASE("marginal effects a: all entries behind the note are names")
{
    EffectsFixture<AAD2a_CalculateMFX> fixture({SENTINEL, "x", SENTINEL, ""});
    Choose(fixture.custom);
    CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[0, 0, 0, 0]\n\t");
    fixture.PressDefine(wxID_CANCEL,
                        [](wxGrid* grid)
                        {
                            CHECK(number_grid_checks::RowLabels(grid)
                                  == number_grid_checks::Texts{SENTINEL, "x", SENTINEL, ""});
                        });
    CHECK(FindAll<wxRadioButton>(&fixture.dialog).size() == 4);
}
