#include "workbench/estimation/RegressionData.h"

#include <algorithm>
#include <cmath>

#include <Eigen/QR>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/estimation/TriangularFactor.h"

namespace workbench
{
namespace
{
/// Beyond these the sums of squares leave the range of numbers.
constexpr double LARGEST = 1e140;
constexpr double SMALLEST = 1e-140;

/// A regressor is a combination of others if so small a part of it is left without them. Rounding
/// leaves less than a hundredth of that, and the hardest polynomials that are estimated more.
constexpr double COLLINEAR = 1e-12;

void CheckValues(DesignMatrix const& design)
{
    for (std::size_t j = 0; j < design.columns.size(); ++j)
    {
        auto const column = design.values.col(static_cast<Eigen::Index>(j));
        auto const variable = "the variable " + Quoted(design.columns[j]);
        if (!column.allFinite())
            throw Error(variable + " has infinite values");
        double const largest = column.cwiseAbs().maxCoeff();
        if (largest > LARGEST || (largest > 0.0 && largest < SMALLEST))
            throw Error("the values of " + variable + " are too " + (largest > 1.0 ? "large" : "small")
                        + " to be squared");
    }
    auto const dependent = design.values.col(0);
    if (dependent.minCoeff() == dependent.maxCoeff())
        throw Error("the dependent variable " + Quoted(design.columns[0])
                    + " has the same value everywhere");
}

/// `factor` is that of the regressors.
void CheckRank(Eigen::MatrixXd const& factor, std::vector<std::string> const& regressors)
{
    auto const size = factor.cols();
    Eigen::RowVectorXd const lengths = factor.colwise().norm();
    auto const name = [&](Eigen::Index column)
    { return Quoted(regressors[static_cast<std::size_t>(column)]); };
    for (Eigen::Index column = 0; column < size; ++column)
        if (lengths[column] == 0.0)
            throw Error("the regressor " + name(column) + " is zero everywhere");

    // Which columns are small has a meaning only once all are of one length.
    Eigen::MatrixXd const scaled = factor.array().rowwise() / lengths.array();
    Eigen::ColPivHouseholderQR<Eigen::MatrixXd> qr(scaled);
    qr.setThreshold(COLLINEAR);
    if (qr.rank() == size)
        return;
    // The pivoted decomposition tells that there is one; the one to blame is the first that those before
    // it make up.
    Eigen::Index column = 1;
    while (column < size - 1 && std::abs(scaled(column, column)) > COLLINEAR)
        ++column;
    throw Error("the regressor " + name(column)
                + " is a linear combination of those before it: leave out one of them");
}
} // namespace

Eigen::VectorXd RegressionData::SquaresAt(Eigen::Ref<Eigen::MatrixXd const> const& betas) const
{
    Eigen::MatrixXd residuals = betas * factor.transpose();
    residuals.rowwise() -= target.transpose();
    return residuals.rowwise().squaredNorm().array() + squares;
}

RegressionData ReduceRegression(DesignMatrix const& design, bool constant, Progress& progress)
{
    RegressionData data;
    if (constant)
        data.regressors.emplace_back(CONSTANT);
    data.regressors.insert(data.regressors.end(), design.columns.begin() + 1, design.columns.end());
    if (data.regressors.empty())
        throw Error("the regression has no regressor");
    if (constant && std::count(data.regressors.begin(), data.regressors.end(), CONSTANT) > 1)
        throw Error(Quoted(CONSTANT) + " is given twice");
    CheckValues(design);
    data.observations = design.values.rows();
    auto const size = static_cast<Eigen::Index>(data.regressors.size());
    if (data.observations < size)
        throw Error("there are fewer observations with values of all variables ("
                    + std::to_string(data.observations) + ") than coefficients (" + std::to_string(size)
                    + ")");

    ProgressScope scope(progress, "Reducing the observations");
    TriangularFactor factor(size + 1);
    Eigen::MatrixXd block;
    Eigen::Index const variables = design.values.cols() - 1;
    for (Eigen::Index row = 0; row < data.observations; row += block.rows())
    {
        auto const rows =
            design.values.middleRows(row, std::min(TriangularFactor::BLOCK, data.observations - row));
        block.setOnes(rows.rows(), size + 1);
        block.middleCols(size - variables, variables) = rows.rightCols(variables);
        block.col(size) = rows.col(0);
        factor.Add(block);
        scope.Update(static_cast<std::uint64_t>(row), static_cast<std::uint64_t>(data.observations));
    }
    data.factor = factor.R().topLeftCorner(size, size);
    data.target = factor.R().col(size).head(size);
    data.squares = factor.R()(size, size) * factor.R()(size, size);
    CheckRank(data.factor, data.regressors);
    return data;
}
} // namespace workbench
