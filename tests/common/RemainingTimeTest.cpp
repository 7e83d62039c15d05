#include "common/RemainingTime.h"

#include <catch2/catch.hpp>

#include <limits>

namespace
{
constexpr auto MAX = std::numeric_limits<unsigned long>::max();
}

TEST_CASE("every number of seconds becomes an unsigned one")
{
    using Limits = std::numeric_limits<double>;
    CHECK(zenqo::ToUnsigned(0.0) == 0);
    CHECK(zenqo::ToUnsigned(-0.0) == 0);
    CHECK(zenqo::ToUnsigned(7.0) == 7);
    CHECK(zenqo::ToUnsigned(-1.0) == MAX);
    CHECK(zenqo::ToUnsigned(-10.0) == MAX - 9);
    CHECK(zenqo::ToUnsigned(9.3e18) == 9300000000000000000ul);
    CHECK(zenqo::ToUnsigned(18446744073709551616.0) == MAX);
    CHECK(zenqo::ToUnsigned(Limits::max()) == MAX);
    CHECK(zenqo::ToUnsigned(-Limits::max()) == 0);
    CHECK(zenqo::ToUnsigned(Limits::infinity()) == 0);
    CHECK(zenqo::ToUnsigned(-Limits::infinity()) == 0);
    CHECK(zenqo::ToUnsigned(Limits::quiet_NaN()) == 0);
}

TEST_CASE("the remaining time is estimated from a gauge of 90")
{
    CHECK(zenqo::EstimateRemaining(45, 10) == 10);
    CHECK(zenqo::EstimateRemaining(90, 10) == 0);
    CHECK(zenqo::EstimateRemaining(1, 10) == 890);
    CHECK(zenqo::EstimateRemaining(7, 10) == 119); // round(128.57...) - 10
    CHECK(zenqo::EstimateRemaining(0, 10) == 0);
    CHECK(zenqo::EstimateRemaining(0, 0) == 0);
    CHECK(zenqo::EstimateRemaining(180, 10) == MAX - 4);
}

TEST_CASE("an estimate is smoothed against what remains of the last")
{
    CHECK(zenqo::SmoothRemaining(10, 0) == 10);
    CHECK(zenqo::SmoothRemaining(10, 1) == 10);
    CHECK(zenqo::SmoothRemaining(10, 2) == 6); // round(5.5)
    CHECK(zenqo::SmoothRemaining(20, 11) == 15);
    CHECK(zenqo::SmoothRemaining(0, 90) == 45); // round(44.5)
    CHECK(zenqo::SmoothRemaining(MAX, MAX) == MAX);
    CHECK(zenqo::SmoothRemaining(MAX, 3) == MAX / 2 + 1);
}
