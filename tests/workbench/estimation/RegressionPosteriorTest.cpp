#include "workbench/estimation/RegressionPosterior.h"

#include <catch2/catch.hpp>

#include <cmath>

#include <Eigen/Dense>

#include "workbench/Scratch.h"
#include "workbench/estimation/ExactRegression.h"
#include "workbench/estimation/NistData.h"

using workbench::RegressionPosterior;
using workbench::RegressionPrior;

namespace
{
struct Example
{
    Example() : x(9, 3), y(9), prior{Eigen::Vector3d(1, 0.5, -2), Eigen::MatrixXd(3, 3), 3.0, 2.0}
    {
        for (Eigen::Index i = 0; i < 9; ++i)
        {
            double const t = static_cast<double>(i);
            x.row(i) << 1, t, std::sin(t);
            y[i] = std::cos(2 * t) + 0.3 * t;
        }
        prior.precision << 1.0, 0.2, 0.1, 0.2, 0.5, 0.0, 0.1, 0.0, 2.0;
    }

    Eigen::MatrixXd PrecisionAt(double tau) const { return prior.precision + tau * x.transpose() * x; }

    Eigen::MatrixXd x;
    Eigen::VectorXd y;
    RegressionPrior prior;
};
} // namespace

TEST_CASE("the rotated coordinates give the conditional posterior of the textbook")
{
    Example const example;
    RegressionPosterior const posterior(Reduce(example.x, example.y), example.prior);
    CHECK(posterior.TauShape() == 3.0 + 4.5);
    CHECK(posterior.TauRate(5.0) == 2.0 + 2.5);
    for (double const tau : {1e-6, 0.01, 0.7, 3.0, 1e5})
    {
        CAPTURE(tau);
        auto const precision = example.PrecisionAt(tau);
        Eigen::VectorXd const mean = precision.ldlt().solve(example.prior.precision * example.prior.mean
                                                            + tau * example.x.transpose() * example.y);
        CHECK((posterior.MeanAt(tau) - mean).norm() < 1e-12 * mean.norm());
        CHECK(posterior.LogDeterminantAt(tau)
              == Approx(std::log(precision.determinant())).epsilon(1e-12));
        // The covariance of beta, and the sum of squares at a beta.
        Eigen::ArrayXd const variances = (posterior.PriorPrecisions() + tau).inverse();
        CHECK((posterior.Basis() * variances.matrix().asDiagonal() * posterior.Basis().transpose())
                  .isApprox(precision.inverse(), 1e-10));
        Eigen::VectorXd const beta = posterior.Centre() + posterior.Basis() * variances.matrix();
        CHECK(posterior.Data().squares + (posterior.Home() + variances).square().sum()
              == Approx((example.y - example.x * beta).squaredNorm()).epsilon(1e-12));
    }
}

TEST_CASE("likelihood times prior is the product of the densities")
{
    Example const example;
    RegressionPosterior const posterior(Reduce(example.x, example.y), example.prior);
    Eigen::MatrixXd betas(2, 3);
    betas << 0.3, 1.2, -0.8, 10, -5, 3;
    Eigen::Vector2d const taus(0.4, 7.0);
    auto const densities = posterior.LogDensity(betas, taus, posterior.Data().SquaresAt(betas));
    double const logTwoPi = std::log(2 * M_PI);
    for (Eigen::Index i = 0; i < 2; ++i)
    {
        Eigen::VectorXd const beta = betas.row(i).transpose();
        Eigen::VectorXd const away = beta - example.prior.mean;
        double expected = 0;
        for (double const residual : example.y - example.x * beta)
            expected += 0.5 * (std::log(taus[i]) - logTwoPi - taus[i] * residual * residual);
        expected += 0.5
                    * (std::log(example.prior.precision.determinant()) - 3 * logTwoPi
                       - away.dot(example.prior.precision * away));
        expected += 3 * std::log(2.0) - std::log(2.0) + 2 * std::log(taus[i]) - 2 * taus[i];
        CHECK(densities[i] == Approx(expected).epsilon(1e-12));
    }
}

TEST_CASE("nearly collinear data and priors that know everything or nothing keep their digits")
{
    auto const& filip = Nist("Filip");
    auto const data = filip.Reduce();
    auto const with = [&](double mean, double precision)
    {
        return RegressionPosterior(data, {Eigen::VectorXd::Constant(11, mean),
                                          precision * Eigen::MatrixXd::Identity(11, 11), 1e-3, 1e-3});
    };
    auto const vague = with(0.0, 1e-30).MeanAt(1e5);
    for (Eigen::Index i = 0; i < 11; ++i)
        CHECK(vague[i] == Approx(filip.coefficients[static_cast<std::size_t>(i)]).epsilon(1e-6));
    // A prior that is sure gives its mean back to the last digits, however wild least squares are.
    auto const sure = with(0.25, 1e40);
    for (double const tau : {1e-3, 1.0, 1e5})
        CHECK((sure.MeanAt(tau).array() - 0.25).abs().maxCoeff() < 1e-12);
}

TEST_CASE("a prior for another number of coefficients is refused, and one beyond all numbers")
{
    Example example;
    CHECK(ErrorOf(
              [&] {
        RegressionPosterior(Reduce(example.x, example.y), workbench::DefaultRegressionPrior(2));
    }) == "the prior mean has 2 elements, but the number of coefficients is 3");
    example.x.col(1) *= 1e-130;
    example.prior.precision = 1e100 * Eigen::MatrixXd::Identity(3, 3);
    CHECK(ErrorOf([&] { RegressionPosterior(Reduce(example.x, example.y), example.prior); })
          == "the prior precision and the data are too many orders of magnitude apart");
}
