#include "workbench/analysis/RegressionDraws.h"

#include "workbench/analysis/Draws.h"
#include "workbench/analysis/PostEstimation.h"
#include "workbench/engine/DesignMatrix.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Variables.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
RegressionDraws::RegressionDraws(Model const& model, std::string const& name)
    : m_model(model), m_name(name), m_size(static_cast<Eigen::Index>(model.independent.size())),
      m_variables(VariablesOf(model))
{
    if (!IsRegression(model))
        throw Error("the model " + Quoted(name) + " is no linear regression, and of another model no more is "
                    "known than its draws");
    CheckDraws(model, name);
    if (model.draws.cols() < m_size + 2)
        throw Error("the model " + Quoted(name) + " has fewer draws than parameters");
    if (!model.draws.leftCols(m_size + 2).allFinite())
        throw Error("the model " + Quoted(name) + " has draws that are missing or infinite");
    for (Eigen::Index place = 0; place < m_size; ++place)
        if (model.independent[static_cast<std::size_t>(place)] != CONSTANT)
            m_places.push_back(place);
}

Eigen::MatrixXd RegressionDraws::OfVariables(Eigen::MatrixXd const& all) const
{
    return all(Eigen::all, m_places);
}

Eigen::MatrixXd RegressionDraws::WithConstant(Eigen::MatrixXd const& values) const
{
    Eigen::MatrixXd all = Eigen::MatrixXd::Ones(values.rows(), m_size);
    all(Eigen::all, m_places) = values;
    return all;
}

Eigen::MatrixXd RegressionDraws::Observations(DatasetMap const& datasets) const
{
    auto const found = datasets.find(m_model.dataset);
    if (found == datasets.end())
        throw Error("the dataset " + Quoted(m_model.dataset) + ", on which the model " + Quoted(m_name)
                    + " was estimated, is not in the workspace");
    auto const design = MakeDesignMatrix(*found->second, m_model.dependent, m_variables, {});
    for (Eigen::Index column = 1; column < design.values.cols(); ++column)
        if (!design.values.col(column).allFinite())
            throw Error("the variable " + Quoted(design.columns[static_cast<std::size_t>(column)])
                        + " has infinite values");
    return design.values.rightCols(design.values.cols() - 1);
}

std::vector<Eigen::Index> RegressionDraws::ColumnsIn(Dataset const& dataset) const
{
    std::vector<Eigen::Index> columns;
    for (auto const& regressor : m_model.independent)
        columns.push_back(regressor == CONSTANT ? 0 : NumberColumnOf(dataset, regressor));
    return columns;
}
} // namespace workbench
