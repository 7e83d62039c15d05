#pragma once

#include <Eigen/Core>

namespace workbench
{
/// The autocorrelations r(k) = c(k) / c(0) of a series at lags 1 to `lags`, where
///
///     c(k) = 1/n  sum over t of (x(t) - m) (x(t + k) - m),    m the mean
///
/// (G. E. P. Box, G. M. Jenkins and G. C. Reinsel, "Time Series Analysis" (1994), section 2.1.5).
/// NaN stands for a missing value: it keeps its place in time, and the sum goes over the pairs that
/// are there. Instead of n it is then divided by their number plus k, which is n if none is missing.
/// A lag without a pair gives NaN, and so do all if the values that are there are equal.
Eigen::VectorXd Autocorrelations(Eigen::VectorXd const& series, int lags);

/// At how many lags a correlogram of `n` values shows autocorrelations: 10 log10 n, rounded down, but
/// fewer than n.
int CorrelogramLags(Eigen::Index n);

/// Half the width of the band that holds 95 in 100 sample autocorrelations of white noise: the 0.975
/// quantile of the normal distribution divided by the square root of n, by M. S. Bartlett, "On the
/// Theoretical Specification and Sampling Properties of Autocorrelated Time-Series", Supplement to the
/// Journal of the Royal Statistical Society 8 (1946), 27-41.
double WhiteNoiseBand(Eigen::Index n);
} // namespace workbench
