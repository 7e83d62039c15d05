#include "workbench/analysis/Effects.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "workbench/analysis/RegressionDraws.h"
#include "workbench/engine/Progress.h"

namespace workbench
{
namespace
{
/// So many draws, and so many points, are taken at once.
constexpr Eigen::Index DRAWS = 128;
constexpr Eigen::Index POINTS = 1024;

/// What the coefficients of some draws are multiplied by to give effects.
struct Factors
{
    Eigen::MatrixXd means; ///< A row for each draw, a column for each variable.
    std::vector<bool> counts; ///< Whether E(y) is positive at all points.
};

/// The averages over `points` of 1 / E(y), or of x / E(y) for an elasticity. `coefficients` has a column
/// for each draw, `regressors` a row for each point.
Factors FactorsOf(Eigen::MatrixXd const& coefficients, Eigen::MatrixXd const& regressors,
                  Eigen::MatrixXd const& points, EffectType type)
{
    Factors factors{Eigen::MatrixXd::Zero(coefficients.cols(), points.cols()),
                    std::vector<bool>(static_cast<std::size_t>(coefficients.cols()), true)};
    Eigen::MatrixXd expected;
    for (Eigen::Index first = 0; first < points.rows(); first += POINTS)
    {
        auto const count = std::min(POINTS, points.rows() - first);
        expected.noalias() = regressors.middleRows(first, count) * coefficients;
        for (Eigen::Index draw = 0; draw < expected.cols(); ++draw)
            if (!(expected.col(draw).array() > 0.0).all())
                factors.counts[static_cast<std::size_t>(draw)] = false;
        expected = expected.cwiseInverse();
        if (type == EffectType::Elasticity)
            factors.means.noalias() += expected.transpose() * points.middleRows(first, count);
        else
            factors.means.colwise() += expected.colwise().sum().transpose();
    }
    factors.means /= static_cast<double>(points.rows());
    return factors;
}
} // namespace

Effects EffectsAt(RegressionDraws const& regression, Eigen::MatrixXd const& points, EffectType type,
                  Progress& progress)
{
    Effects effects;
    effects.draws = regression.OfVariables(regression.Coefficients());
    if (type == EffectType::Marginal)
        return effects;

    ProgressScope scope(progress, "Computing the effects");
    auto const regressors = regression.WithConstant(points);
    Eigen::Index kept = 0;
    for (Eigen::Index first = 0; first < regression.Count(); first += DRAWS)
    {
        auto const count = std::min(DRAWS, regression.Count() - first);
        auto const factors = FactorsOf(regression.Coefficients().middleRows(first, count).transpose(),
                                       regressors, points, type);
        for (Eigen::Index draw = 0; draw < count; ++draw)
            if (factors.counts[static_cast<std::size_t>(draw)])
                effects.draws.row(kept++)
                    = effects.draws.row(first + draw).cwiseProduct(factors.means.row(draw)).eval();
        scope.Update(static_cast<std::uint64_t>(first + count),
                     static_cast<std::uint64_t>(regression.Count()));
    }
    effects.omitted = regression.Count() - kept;
    effects.draws.conservativeResize(kept, Eigen::NoChange);
    if (type == EffectType::Elasticity)
        for (Eigen::Index variable = 0; variable < points.cols(); ++variable)
            if (!(points.col(variable).array() > 0.0).all())
                effects.draws.col(variable).setConstant(std::numeric_limits<double>::quiet_NaN());
    return effects;
}
} // namespace workbench
