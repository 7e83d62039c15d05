#include "pickers/GibbsPicker.h"

#include "pickers/GibbsChecks.h"

using namespace gibbs_checks;

TEST_CASE("Gibbs picker: five labelled fields under each other")
{
    Layout<GibbsPicker>(
        {"Retained draws per chain:", "Burnin per chain:", "Number of chains:", "Thinning:", "Seed:"});
}

TEST_CASE("Gibbs picker: the engine's defaults are shown truncated")
{
    DefaultsAreTruncated<GibbsPicker>();
}

TEST_CASE("Gibbs picker: each getter gives the text of its field")
{
    TextAsItStands<GibbsPicker>();
}

TEST_CASE("Gibbs picker: what each field takes and what it refuses")
{
    Conversions<GibbsPicker>(BURNIN, BAD_BURNIN);
    Conversions<GibbsPicker>(CHAINS, BAD_CHAINS);
    Conversions<GibbsPicker>(THIN, BAD_THIN);
    Conversions<GibbsPicker>(SEED, BAD_SEED);
}

TEST_CASE("Gibbs picker: the first wrong field is told, the retained draws never are")
{
    OrderOfChecks<GibbsPicker>(
        {{BURNIN, BAD_BURNIN}, {CHAINS, BAD_CHAINS}, {THIN, BAD_THIN}, {SEED, BAD_SEED}});
}

TEST_CASE("Gibbs picker: filled in by hand")
{
    ByHand<GibbsPicker>(5, "GibbsPicker");
}

TEST_CASE("Gibbs picker: fewer than five defaults end the program")
{
    CHECK_THAT(LastWords("a Gibbs picker with four defaults"),
               Catch::Contains("GLOBAL_Gibbs holds 4 entries where 5 are needed"));
}
