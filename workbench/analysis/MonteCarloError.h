#pragma once

#include <Eigen/Core>

namespace workbench
{
/// The standard error of the mean of `values` as an estimate of the posterior mean: chains of equal
/// length one below the other, NaN where a draw has no value and is left out.
///
/// It is the standard deviation divided by the square root of the effective number of draws
/// (EffectiveSize in estimation/Convergence.h). With draws left out the mean is a quotient of two means,
/// that of d x and that of d, where d is 1 in the draws that count and 0 in others; its error is that of
/// the mean of d (x - m), m being the mean of `values`, divided by the mean of d (W. G. Cochran,
/// "Sampling Techniques", 3rd ed. (1977), section 2.11).
///
/// 0 if all values are equal; NaN if there is none, or a chain has fewer than four draws.
double MonteCarloError(Eigen::ArrayXd const& values, int chains);
} // namespace workbench
