#include "workbench/estimation/SamplerSettings.h"

#include <catch2/catch.hpp>

#include <limits>

#include "engine/Globals.h"
#include "workbench/Scratch.h"

using workbench::MakeSamplerSettings;

namespace
{
std::string Refusal(Eigen::Index index, double value)
{
    Eigen::VectorXd numbers = Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs;
    numbers[index] = value;
    return ErrorOf([&] { MakeSamplerSettings(numbers); });
}
} // namespace

TEST_CASE("settings come from five numbers and go back to them")
{
    Eigen::VectorXd numbers(5);
    numbers << 500, 0, 4, 3, 9007199254740992.0;
    auto const settings = MakeSamplerSettings(numbers);
    CHECK(settings.draws == 500);
    CHECK(settings.burnIn == 0);
    CHECK(settings.chains == 4);
    CHECK(settings.thin == 3);
    CHECK(settings.seed == 9007199254740992u);
    CHECK(settings.Iterations() == 1500);
    CHECK(workbench::NumbersOf(settings).transpose() == numbers);

    auto const usual = MakeSamplerSettings(Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs);
    CHECK(usual.draws == 20000);
    CHECK(usual.burnIn == 10000);
    CHECK(usual.chains == 1);
    CHECK(usual.thin == 1);
    CHECK(usual.seed == 42);
    CHECK(usual.Iterations() == 30000);
}

TEST_CASE("settings that are none are refused in words")
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    for (double const bad : {0.0, -1.0, 1.5, nan, -inf})
    {
        CHECK(Refusal(0, bad) == "the number of draws must be a positive whole number");
        CHECK(Refusal(2, bad) == "the number of chains must be a positive whole number");
        CHECK(Refusal(3, bad) == "the thinning must be a positive whole number");
        CHECK(Refusal(4, bad) == "the seed must be a positive whole number");
    }
    for (double const bad : {-1.0, 1.5, nan, -inf})
        CHECK(Refusal(1, bad) == "the burn-in must be a whole number, 0 or more");
    CHECK(Refusal(1, 0) == "(no error)");
    CHECK(Refusal(0, inf) == "the number of draws is too large");
    CHECK(Refusal(1, 1e300) == "the burn-in is too large");
    CHECK(Refusal(2, 3e9) == "the number of chains is too large");
    CHECK(Refusal(3, 1e16) == "the thinning is too large");
    CHECK(Refusal(4, 1e16) == "the seed is too large");
    CHECK(Refusal(3, 1e15) == "the sampler would have to make too many iterations");
    CHECK(ErrorOf([] { MakeSamplerSettings(Eigen::VectorXd::Ones(4)); })
          == "the settings of a sampler are five numbers");
}
