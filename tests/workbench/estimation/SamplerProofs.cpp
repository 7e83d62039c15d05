#include "workbench/estimation/SamplerProofs.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <boost/random/gamma_distribution.hpp>
#include <boost/random/normal_distribution.hpp>

#include <Eigen/Dense>

#include "workbench/engine/Progress.h"
#include "workbench/estimation/Convergence.h"
#include "workbench/estimation/ExactRegression.h"
#include "workbench/estimation/MarginalLikelihood.h"

using workbench::RandomStream;
using workbench::RegressionPosterior;
using workbench::RegressionPrior;

namespace
{
/// Enough columns for the draws of any sampler here.
Eigen::Index Columns(RegressionPosterior const& posterior)
{
    return posterior.Data().Coefficients() + 2;
}

Eigen::MatrixXd Run(RegressionSampler const& sampler, RegressionPosterior const& posterior, int draws,
                    int thin = 1)
{
    auto const random = workbench::MakeRandomStream(2026, 0);
    auto const chain = sampler(posterior, random, posterior.Pivot());
    Eigen::MatrixXd all = Eigen::MatrixXd::Zero(draws, Columns(posterior));
    for (int i = -100; i < draws; ++i)
    {
        for (int skipped = 0; skipped < thin; ++skipped)
            chain->Step();
        if (i >= 0)
            chain->Write(all.row(i));
    }
    return all;
}

/// By how many of its standard errors the mean of `draws` is off `expected`.
double Off(Eigen::VectorXd const& draws, double expected)
{
    double const deviation = std::sqrt((draws.array() - draws.mean()).square().mean());
    return std::abs(draws.mean() - expected) / (deviation / std::sqrt(workbench::EffectiveSize(draws)));
}

/// The same of the part of `draws` below `quantile`, which should be `expected`.
double OffPart(Eigen::VectorXd const& draws, double quantile, double expected)
{
    Eigen::VectorXd const below = (draws.array() < quantile).cast<double>();
    if (below.minCoeff() == below.maxCoeff())
        return 1e3;
    double const size = workbench::EffectiveSize(below);
    return std::abs(below.mean() - expected) / std::sqrt(expected * (1.0 - expected) / size);
}

/// A small regression with correlated regressors and a prior that has a say in it.
struct SmallCase
{
    explicit SmallCase(Eigen::Index n)
        : x(n, 3), y(n), prior{Eigen::Vector3d(0.5, -1.0, 2.0), Eigen::MatrixXd(3, 3), 2.5, 1.5}
    {
        for (Eigen::Index i = 0; i < x.rows(); ++i)
        {
            double const t = static_cast<double>(i);
            x.row(i) << 1.0, 0.2 * t - 1.0, std::cos(t) + 0.1 * t;
            y[i] = 1.0 + 0.5 * x(i, 1) - 0.7 * x(i, 2) + std::sin(3.0 * t);
        }
        prior.precision << 2.0, 0.5, 0.0, 0.5, 1.0, -0.3, 0.0, -0.3, 0.8;
    }

    RegressionPosterior Posterior() const { return {Reduce(x, y), prior}; }

    Eigen::MatrixXd x;
    Eigen::VectorXd y;
    RegressionPrior prior;
};

/// Draws parameters from a prior, and data from parameters.
class Simulator
{
public:
    Simulator(RegressionPrior prior, Eigen::MatrixXd x, int stream)
        : m_prior(std::move(prior)), m_x(std::move(x)), m_random(workbench::MakeRandomStream(7, stream))
    {
    }

    void DrawParameters()
    {
        boost::random::gamma_distribution<double> gamma(m_prior.shape, 1.0 / m_prior.rate);
        tau = gamma(m_random);
        beta = m_prior.mean + m_prior.precision.llt().matrixU().solve(Noise(m_prior.mean.size()));
    }

    Eigen::VectorXd Data() { return m_x * beta + Noise(m_x.rows()) / std::sqrt(tau); }

    RegressionPrior const& Prior() const { return m_prior; }
    Eigen::MatrixXd const& Regressors() const { return m_x; }
    RandomStream& Random() { return m_random; }

    Eigen::VectorXd beta;
    double tau = 1.0;

private:
    Eigen::VectorXd Noise(Eigen::Index size)
    {
        boost::random::normal_distribution<double> normal;
        return Eigen::VectorXd::NullaryExpr(size, [&] { return normal(m_random); });
    }

    RegressionPrior m_prior;
    Eigen::MatrixXd m_x;
    RandomStream m_random;
};

/// Few observations, and a prior that says about as much as they do.
Simulator SmallModel(int stream)
{
    RegressionPrior prior{Eigen::Vector2d(1.0, -0.5), Eigen::MatrixXd(2, 2), 4.0, 0.5};
    prior.precision << 1.5, 0.4, 0.4, 1.0;
    Eigen::MatrixXd x(6, 2);
    x << 1, -0.9, 1, 0.3, 1, -0.4, 1, 1.1, 1, 0.6, 1, 0.2;
    return {std::move(prior), std::move(x), stream};
}
} // namespace

