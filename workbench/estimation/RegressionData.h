#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>

#include "workbench/engine/DesignMatrix.h"

namespace workbench
{
class Progress;

/// All that the likelihood of a linear regression y = X beta + e depends on. With the QR decomposition
/// X = Q R of the regressors,
///
///     (y - X beta)'(y - X beta) = (z - R beta)'(z - R beta) + squares,    z = Q'y.
///
/// No cross products are formed and no large numbers subtracted, so nearly collinear regressors keep
/// their digits (A. Bjorck, "Numerical Methods for Least Squares Problems" (1996), section 2.4).
struct RegressionData
{
    std::vector<std::string> regressors; ///< The names, in the order of the coefficients.
    Eigen::Index observations = 0;
    Eigen::MatrixXd factor; ///< R, upper triangular.
    Eigen::VectorXd target; ///< z.
    double squares = 0.0;   ///< The sum of squares that least squares leaves.

    Eigen::Index Coefficients() const { return target.size(); }

    /// (y - X beta)'(y - X beta) for the beta in each row of `betas`.
    Eigen::VectorXd SquaresAt(Eigen::Ref<Eigen::MatrixXd const> const& betas) const;
};

/// Reduces `design`, whose first column is the dependent variable. With `constant` a column of ones is
/// the first regressor. Throws an Error if there is no regressor, a value is infinite or too far from 1
/// to be squared, the dependent variable is constant, there are fewer observations than coefficients,
/// or a regressor is a linear combination of others.
RegressionData ReduceRegression(DesignMatrix const& design, bool constant, Progress& progress);
} // namespace workbench
