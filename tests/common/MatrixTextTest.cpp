#include <catch2/catch.hpp>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>

#include "common/MatrixText.h"

namespace
{
std::string Streamed(Eigen::MatrixXd const& matrix, Eigen::IOFormat const& format)
{
    std::ostringstream stream;
    stream << matrix.format(format);
    return stream.str();
}
} // namespace

TEST_CASE("random matrices are written as Eigen writes them, in every kind of format")
{
    auto const seed = GENERATE(range(1u, 5u));
    CAPTURE(seed);
    std::mt19937_64 random(seed);
    int const precisions[] = {Eigen::StreamPrecision, Eigen::FullPrecision, 0, 1, 3, 6, 10, 17, 30};
    for (int round = 0; round < 300; ++round)
    {
        Eigen::MatrixXd matrix(static_cast<Eigen::Index>(random() % 6), static_cast<Eigen::Index>(random() % 5));
        for (Eigen::Index i = 0; i < matrix.size(); ++i)
        {
            auto const bits = random();
            std::memcpy(&matrix.data()[i], &bits, sizeof bits);
            if (random() % 2)
                matrix.data()[i] = static_cast<double>(random() % 2000) / 8 - 100;
        }
        Eigen::IOFormat const format(precisions[random() % 9], random() % 2 ? Eigen::DontAlignCols : 0,
                                     random() % 2 ? "\t" : ", ", random() % 2 ? "\n" : ";\n  ",
                                     random() % 2 ? "[" : "", random() % 2 ? "]" : "",
                                     random() % 2 ? "<<\n" : "", random() % 2 ? "\n>>" : "",
                                     random() % 2 ? ' ' : '*');
        REQUIRE(zenqo::MatrixText(matrix, format) == Streamed(matrix, format));
    }
}

TEST_CASE("special values are written as Eigen writes them")
{
    using Limits = std::numeric_limits<double>;
    Eigen::MatrixXd matrix(4, 2);
    matrix << Limits::quiet_NaN(), -Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), -0.0,
        Limits::denorm_min(), Limits::max(), 1234567.0;
    Eigen::IOFormat const format(6, 0, "\t");
    CHECK(zenqo::MatrixText(matrix, format) == Streamed(matrix, format));
}
