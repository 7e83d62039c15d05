#include "workbench/estimation/MarginalLikelihood.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include <Eigen/Dense>

#include "workbench/engine/Progress.h"
#include "workbench/estimation/ExactRegression.h"
#include "workbench/estimation/RegressionChain.h"

using workbench::RegressionPosterior;
using workbench::RegressionPrior;

namespace
{
struct Case
{
    Case() : x(20, 2), y(20)
    {
        for (Eigen::Index i = 0; i < 20; ++i)
        {
            double const t = static_cast<double>(i);
            x.row(i) << 1, std::sin(t);
            y[i] = 0.5 - x(i, 1) + std::cos(5 * t);
        }
    }

    /// The estimates from many draws.
    Eigen::MatrixXd Estimate(RegressionPrior const& prior) const
    {
        RegressionPosterior const posterior(Reduce(x, y), prior);
        workbench::Progress progress;
        auto const draws = workbench::RunChains(
            {5000, 100, 2, 1, 11}, 4,
            [&](int chain)
            {
            return std::make_unique<workbench::RegressionChain>(posterior,
                                                                workbench::MakeRandomStream(11, chain));
            },
            progress);
        return workbench::RegressionLogMarginals(posterior, draws);
    }

    Eigen::MatrixXd x;
    Eigen::VectorXd y;
};

double const LOG_TWO_PI = std::log(2 * M_PI);
} // namespace

TEST_CASE("with tau known the marginal likelihood is that of a normal distribution")
{
    Case const data;
    Eigen::MatrixXd precision(2, 2);
    precision << 0.5, 0.1, 0.1, 2.0;
    RegressionPrior const prior{Eigen::Vector2d(1, -0.5), precision, 2e10, 1e10};
    Eigen::MatrixXd const covariance =
        0.5 * Eigen::MatrixXd::Identity(20, 20) + data.x * precision.inverse() * data.x.transpose();
    Eigen::VectorXd const away = data.y - data.x * prior.mean;
    double const exact = -0.5
                         * (20 * LOG_TWO_PI + std::log(covariance.determinant())
                            + away.dot(covariance.ldlt().solve(away)));
    auto const both = data.Estimate(prior);
    CHECK(both(0, 0) == Approx(exact).margin(0.05));
    CHECK(both(0, 1) == Approx(exact).margin(1e-4));
}

TEST_CASE("with beta known the marginal likelihood is that of a t distribution")
{
    Case const data;
    RegressionPrior const prior{Eigen::Vector2d(0.4, -0.9), 1e14 * Eigen::MatrixXd::Identity(2, 2), 3,
                                2};
    double const squares = (data.y - data.x * prior.mean).squaredNorm();
    double const exact = -10 * LOG_TWO_PI + 3 * std::log(2.0) - std::lgamma(3.0) + std::lgamma(13.0)
                         - 13 * std::log(2 + 0.5 * squares);
    auto const both = data.Estimate(prior);
    CHECK(both(0, 0) == Approx(exact).margin(0.05));
    CHECK(both(0, 1) == Approx(exact).margin(1e-4));
}

TEST_CASE("otherwise it is what numerical integration gives")
{
    Case const data;
    for (double const precision : {1e-4, 1.0, 100.0})
    {
        RegressionPrior const prior{Eigen::Vector2d(0, 0), precision * Eigen::MatrixXd::Identity(2, 2),
                                    0.001, 0.001};
        double const exact = ExactRegression(data.x, data.y, prior).LogMarginal();
        auto const both = data.Estimate(prior);
        CAPTURE(precision);
        CHECK(both(0, 0) == Approx(exact).margin(0.25));
        CHECK(both(0, 1) == Approx(exact).margin(0.01));
    }
}

TEST_CASE("the Laplace-Metropolis estimator is right for draws from a normal density")
{
    // Points whose covariance is known, and a density exp(5) times that of N(c, V).
    Eigen::MatrixXd points(5, 2);
    points << 1, 2, 3, 4, 2, 3.5, 0, 1, -1, 2;
    Eigen::RowVector2d const mean = points.colwise().mean();
    Eigen::MatrixXd const centred = points.rowwise() - mean;
    Eigen::Matrix2d const covariance = centred.transpose() * centred / 4;
    Eigen::MatrixXd const inverse = covariance.inverse();
    auto const density = [&](Eigen::VectorXd const& point)
    {
        Eigen::VectorXd const away = point - mean.transpose();
        return 5 - LOG_TWO_PI - 0.5 * std::log(covariance.determinant())
               - 0.5 * away.dot(inverse * away);
    };
    Eigen::VectorXd densities(5);
    for (Eigen::Index i = 0; i < 5; ++i)
        densities[i] = density(points.row(i).transpose());
    CHECK(workbench::LewisRafteryLogMarginal(points, densities, density) == Approx(5).epsilon(1e-12));
    // A draw that has a higher density than the mean takes its place.
    densities[3] = density(mean.transpose()) + 1;
    CHECK(workbench::LewisRafteryLogMarginal(points, densities, density) == Approx(6).epsilon(1e-12));

    auto const isNothing = [&](Eigen::MatrixXd const& some)
    {
        return std::isnan(workbench::LewisRafteryLogMarginal(some, Eigen::VectorXd::Zero(some.rows()),
                                                             [](auto const&) { return 0.0; }));
    };
    CHECK(isNothing(Eigen::MatrixXd(0, 2)));
    CHECK(isNothing(points.topRows(1)));
    CHECK(isNothing(points.topRows(2)));
    CHECK_FALSE(isNothing(points.topRows(3)));
    CHECK(isNothing(Eigen::MatrixXd::Constant(10, 2, 0.5)));
}

TEST_CASE("few draws give the estimate that they can give")
{
    Case const data;
    RegressionPosterior const posterior(Reduce(data.x, data.y), workbench::DefaultRegressionPrior(2));
    Eigen::MatrixXd draw(1, 3);
    draw << 0.5, -1, 2;
    auto const one = workbench::RegressionLogMarginals(posterior, draw);
    CHECK(std::isnan(one(0, 0)));
    CHECK(std::isfinite(one(0, 1)));
    auto const none = workbench::RegressionLogMarginals(posterior, Eigen::MatrixXd(0, 3));
    CHECK(std::isnan(none(0, 0)));
    CHECK(std::isnan(none(0, 1)));
}

TEST_CASE("the mean of numbers of any size is found from their logarithms")
{
    CHECK(workbench::LogMeanExp(Eigen::Vector2d(std::log(1.0), std::log(3.0))) == Approx(std::log(2.0)));
    CHECK(workbench::LogMeanExp(Eigen::Vector3d(1000, 1000, 1000)) == Approx(1000));
    CHECK(workbench::LogMeanExp(Eigen::Vector2d(-2000, -5000)) == Approx(-2000 - std::log(2.0)));
    CHECK(std::isnan(workbench::LogMeanExp(Eigen::VectorXd())));
}
