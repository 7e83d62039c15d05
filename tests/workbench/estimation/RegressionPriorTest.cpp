#include "workbench/estimation/RegressionPrior.h"

#include <catch2/catch.hpp>

#include <limits>

#include "workbench/Scratch.h"

using workbench::RegressionPrior;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();
double const INF = std::numeric_limits<double>::infinity();

/// What is said of a prior for two coefficients that `change` has changed.
template <class Change>
std::string Refusal(Change const& change)
{
    auto prior = workbench::DefaultRegressionPrior(2);
    change(prior);
    return ErrorOf([&] { workbench::CheckRegressionPrior(prior, 2); });
}

std::string RefusedPrecision(double a, double b, double c, double d)
{
    return Refusal([&](RegressionPrior& prior) { prior.precision << a, b, c, d; });
}
} // namespace

TEST_CASE("the default prior is the one that is documented")
{
    auto const prior = workbench::DefaultRegressionPrior(3);
    CHECK(prior.mean == Eigen::VectorXd::Zero(3));
    CHECK(prior.precision == 0.0001 * Eigen::MatrixXd::Identity(3, 3));
    CHECK(prior.shape == 0.001);
    CHECK(prior.rate == 0.001);
    CHECK(Refusal([](RegressionPrior&) {}) == "(no error)");
}

TEST_CASE("a prior of the wrong size or without finite numbers is refused")
{
    CHECK(Refusal([](RegressionPrior& prior) { prior.mean.resize(3); })
          == "the prior mean has 3 elements, but the number of coefficients is 2");
    CHECK(Refusal([](RegressionPrior& prior) { prior.mean[1] = NA; })
          == "the prior mean has elements that are no finite numbers");
    CHECK(Refusal([](RegressionPrior& prior) { prior.precision.resize(2, 3); })
          == "the prior precision is 2 x 3, but should be 2 x 2");
    CHECK(RefusedPrecision(1, 0, 0, NA)
          == "the prior precision has elements that are no finite numbers");
    CHECK(RefusedPrecision(INF, 0, 0, 1)
          == "the prior precision has elements that are no finite numbers");
    for (double const bad : {0.0, -1.0, NA, INF})
    {
        CHECK(Refusal([&](RegressionPrior& prior) { prior.shape = bad; })
              == "the shape of the prior of tau must be a positive number");
        CHECK(Refusal([&](RegressionPrior& prior) { prior.rate = bad; })
              == "the rate of the prior of tau must be a positive number");
    }
}

TEST_CASE("a precision that is none is refused")
{
    CHECK(RefusedPrecision(1, 0.5, 0.4, 1) == "the prior precision is not symmetric");
    CHECK(RefusedPrecision(1, 0.5, -0.5, 1) == "the prior precision is not symmetric");
    auto const indefinite = "the prior precision is not positive definite";
    CHECK(RefusedPrecision(0, 0, 0, 0) == indefinite);
    CHECK(RefusedPrecision(-1, 0, 0, 1) == indefinite);
    CHECK(RefusedPrecision(1, 2, 2, 1) == indefinite);
    CHECK(RefusedPrecision(1, 1, 1, 1) == indefinite);
    CHECK(RefusedPrecision(0.01, 0.1, 0.1, 1) == indefinite);
    // As it comes from a cell of six digits, or from a computation.
    CHECK(RefusedPrecision(1, 0.3, 0.3 + 1e-16, 1) == "(no error)");
    CHECK(RefusedPrecision(1e-30, 0, 0, 1e30) == "(no error)");
    CHECK(RefusedPrecision(1, 0.999999, 0.999999, 1) == "(no error)");
}