double OffCertified(RegressionSampler const& sampler, NistRegression const& regression)
{
    auto const size = static_cast<Eigen::Index>(regression.coefficients.size());
    RegressionPosterior const posterior(
        regression.Reduce(),
        {Eigen::VectorXd::Zero(size), 1e-30 * Eigen::MatrixXd::Identity(size, size), 1e-9, 1e-15});
    auto const draws = Run(sampler, posterior, 4000);
    boost::math::students_t const t(regression.Freedom());
    boost::math::chi_squared const chiSquared(regression.Freedom());
    double const squares = regression.Freedom() * regression.deviation * regression.deviation;
    double off = 0.0;
    for (double const p : {0.05, 0.5, 0.95})
    {
        for (Eigen::Index i = 0; i < size; ++i)
        {
            auto const index = static_cast<std::size_t>(i);
            double const quantile =
                regression.coefficients[index] + regression.errors[index] * boost::math::quantile(t, p);
            off = std::max(off, OffPart(draws.col(i), quantile, p));
        }
        off = std::max(off, OffPart(draws.col(size), boost::math::quantile(chiSquared, p) / squares, p));
    }
    return off;
}

double OffExact(RegressionSampler const& sampler)
{
    SmallCase const small(12);
    ExactRegression const exact(small.x, small.y, small.prior);
    auto const draws = Run(sampler, small.Posterior(), 10000);
    auto const taus = draws.col(3);
    double off = Off(taus, exact.Mean([](double tau, auto const&, auto const&) { return tau; }));
    off = std::max(off, Off(taus.array().log(), exact.Mean([](double tau, auto const&, auto const&)
                                                           { return std::log(tau); })));
    off = std::max(off, Off(taus.array().square(),
                            exact.Mean([](double tau, auto const&, auto const&) { return tau * tau; })));
    for (Eigen::Index i = 0; i < 3; ++i)
    {
        off = std::max(off, Off(draws.col(i), exact.Mean([i](double, auto const& mean, auto const&)
                                                         { return mean[i]; })));
        for (Eigen::Index j = 0; j <= i; ++j)
            off = std::max(off, Off(draws.col(i).cwiseProduct(draws.col(j)),
                                    exact.Mean([i, j](double, auto const& mean, auto const& covariance)
                                               { return mean[i] * mean[j] + covariance(i, j); })));
    }
    return off;
}

double OffJoint(RegressionSampler const& sampler)
{
    constexpr int ITERATIONS = 6000;
    auto model = SmallModel(0);
    auto const& prior = model.Prior();
    model.DrawParameters();
    Eigen::MatrixXd all(ITERATIONS, 7);
    Eigen::RowVectorXd draw(4);
    for (Eigen::Index i = 0; i < ITERATIONS; ++i)
    {
        RegressionPosterior const posterior(Reduce(model.Regressors(), model.Data()), prior);
        auto const chain = sampler(posterior, model.Random(), model.tau);
        chain->Step();
        chain->Write(draw);
        // The stream goes on behind what the chain, which has a copy, may have used of it.
        model.Random().discard(1000);
        model.beta = draw.head(2).transpose();
        model.tau = draw[2];
        all.row(i) << model.beta.transpose(), model.beta[0] * model.beta[0],
            model.beta[0] * model.beta[1], model.beta[1] * model.beta[1], model.tau,
            model.tau * model.tau;
    }
    Eigen::MatrixXd const square = prior.precision.inverse() + prior.mean * prior.mean.transpose();
    Eigen::RowVectorXd expected(7);
    expected << prior.mean.transpose(), square(0, 0), square(0, 1), square(1, 1),
        prior.shape / prior.rate, prior.shape * (prior.shape + 1.0) / (prior.rate * prior.rate);
    double off = 0.0;
    for (Eigen::Index column = 0; column < all.cols(); ++column)
        off = std::max(off, Off(all.col(column), expected[column]));
    return off;
}

double OffCoverage(RegressionSampler const& sampler)
{
    constexpr int DATASETS = 400;
    constexpr int DRAWS = 399;
    Eigen::Vector3i covered = Eigen::Vector3i::Zero();
    for (int dataset = 0; dataset < DATASETS; ++dataset)
    {
        auto model = SmallModel(1 + dataset);
        model.DrawParameters();
        RegressionPosterior const posterior(Reduce(model.Regressors(), model.Data()), model.Prior());
        auto const draws = Run(sampler, posterior, DRAWS, 2);
        Eigen::Vector3d const truth(model.beta[0], model.beta[1], model.tau);
        for (Eigen::Index i = 0; i < 3; ++i)
        {
            // Of 399 draws and the truth, alike, the truth is as probably in one place as in another.
            auto const below = (draws.col(i).array() < truth[i]).count();
            covered[i] += below >= 20 && below < 380;
        }
    }
    return (covered.cast<double>().array() - 0.9 * DATASETS).abs().maxCoeff()
           / std::sqrt(0.9 * 0.1 * DATASETS);
}

double OffMarginal(RegressionSampler const& sampler)
{
    SmallCase const small(48);
    auto const posterior = small.Posterior();
    auto const both = workbench::RegressionLogMarginals(posterior, Run(sampler, posterior, 10000));
    double const exact = ExactRegression(small.x, small.y, small.prior).LogMarginal();
    return FAR_OFF * std::max(std::abs(both(0, 0) - exact) / 0.2, std::abs(both(0, 1) - exact) / 0.01);
}
