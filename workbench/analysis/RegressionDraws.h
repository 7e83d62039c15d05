#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>

#include "engine/Dataset.h"
#include "engine/Model.h"

namespace workbench
{
/// The draws of a linear regression y = X beta + sigma e, as the model's record has them: first the
/// coefficients, then tau and sigma. "Variables" are here the regressors other than the constant.
class RegressionDraws
{
public:
    /// Throws an Error if `model`, which must outlive the object and is called `name`, is no linear
    /// regression, or its draws are not all there.
    RegressionDraws(Model const& model, std::string const& name);

    Eigen::Index Count() const { return m_model.draws.rows(); }
    std::string const& Dependent() const { return m_model.dependent; }
    std::vector<std::string> const& Variables() const { return m_variables; }

    /// The coefficients: a row for each draw, a column for each regressor.
    auto Coefficients() const { return m_model.draws.leftCols(m_size); }

    /// The standard deviation of the error in each draw.
    auto Sigma() const { return m_model.draws.col(m_size + 1); }

    /// The posterior means.
    ///@{
    Eigen::VectorXd MeanCoefficients() const { return Coefficients().colwise().mean(); }
    double MeanSigma() const { return Sigma().mean(); }
    ///@}

    /// The columns of `all`, which has one for each regressor, that belong to the variables.
    Eigen::MatrixXd OfVariables(Eigen::MatrixXd const& all) const;

    /// A row of regressors for each row of values of the variables: a one for the constant goes between.
    Eigen::MatrixXd WithConstant(Eigen::MatrixXd const& values) const;

    /// The values of the variables on which the model was estimated: a row for each observation on
    /// which these and the dependent variable have one. Throws an Error if the dataset is not among
    /// `datasets`, a variable is not in it, holds text or an infinite value, or there is no observation.
    Eigen::MatrixXd Observations(DatasetMap const& datasets) const;

    /// For each regressor its column in `dataset`; 0, where the constant has its column of ones, for the
    /// constant. Throws an Error if a variable is not there or holds text.
    std::vector<Eigen::Index> ColumnsIn(Dataset const& dataset) const;

private:
    Model const& m_model;
    std::string m_name;
    Eigen::Index m_size; ///< The number of coefficients.
    std::vector<std::string> m_variables;
    std::vector<Eigen::Index> m_places; ///< Of the variables among the regressors.
};
} // namespace workbench
