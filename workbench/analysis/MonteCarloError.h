#pragma once

#include <Eigen/Core>

namespace workbench
{
class Progress;

/// The standard error of the mean of `values` as an estimate of the posterior mean: chains of equal
/// length one below the other, NaN where a draw has no value and is left out.
///
/// Draws next to each other are alike, so n of them tell less than n independent ones would. With the
/// autocovariances
///
///     c(k) = 1/n  sum over chains and t of (x(t) - m) (x(t + k) - m),    m the mean of all
///
/// the squared error is (2 (G(0) + G(1) + ...) - c(0)) / n, G(j) being c(2j) + c(2j + 1). The sum ends
/// before the first G(j) that is not positive, and a G(j) counts no more than the one before it: the
/// initial monotone sequence estimator of C. J. Geyer, "Practical Markov Chain Monte Carlo",
/// Statistical Science 7 (1992), 473-483. Chains around different means make it larger, as they should.
///
/// 0 if all values are equal; NaN if there is none.
double MonteCarloError(Eigen::ArrayXd const& values, int chains, Progress& progress);
} // namespace workbench
