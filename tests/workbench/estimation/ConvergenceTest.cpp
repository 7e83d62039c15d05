#include "workbench/estimation/Convergence.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/plot/Autocorrelation.h"

using workbench::EffectiveSize;
using workbench::RHat;

namespace
{
/// x(t) = phi x(t - 1) + u - 1/2, u by the generator 16807 s mod 2^31 - 1.
Eigen::VectorXd Series(Eigen::Index n, double phi, std::uint64_t seed)
{
    Eigen::VectorXd series(n);
    double x = 0;
    for (double& value : series)
    {
        seed = seed * 16807 % 2147483647;
        value = x = phi * x + static_cast<double>(seed) / 2147483647.0 - 0.5;
    }
    return series;
}

Eigen::MatrixXd Chains(Eigen::Index n, double phi, int chains)
{
    Eigen::MatrixXd all(n, chains);
    for (int chain = 0; chain < chains; ++chain)
        all.col(chain) = Series(n, phi, static_cast<std::uint64_t>(1 + chain));
    return all;
}
} // namespace

// The expected numbers are those of the formulas, written down in another language with plain sums.

TEST_CASE("the effective size is that of the formulas")
{
    CHECK(EffectiveSize(Chains(100, 0.5, 2)) == Approx(91.21463883457946).epsilon(1e-10));
    CHECK(EffectiveSize(Chains(301, 0.95, 3)) == Approx(30.250821682551155).epsilon(1e-10));
    // Draws that swing to and fro are worth more than independent ones, but not without limit.
    CHECK(EffectiveSize(Chains(500, -0.6, 1)) == Approx(500 * std::log10(500)).epsilon(1e-10));
    // Many lags, and so the way through the spectrum.
    CHECK(EffectiveSize(Chains(1000, 0.999, 2)) == Approx(3.6118542035818297).epsilon(1e-8));
    CHECK(EffectiveSize(Eigen::Vector4d(1, 2, 1, 3)) == Approx(2.4082399653118496).epsilon(1e-10));
}

TEST_CASE("R-hat is that of the formulas, and sees chains that differ in place or in width")
{
    CHECK(RHat(Chains(100, 0.5, 2)) == Approx(1.0252282353060382).epsilon(1e-9));
    CHECK(RHat(Chains(301, 0.95, 3)) == Approx(1.072309981708328).epsilon(1e-9));
    CHECK(RHat(Chains(500, -0.6, 1)) == Approx(0.9997308188570683).epsilon(1e-9));
    CHECK(RHat(Chains(1000, 0.999, 2)) == Approx(1.6426719788839126).epsilon(1e-9));
    auto shifted = Chains(200, 0.3, 2);
    shifted.col(1).array() += 0.3;
    CHECK(RHat(shifted) == Approx(1.1586680248397436).epsilon(1e-9));
    CHECK(EffectiveSize(shifted) == Approx(11.689138761976174).epsilon(1e-9));
    auto wide = Chains(200, 0.3, 2);
    wide.col(1) *= 3;
    CHECK(RHat(wide) == Approx(1.269303523794407).epsilon(1e-9));
    // Ranks do not see how far away a draw is.
    wide(17, 0) = 1e300;
    CHECK(RHat(wide) < 1.4);
}

TEST_CASE("the effective size of an autoregressive series is near the theory's")
{
    // (1 - phi) / (1 + phi) of all draws.
    for (double const phi : {0.0, 0.3, 0.8, 0.95})
    {
        CAPTURE(phi);
        double const expected = 40000 * (1 - phi) / (1 + phi);
        CHECK(EffectiveSize(Chains(20000, phi, 2)) == Approx(expected).epsilon(0.15));
        CHECK(RHat(Chains(20000, phi, 2)) < 1.01);
    }
}

TEST_CASE("draws that tell nothing of convergence give none")
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    for (auto const& chains :
         {Eigen::MatrixXd(0, 0), Eigen::MatrixXd(0, 2), Eigen::MatrixXd(7, 0),
          Eigen::MatrixXd::Random(1, 1).eval(), Eigen::MatrixXd::Random(3, 5).eval(),
          Eigen::MatrixXd::Constant(10, 2, 0.1).eval(),
          (Eigen::MatrixXd(4, 1) << 1, 2, nan, 4).finished(),
          (Eigen::MatrixXd(4, 1) << 1, 2, inf, 4).finished()})
    {
        CHECK(std::isnan(EffectiveSize(chains)));
        CHECK(std::isnan(RHat(chains)));
    }
}

TEST_CASE("a chain that stands still somewhere else is no agreement")
{
    Eigen::MatrixXd chains(100, 2);
    chains << Eigen::VectorXd::Constant(100, 1.0), Eigen::VectorXd::Constant(100, 2.0);
    CHECK(RHat(chains) > 1e6);
    CHECK(EffectiveSize(chains) < 10);
    chains.col(0) = Series(100, 0.2, 1);
    CHECK(RHat(chains) > 2);
}
