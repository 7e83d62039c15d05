#include "workbench/engine/DesignMatrix.h"

#include <cmath>
#include <limits>
#include <set>

#include "workbench/engine/Error.h"
#include "workbench/engine/Variables.h"

namespace workbench
{
namespace
{
/// The values of a variable k observations earlier, missing where there is no such observation.
Eigen::VectorXd Lagged(Eigen::VectorXd const& values, int lag)
{
    Eigen::Index const n = values.size();
    Eigen::VectorXd lagged = Eigen::VectorXd::Constant(n, std::numeric_limits<double>::quiet_NaN());
    Eigen::Index const kept = n - std::abs(static_cast<Eigen::Index>(lag));
    if (kept > 0 && lag > 0)
        lagged.tail(kept) = values.head(kept);
    else if (kept > 0)
        lagged.head(kept) = values.tail(kept);
    return lagged;
}

std::string LagName(std::string const& name, int lag)
{
    return name + (lag > 0 ? "(-" : "(+") + std::to_string(std::abs(lag)) + ")";
}

std::vector<Eigen::Index> CompleteRows(Eigen::MatrixXd const& values)
{
    std::vector<Eigen::Index> rows;
    for (Eigen::Index row = 0; row < values.rows(); ++row)
        if (!values.row(row).hasNaN())
            rows.push_back(row);
    return rows;
}
} // namespace

DesignMatrix MakeDesignMatrix(Dataset const& dataset, std::string const& dependent,
                              std::vector<std::string> const& independent, std::vector<int> const& lags)
{
    DesignMatrix design;
    Eigen::MatrixXd all(dataset.data.rows(), static_cast<Eigen::Index>(1 + independent.size() + lags.size()));
    std::set<std::string> seen;
    auto const add = [&](std::string const& name, Eigen::VectorXd const& values)
    {
        if (!seen.insert(name).second)
            throw Error("\"" + name + "\" is given twice");
        all.col(static_cast<Eigen::Index>(design.columns.size())) = values;
        design.columns.push_back(name);
    };

    Eigen::VectorXd const explained = dataset.data.col(NumberColumnOf(dataset, dependent));
    add(dependent, explained);
    for (std::string const& name : independent)
        add(name, dataset.data.col(NumberColumnOf(dataset, name)));
    for (int const lag : lags)
    {
        if (lag == 0)
            throw Error("lag 0 of the dependent variable is the dependent variable itself");
        add(LagName(dependent, lag), Lagged(explained, lag));
    }

    auto const rows = CompleteRows(all);
    if (rows.empty())
        throw Error("no observation has values of all variables");
    design.values.resize(static_cast<Eigen::Index>(rows.size()), all.cols());
    for (std::size_t i = 0; i < rows.size(); ++i)
        design.values.row(static_cast<Eigen::Index>(i)) = all.row(rows[i]);
    design.omitted = all.rows() - design.values.rows();
    return design;
}
} // namespace workbench
