#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "common/Truncate.h"

using zenqo::Truncate;

TEMPLATE_TEST_CASE("a double is truncated toward zero, and kept in range", "", int, long long)
{
    using Double = std::numeric_limits<double>;
    auto const highest = std::numeric_limits<TestType>::max();
    auto const lowest = std::numeric_limits<TestType>::min();
    CHECK(Truncate<TestType>(0.0) == 0);
    CHECK(Truncate<TestType>(-0.0) == 0);
    CHECK(Truncate<TestType>(0.999999) == 0);
    CHECK(Truncate<TestType>(-0.999999) == 0);
    CHECK(Truncate<TestType>(2.7) == 2);
    CHECK(Truncate<TestType>(-2.7) == -2);
    CHECK(Truncate<TestType>(Double::denorm_min()) == 0);
    CHECK(Truncate<TestType>(2147483646.9) == 2147483646);
    CHECK(Truncate<TestType>(Double::infinity()) == highest);
    CHECK(Truncate<TestType>(-Double::infinity()) == lowest);
    CHECK(Truncate<TestType>(Double::max()) == highest);
    CHECK(Truncate<TestType>(Double::lowest()) == lowest);
    CHECK(Truncate<TestType>(1e19) == highest);
    CHECK(Truncate<TestType>(-1e19) == lowest);
    CHECK(Truncate<TestType>(Double::quiet_NaN()) == 0);
    CHECK(Truncate<TestType>(-Double::quiet_NaN()) == 0);
    CHECK(Truncate<TestType>(static_cast<double>(lowest)) == lowest);
}

TEST_CASE("the ends of the ranges are met exactly")
{
    CHECK(Truncate<int>(2147483647.0) == 2147483647);
    CHECK(Truncate<int>(2147483647.5) == 2147483647);
    CHECK(Truncate<int>(2147483648.0) == 2147483647);
    CHECK(Truncate<int>(-2147483648.0) == -2147483647 - 1);
    CHECK(Truncate<int>(-2147483648.5) == -2147483647 - 1);
    CHECK(Truncate<int>(-2147483647.5) == -2147483647);
    double const beyond = 9223372036854775808.0;
    CHECK(Truncate<long long>(beyond) == 9223372036854775807LL);
    CHECK(Truncate<long long>(std::nextafter(beyond, 0.0)) == 9223372036854774784LL);
    CHECK(Truncate<long long>(-beyond) == -9223372036854775807LL - 1);
    CHECK(Truncate<long long>(9007199254740993.0) == 9007199254740992LL);
}
