#include "workbench/estimation/MarginalLikelihood.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "workbench/estimation/RegressionPosterior.h"
#include "workbench/estimation/TriangularFactor.h"

namespace workbench
{
namespace
{
constexpr double LOG_TWO_PI = 1.83787706640934548356;
constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// The logarithm of the determinant of the covariance of `points`, whose mean is `mean`.
double LogDeterminantOfCovariance(Eigen::MatrixXd const& points, Eigen::RowVectorXd const& mean)
{
    TriangularFactor factor(points.cols());
    for (Eigen::Index row = 0; row < points.rows(); row += TriangularFactor::BLOCK)
        factor.Add(
            points.middleRows(row, std::min(TriangularFactor::BLOCK, points.rows() - row)).rowwise()
            - mean);
    return 2.0 * factor.R().diagonal().cwiseAbs().array().log().sum()
           - static_cast<double>(points.cols()) * std::log(static_cast<double>(points.rows() - 1));
}
} // namespace

double LogMeanExp(Eigen::VectorXd const& logarithms)
{
    if (logarithms.size() == 0)
        return NOTHING;
    double const largest = logarithms.maxCoeff();
    return largest + std::log((logarithms.array() - largest).exp().mean());
}

double LewisRafteryLogMarginal(Eigen::MatrixXd const& points, Eigen::VectorXd const& logDensities,
                               std::function<double(Eigen::VectorXd const& mean)> const& atMean)
{
    if (points.rows() <= points.cols())
        return NOTHING;
    Eigen::RowVectorXd const mean = points.colwise().mean();
    double const highest = std::max(logDensities.maxCoeff(), atMean(mean.transpose()));
    double const estimate = 0.5 * static_cast<double>(points.cols()) * LOG_TWO_PI
                            + 0.5 * LogDeterminantOfCovariance(points, mean) + highest;
    return std::isfinite(estimate) ? estimate : NOTHING;
}

double ChibLogMarginal(RegressionPosterior const& posterior, Eigen::VectorXd const& taus,
                       Eigen::VectorXd const& squares)
{
    if (taus.size() == 0)
        return NOTHING;
    Eigen::VectorXd const tau = Eigen::VectorXd::Constant(1, taus.mean());
    Eigen::MatrixXd const beta = posterior.MeanAt(tau[0]).transpose();
    double const shape = posterior.TauShape();
    Eigen::ArrayXd const rates = posterior.Prior().rate + 0.5 * squares.array();
    double const tauDensity = (shape - 1.0) * std::log(tau[0]) - std::lgamma(shape)
                              + LogMeanExp(shape * rates.log() - rates * tau[0]);
    double const betaDensity =
        0.5 * (posterior.LogDeterminantAt(tau[0]) - static_cast<double>(beta.cols()) * LOG_TWO_PI);
    double const joint = posterior.LogDensity(beta, tau, posterior.Data().SquaresAt(beta))[0];
    return joint - tauDensity - betaDensity;
}

Eigen::MatrixXd RegressionLogMarginals(RegressionPosterior const& posterior,
                                       Eigen::MatrixXd const& draws)
{
    auto const size = posterior.Data().Coefficients();
    auto const betas = draws.leftCols(size);
    auto const taus = draws.col(size);
    Eigen::VectorXd const squares = posterior.Data().SquaresAt(betas);
    // The logarithm of tau is nearer to a normal distribution than tau; its density has the factor tau.
    Eigen::MatrixXd points(draws.rows(), size + 1);
    points << betas, taus.array().log().matrix();
    Eigen::VectorXd const densities = posterior.LogDensity(betas, taus, squares) + points.col(size);
    auto const atMean = [&](Eigen::VectorXd const& mean)
    {
        Eigen::MatrixXd const beta = mean.head(size).transpose();
        Eigen::VectorXd const tau = mean.tail(1).array().exp();
        return posterior.LogDensity(beta, tau, posterior.Data().SquaresAt(beta))[0] + mean[size];
    };
    Eigen::MatrixXd both(1, 2);
    both << LewisRafteryLogMarginal(points, densities, atMean),
        ChibLogMarginal(posterior, taus, squares);
    return both;
}
} // namespace workbench
