#pragma once

#include <Eigen/Core>

namespace workbench
{
/// What tells whether chains have come to one distribution, and how much their draws are worth. A.
/// Vehtari, A. Gelman, D. Simpson, B. Carpenter and P.-C. Burkner, "Rank-Normalization, Folding, and
/// Localization: An Improved R-hat for Assessing Convergence of MCMC", Bayesian Analysis 16 (2021),
/// 667-718, has the formulas.
///
/// The draws of one quantity come as a matrix with a chain in each column. Each chain is taken for two,
/// its first half and its second, so that one that still moves is seen; the draw in the middle of an odd
/// number counts for neither.
///@{

/// The number of independent draws whose mean would be as precise, by the autocorrelations of all chains
/// (section 3.2 of the paper). They are summed up as far as the initial monotone sequence goes: C. J.
/// Geyer, "Practical Markov Chain Monte Carlo", Statistical Science 7 (1992), 473-483. NaN if there are
/// fewer than four draws of a chain, if all are equal, or one is not finite.
double EffectiveSize(Eigen::MatrixXd const& chains);

/// The potential scale reduction factor of the ranks of the draws, made normal, or of those of the
/// distances from the median if that is larger (section 4.1 of the paper): close to 1, below 1.01 say,
/// if the chains agree. NaN as EffectiveSize.
double RHat(Eigen::MatrixXd const& chains);
///@}
} // namespace workbench
