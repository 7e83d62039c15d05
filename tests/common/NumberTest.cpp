#include <catch2/catch.hpp>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>

#include "common/Number.h"

namespace
{
std::string Streamed(double value)
{
    std::ostringstream stream;
    stream << value;
    return stream.str();
}
} // namespace

TEST_CASE("special values are written as a default stream writes them")
{
    using Limits = std::numeric_limits<double>;
    double const values[] = {0.0, -0.0, 1.0, -1.0, 100000.0, 999999.5, 1000000.0, 1234567.0, 0.0001, 0.00001,
                             0.000099999949, Limits::min(), Limits::max(), -Limits::max(),
                             Limits::denorm_min(), -Limits::denorm_min(), Limits::epsilon(),
                             Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                             -Limits::quiet_NaN(), 1e100, 1e-100, 1e10, 123456.5, 0.1, 1.0 / 3.0};
    zenqo::NumberText text;
    for (double const value : values)
    {
        INFO(value);
        CHECK(zenqo::FormatNumber(value) == Streamed(value));
        CHECK(zenqo::FormatNumberWide(value).ToStdString() == Streamed(value));
        CHECK(text.Of(value).ToStdString() == Streamed(value));
    }
    CHECK(zenqo::FormatNumber(std::nan("")) == "nan");
    CHECK(zenqo::FormatNumber(std::copysign(std::nan(""), -1.0)) == "-nan");
    CHECK(zenqo::FormatNumber(1234567.0) == "1.23457e+06");
}

TEST_CASE("200,000 random bit patterns are written as a default stream writes them")
{
    auto const seed = GENERATE(1u, 20261121u);
    CAPTURE(seed);
    std::mt19937_64 random(seed);
    for (int i = 0; i < 100000; ++i)
    {
        auto const bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        auto const streamed = Streamed(value);
        if (zenqo::FormatNumber(value) != streamed)
            FAIL("for " << streamed << " stands " << zenqo::FormatNumber(value));
    }
    SUCCEED();
}
