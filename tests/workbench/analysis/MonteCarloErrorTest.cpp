#include "workbench/analysis/MonteCarloError.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>
#include <random>


namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

double ErrorOfMean(Eigen::ArrayXd const& values, int chains = 1)
{
    return workbench::MonteCarloError(values, chains);
}

/// Zeros and ones, `share` of them ones, each draw standing `times` times.
Eigen::ArrayXd Coins(Eigen::Index count, double share, Eigen::Index times = 1)
{
    std::mt19937_64 random(7);
    Eigen::ArrayXd coins(count);
    for (Eigen::Index i = 0; i < count; i += times)
        coins.segment(i, times).setConstant(static_cast<double>(random()) < share * 0x1p64 ? 1.0 : 0.0);
    return coins;
}
} // namespace

TEST_CASE("of independent draws the error is that of a share")
{
    CHECK(ErrorOfMean(Coins(20000, 0.3)) == Approx(std::sqrt(0.3 * 0.7 / 20000)).epsilon(0.1));
    CHECK(ErrorOfMean(Coins(20000, 0.3), 4) == Approx(std::sqrt(0.3 * 0.7 / 20000)).epsilon(0.1));
}

TEST_CASE("draws that stay where they are count as fewer")
{
    // Of 20,000 draws 2,000 are new ones.
    CHECK(ErrorOfMean(Coins(20000, 0.3, 10)) == Approx(std::sqrt(0.3 * 0.7 / 2000)).epsilon(0.15));
}

TEST_CASE("chains that do not agree make the error larger")
{
    Eigen::ArrayXd apart = Coins(4000, 0.5);
    apart.head(2000) = apart.head(2000).min(Coins(2000, 0.02));
    CHECK(ErrorOfMean(apart, 2) > 5 * std::sqrt(0.25 * 0.75 / 4000));
}

TEST_CASE("draws without a value are left out")
{
    Eigen::ArrayXd gaps(40000);
    auto const coins = Coins(20000, 0.3);
    for (Eigen::Index i = 0; i < 20000; ++i)
        gaps.segment(2 * i, 2) << coins[i], NA;
    CHECK(ErrorOfMean(gaps) == Approx(std::sqrt(0.3 * 0.7 / 20000)).epsilon(0.1));
    CHECK(ErrorOfMean(gaps, 2) == Approx(std::sqrt(0.3 * 0.7 / 20000)).epsilon(0.1));
}

TEST_CASE("equal values have no error, and no values none that could be told")
{
    CHECK(ErrorOfMean(Eigen::ArrayXd::Ones(100), 2) == 0.0);
    CHECK(ErrorOfMean(Eigen::ArrayXd::Zero(1)) == 0.0);
    CHECK(ErrorOfMean((Eigen::ArrayXd(4) << NA, 1, 1, NA).finished()) == 0.0);
    CHECK(std::isnan(ErrorOfMean(Eigen::ArrayXd::Constant(10, NA))));
}

TEST_CASE("chains of fewer than four draws tell no error")
{
    CHECK(std::isnan(ErrorOfMean((Eigen::ArrayXd(6) << 0, 1, 1, 0, 1, 0).finished(), 2)));
}
