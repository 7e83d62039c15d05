#pragma once

#include <functional>

#include <Eigen/Core>

namespace workbench
{
class RegressionPosterior;

/// The logarithm of the mean of numbers whose logarithms are given.
double LogMeanExp(Eigen::VectorXd const& logarithms);

/// The log marginal likelihood by the Laplace-Metropolis estimator of S. M. Lewis and A. E. Raftery,
/// "Estimating Bayes Factors via Posterior Simulation with the Laplace-Metropolis Estimator", Journal of
/// the American Statistical Association 92 (1997), 648-655, formula 4:
///
///     d/2 log(2 pi) + 1/2 log|V| + log(likelihood times prior at t)
///
/// V is the covariance of the draws, t the one with the highest density or, if that is higher, their
/// mean. `points` has a draw of all d parameters in each row, in coordinates on the whole real line in
/// which the posterior is about normal; `logDensities` is the logarithm of likelihood times prior
/// density of each, and `atMean` that of their mean. NaN if there are too few draws for a covariance, or
/// it is singular.
double LewisRafteryLogMarginal(Eigen::MatrixXd const& points, Eigen::VectorXd const& logDensities,
                               std::function<double(Eigen::VectorXd const& mean)> const& atMean);

/// The log marginal likelihood of a linear regression by S. Chib, "Marginal Likelihood from the Gibbs
/// Output", Journal of the American Statistical Association 90 (1995), 1313-1321, section 2.1: at any
/// beta and tau it is
///
///     log(likelihood times prior) - log p(beta | tau, y) - log p(tau | y).
///
/// The first two are known. The last is the mean, over the draws, of the density of tau given beta; that
/// varies less over the draws than the density of beta given tau does. Here tau is the mean of the
/// draws, and beta its conditional mean. `squares` is the sum of squared residuals of each draw. NaN
/// without draws.
double ChibLogMarginal(RegressionPosterior const& posterior, Eigen::VectorXd const& taus,
                       Eigen::VectorXd const& squares);

/// Both estimates in a row, of draws of beta and tau, with further columns behind them or none.
Eigen::MatrixXd RegressionLogMarginals(RegressionPosterior const& posterior,
                                       Eigen::MatrixXd const& draws);
} // namespace workbench
