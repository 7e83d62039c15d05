#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/plot/Autocorrelation.h"

using namespace workbench;

namespace
{
constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();

Eigen::VectorXd Series(std::vector<double> const& values)
{
    return Eigen::Map<Eigen::VectorXd const>(values.data(), static_cast<Eigen::Index>(values.size()));
}
} // namespace

TEST_CASE("autocorrelations are those of the textbook")
{
    // Unemployment in Longley's data: summed up by hand in Python; gretl prints 0.4838, 0.1514, 0.1819.
    auto const correlations = Autocorrelations(Series({2356, 2325, 3682, 3351, 2099, 1932, 1870, 3578,
                                                       2904, 2822, 2936, 4681, 3813, 3931, 4806, 4007}),
                                               3);
    REQUIRE(correlations.size() == 3);
    CHECK(correlations[0] == Approx(0.48382639468660615).epsilon(1e-12));
    CHECK(correlations[1] == Approx(0.15137728412988308).epsilon(1e-12));
    CHECK(correlations[2] == Approx(0.18189489100209905).epsilon(1e-12));
    // Two values: deviations -1 and 1.
    CHECK(Autocorrelations(Series({1, 3}), 1)[0] == -0.5);
}

TEST_CASE("a missing value keeps its place in time")
{
    auto const correlations = Autocorrelations(Series({1, 2, MISSING, 4, 3, 7, MISSING, 5}), 7);
    CHECK(correlations[0] == Approx(0.12857142857142853).epsilon(1e-12));
    CHECK(correlations[1] == Approx(0.25714285714285723).epsilon(1e-12));
    CHECK(correlations[2] == Approx(-0.0285714285714286).epsilon(1e-12));
    CHECK(correlations[6] == Approx(-0.11428571428571428).epsilon(1e-12));
    // Before and behind the series they mean nothing.
    auto const padded = Autocorrelations(Series({MISSING, 1, 3, 2, MISSING, MISSING}), 2);
    auto const bare = Autocorrelations(Series({1, 3, 2}), 2);
    CHECK((padded - bare).norm() < 1e-15);
}

TEST_CASE("what has no autocorrelation gives none")
{
    CHECK(Autocorrelations(Series({4, 4, 4}), 2).array().isNaN().all());
    CHECK(Autocorrelations(Series({4}), 1).array().isNaN().all());
    CHECK(Autocorrelations(Series({}), 1).array().isNaN().all());
    CHECK(Autocorrelations(Series({MISSING, MISSING}), 1).array().isNaN().all());
    auto const gaps = Autocorrelations(Series({1, MISSING, 2, MISSING, 3}), 2);
    CHECK(std::isnan(gaps[0]));
    CHECK_FALSE(std::isnan(gaps[1]));
    CHECK(std::isnan(Autocorrelations(Series({1, 2}), 5)[4]));
}

TEST_CASE("values of any size have autocorrelations")
{
    for (double const size : {1e-200, 1e150})
        CHECK(Autocorrelations(size * Series({1, 2, 4, 3}), 1)[0]
              == Approx(Autocorrelations(Series({1, 2, 4, 3}), 1)[0]));
}

TEST_CASE("a correlogram has 10 log10 n lags and a band of 1.96 standard errors")
{
    CHECK(CorrelogramLags(2) == 1);
    CHECK(CorrelogramLags(16) == 12);
    CHECK(CorrelogramLags(100) == 20);
    CHECK(CorrelogramLags(153) == 21);
    CHECK(WhiteNoiseBand(100) == Approx(0.19599639845400545));
}

TEST_CASE("many lags, which are found by way of the spectrum, are the same as few")
{
    // x(t) = 0.9 x(t - 1) + u - 1/2; the expected values were summed up in Python.
    Eigen::VectorXd series(500);
    double x = 0;
    std::uint64_t seed = 5;
    for (double& value : series)
    {
        seed = seed * 16807 % 2147483647;
        value = x = 0.9 * x + static_cast<double>(seed) / 2147483647.0 - 0.5;
    }
    auto const many = Autocorrelations(series, 600);
    REQUIRE(many.size() == 600);
    auto const few = Autocorrelations(series, 64);
    CHECK((many.head(64) - few).cwiseAbs().maxCoeff() < 1e-13);
    CHECK(few[0] == Approx(0.8876911456081059).epsilon(1e-12));
    CHECK(few[63] == Approx(0.034522660223320706).epsilon(1e-11));
    CHECK(many[64] == Approx(0.04728801268095606).epsilon(1e-11));
    CHECK(many[127] == Approx(-0.24664802169154842).epsilon(1e-11));
    CHECK(many[498] == Approx(0.0005194765153875597).epsilon(1e-9));
    CHECK(many.tail(101).array().isNaN().all());

    for (Eigen::Index missing : {0, 3, 77, 200, 499})
        series[missing] = MISSING;
    CHECK((Autocorrelations(series, 400).head(64) - Autocorrelations(series, 64)).cwiseAbs().maxCoeff()
          < 1e-13);
    CHECK(Autocorrelations(Series({1, 3}), 100)[0] == Approx(-0.5));
    CHECK(Autocorrelations(Series({1, 3}), 100).tail(99).array().isNaN().all());
    CHECK(Autocorrelations(Series({}), 100).array().isNaN().all());
}
