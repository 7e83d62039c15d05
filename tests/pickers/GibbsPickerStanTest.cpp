#include "pickers/GibbsPickerStan.h"

#include "pickers/GibbsChecks.h"

using namespace gibbs_checks;

TEST_CASE("Gibbs picker for Stan: six labelled fields under each other")
{
    Layout<GibbsPickerStan>({"Retained draws per chain:", "Burnin per chain:",
                             "Number of chains:", "Thinning:", "Seed:", "Refresh:"});
}

TEST_CASE("Gibbs picker for Stan: the engine's defaults are shown truncated")
{
    DefaultsAreTruncated<GibbsPickerStan>();
}

TEST_CASE("Gibbs picker for Stan: refresh starts at 1000 whatever the defaults are")
{
    Stage stage;
    CHECK((new GibbsPickerStan(stage.Frame()))->GetRefresh() == "1000");
    Defaults const other({1, 2, 3, 4, 5, 6, 7});
    CHECK((new GibbsPickerStan(stage.Frame()))->GetRefresh() == "1000");
}

TEST_CASE("Gibbs picker for Stan: each getter gives the text of its field")
{
    TextAsItStands<GibbsPickerStan>();
    Stage stage;
    auto* const picker = new GibbsPickerStan(stage.Frame());
    Field(picker, REFRESH)->SetValue(" often ");
    CHECK(picker->GetRefresh() == " often ");
}

TEST_CASE("Gibbs picker for Stan: what each field takes and what it refuses")
{
    Conversions<GibbsPickerStan>(BURNIN, BAD_BURNIN);
    Conversions<GibbsPickerStan>(CHAINS, BAD_CHAINS);
    Conversions<GibbsPickerStan>(THIN, BAD_THIN);
    Conversions<GibbsPickerStan>(SEED, BAD_SEED);
    Conversions<GibbsPickerStan>(REFRESH, BAD_REFRESH);
}

TEST_CASE("Gibbs picker for Stan: the first wrong field is told, the retained draws never are")
{
    OrderOfChecks<GibbsPickerStan>({{BURNIN, BAD_BURNIN},
                                    {CHAINS, BAD_CHAINS},
                                    {THIN, BAD_THIN},
                                    {SEED, BAD_SEED},
                                    {REFRESH, BAD_REFRESH}});
}

TEST_CASE("Gibbs picker for Stan: filled in by hand")
{
    ByHand<GibbsPickerStan>(6, "GibbsPickerStan");
}

TEST_CASE("Gibbs picker for Stan: fewer than five defaults end the program")
{
    CHECK_THAT(LastWords("a Gibbs picker for Stan without defaults"),
               Catch::Contains("GLOBAL_Gibbs holds 0 entries where 5 are needed"));
}
