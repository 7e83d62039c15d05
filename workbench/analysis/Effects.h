#pragma once

#include <Eigen/Core>

namespace workbench
{
class Progress;
class RegressionDraws;

/// What an effect of a variable x on the dependent variable y is. The numbers are those of scripts.
enum class EffectType
{
    Marginal = 1,       ///< dE(y)/dx
    SemiElasticity = 2, ///< d ln E(y)/dx
    Elasticity = 3      ///< d ln E(y)/d ln x
};

/// The draws of the effects of all variables.
struct Effects
{
    /// A row for each draw that counts, a column for each variable. An elasticity with respect to a
    /// variable that is not positive at all points is not defined: its column is NaN.
    Eigen::MatrixXd draws;

    /// So many draws are left out: E(y) is not positive at all points, and so has no logarithm.
    Eigen::Index omitted = 0;
};

/// The effects, on average over points: `points` has a row for each, one at least, and a column for each
/// variable.
Effects EffectsAt(RegressionDraws const& regression, Eigen::MatrixXd const& points, EffectType type,
                  Progress& progress);
} // namespace workbench
