#pragma once

#include "workbench/estimation/NistData.h"
#include "workbench/estimation/TextbookSampler.h"

/// Proofs that a sampler draws from the posterior of a linear regression. Each gives by how many
/// standard errors the sampler is off, at the worst of all that was compared: a right one stays below
/// FAR_OFF, and a proof is worth something only if a faulty one does not. Their seeds are fixed.
///@{
inline constexpr double FAR_OFF = 4.5;

/// With a prior that says nothing, coefficients and tau have the t and chi-squared distributions that
/// belong to the certified values: so many draws as there should be lie below their 5, 50 and 95 in 100
/// quantiles.
double OffCertified(RegressionSampler const& sampler, NistRegression const& regression);

/// With an informative prior, the moments of coefficients and tau are those found by numerical
/// integration.
double OffExact(RegressionSampler const& sampler);

/// A chain that draws the parameters given the data and then the data given the parameters has the prior
/// for its distribution: J. Geweke, "Getting It Right: Joint Distribution Tests of Posterior
/// Simulators", Journal of the American Statistical Association 99 (2004), 799-804. The moments of the
/// prior are known, so the draws from the prior that the paper compares with are not needed.
double OffJoint(RegressionSampler const& sampler);

/// Of parameters that were drawn from the prior, with data from them, 90 in 100 lie between the 5 and 95
/// in 100 quantiles of their posteriors.
double OffCoverage(RegressionSampler const& sampler);

/// The log marginal likelihood is what numerical integration gives: Chib's estimate within 0.01, that of
/// Lewis and Raftery, which takes the posterior for normal, within 0.2. Beyond that is FAR_OFF.
double OffMarginal(RegressionSampler const& sampler);
///@}
