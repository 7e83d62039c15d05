#pragma once

#include <limits>

#include "workbench/DataDesk.h"
#include "workbench/analysis/ModelMaking.h"

/// A dataset d with gaps and a regression m of y on a constant, x and z of which there are two draws: so
/// all that is computed over them can be worked out by hand.
struct RegressionDesk : DataDesk
{
    static constexpr double NA = std::numeric_limits<double>::quiet_NaN();

    RegressionDesk()
    {
        auto const d = workbench::MakeDataset({"x", "t", "y", "z"}, 6);
        d->data.col(1) << 1, 2, 3, 4, 5, NA;
        d->data.col(2).setZero();
        d->labelledColumns[2] = {{"a"}, std::vector<std::string>(6, "a")};
        d->data.col(3) << 3, 5, NA, 8, 9, 10;
        d->data.col(4) << 2, 1, 2, 1, NA, 4;
        workspace.Assign("d", d);
        workspace.Assign("m", RegressionOfDraws("y", {"constant", "x", "z"}, Draws()));
        workspace.Assign("bare", ModelOfDraws({"a"}, Eigen::MatrixXd::Ones(2, 1)));
        workspace.Assign("mean", RegressionOfDraws("y", {"constant"}, Draws()(Eigen::all, {0, 3, 4})));
        workspace.Assign("lost", Lost());
    }

    /// At observation 1, 2 and 4, the complete ones, E(y) is 5, 6 and 10 by the first draw and 5, 10 and
    /// 18 by the second.
    static Eigen::MatrixXd Draws()
    {
        Eigen::MatrixXd draws(2, 5);
        draws << 1, 2, 1, 4, 0.5, //
            3, 4, -1, 1, 1;
        return draws;
    }

    /// The values of a variable.
    Eigen::VectorXd Values(std::string const& dataset, std::string const& name) const
    {
        auto const& data = (*this)[dataset];
        auto const column = data.varNames.Index(name);
        REQUIRE(column != wxNOT_FOUND);
        return data.data.col(column);
    }

    Eigen::MatrixXd const& Matrix(std::string const& name) const { return *workspace.matrices.at(name); }

private:
    static std::shared_ptr<Model> Lost()
    {
        auto const model = RegressionOfDraws("y", {"constant", "x", "z"}, Draws());
        model->dataset = "gone";
        return model;
    }
};

/// Equal to rounding, and missing in the same places.
inline bool Near(Eigen::MatrixXd const& a, Eigen::MatrixXd const& b)
{
    return a.rows() == b.rows() && a.cols() == b.cols()
           && (a.array().isNaN() == b.array().isNaN()).all()
           && a.array().isNaN().select(0.0, (a - b).array()).abs().maxCoeff() < 1e-12;
}
