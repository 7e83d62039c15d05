#pragma once

#include <string>

#include <Eigen/Core>

#include "engine/Model.h"

namespace workbench
{
class Progress;

/// A condition on the draws of a model, draw by draw.
struct Condition
{
    Eigen::ArrayXd holds; ///< 1 in a draw in which it holds, 0 if it does not, NaN if it is undefined.
    std::string comparison; ///< Its operator, "!=" also for "~=".
};

/// Computes `text`, two expressions with a comparison between them (docs/script-language.md tells the
/// grammar), for each draw of the model called `name`, which has some. A draw is written as
/// MODEL.DRAW, DRAW being all of the draw's name: `ols.GNP`, `outside.beta[1,2]`.
///
/// Throws an ExpressionError if the condition leaves the grammar, names what is not there or another
/// model, or does not compare.
Condition EvaluateCondition(std::string const& text, std::string const& name, Model const& model,
                            Progress& progress);

/// What the draws tell of a condition.
struct Verdict
{
    Eigen::Index draws = 0;   ///< In which it is defined; the others are left out.
    double probability = 0.0; ///< The share of these in which it holds; NaN without any.
    double error = 0.0;       ///< The standard error of that, see MonteCarloError.
};

/// `holds` is as in Condition, the chains one below the other.
Verdict Judge(Eigen::ArrayXd const& holds, int chains);

/// Whether `verdict` says nothing about the model, because equality of draws of a continuous quantity
/// has the probability 0 whatever is true.
bool IsVainEquality(Condition const& condition, Verdict const& verdict);
} // namespace workbench
