#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/Dataset.h"
#include "engine/Model.h"
#include "workbench/estimation/RegressionPrior.h"
#include "workbench/estimation/SamplerSettings.h"

namespace workbench
{
class Progress;

/// The Model::type of what EstimateRegression makes.
inline constexpr char const* LINEAR_REGRESSION = "linear regression";

/// The variables of a linear regression.
struct RegressionTerms
{
    std::string dependent;
    std::vector<std::string> independent;
    bool constant = true; ///< Whether the first regressor is a column of ones, called "constant".

    Eigen::Index Coefficients() const
    {
        return static_cast<Eigen::Index>(independent.size()) + (constant ? 1 : 0);
    }
};

/// Estimates a linear regression on the observations of `dataset` that have a value of each of the
/// variables: draws from its posterior by Gibbs sampling (RegressionChain, ChainRunner).
///
/// The model's draws are the coefficients, by the names of their regressors, tau and sigma; where a
/// regressor is called "tau", the parameter is "tau_2", and so on. Its results are
///
///     logML            1 x 2   the log marginal likelihood by Lewis and Raftery, and by Chib; NaN where
///                              one is not to be had (MarginalLikelihood.h)
///     observations     1 x 2   the observations used, and those left out for a missing value
///     sampler          1 x 5   the settings, in the order of SamplerSettings
///     prior_mean       k x 1   the prior
///     prior_precision  k x k
///     prior_tau        1 x 2   shape and rate
///
/// Throws an Error if the terms, the observations (RegressionData.h), the prior (RegressionPrior.h) or
/// the settings are no good, and passes on Interrupted.
std::shared_ptr<Model> EstimateRegression(Dataset const& dataset, RegressionTerms const& terms,
                                          RegressionPrior const& prior, SamplerSettings const& settings,
                                          Progress& progress);
} // namespace workbench
