#include <catch2/catch.hpp>

#include "workbench/analysis/RegressionDesk.h"

namespace
{
double constexpr NA = RegressionDesk::NA;
}

TEST_CASE("fitted values are those at the posterior mean")
{
    RegressionDesk desk;
    CHECK(desk.Run("store(m, \"fitted\", d, \"fit\");") == "\nd.fit: 6 observations, 2 missing\n");
    // The mean of the coefficients is 2, 3, 0.
    CHECK(Near(desk.Values("d", "fit"), (Eigen::VectorXd(6) << 5, 8, 11, 14, NA, NA).finished()));
    CHECK(desk["d"].varNames.size() == 6);
    CHECK(desk["d"].labelledColumns.count(2) == 1);
}

TEST_CASE("residuals are missing where the dependent variable is, too")
{
    RegressionDesk desk;
    CHECK(desk.Run("store(m, \"residuals\", d, \"x\");") == "\nd.x: 6 observations, 3 missing\n");
    // The regressor itself is replaced, in its place.
    CHECK(Near(desk["d"].data.col(1), (Eigen::VectorXd(6) << -2, -3, NA, -6, NA, NA).finished()));
    CHECK(desk["d"].varNames.size() == 5);
}

TEST_CASE("fitted values go to any dataset that has the regressors")
{
    RegressionDesk desk;
    auto const e = workbench::MakeDataset({"z", "x"}, 3);
    e->data.col(1) << 0, std::numeric_limits<double>::infinity(), 1;
    e->data.col(2) << 10, 1, -10;
    desk.workspace.Assign("e", e);
    desk.Run("store(lost, \"fitted\", e, \"fit\");");
    CHECK(Near(desk.Values("e", "fit"), Eigen::Vector3d(32, NA, -28)));
    CHECK(desk.Failure("store(m, \"residuals\", e, \"rest\");")
          == "Line 1, column 1: the dataset has no variable \"y\"");
    desk.Run("store(mean, \"fitted\", e, \"fit\");");
    CHECK(Near(desk.Values("e", "fit"), Eigen::Vector3d(2, 2, 2)));
}

TEST_CASE("a structure stays unless it rests on what is stored")
{
    RegressionDesk desk;
    desk.Run("create(d, \"time\", \"ones(  )\"); structure(d, \"time\", \"index\", \"\");");
    desk.Run("store(m, \"fitted\", d, \"fit\");");
    CHECK(desk.workspace.StructureOf("d").time == "time");
    CHECK(desk.output.warnings.empty());
    desk.Run("store(m, \"fitted\", d, \"time\");");
    CHECK(desk.workspace.StructureOf("d").IsEmpty());
    CHECK(desk.output.warnings.size() == 1);
}

TEST_CASE("what can't be stored is one error with its place")
{
    RegressionDesk desk;
    CHECK(desk.Failure("store(m, \"mean\", d, \"a\");")
          == "Line 1, column 10: expected \"fitted\" or \"residuals\" as the element, but found \"mean\"");
    CHECK(desk.Failure("store(bare, \"fitted\", d, \"a\");")
          == "Line 1, column 1: the model \"bare\" is no linear regression, and of another model no more is "
             "known than its draws");
    CHECK(desk.Failure("store(m, \"fitted\", d, \"a b\");")
          == "Line 1, column 1: \"a b\" cannot be the name of a variable: it may have letters, digits and "
             "underscores, and does not begin with a digit");
    CHECK(desk.Failure("store(m, \"fitted\", d, \"constant\");")
          == "Line 1, column 1: the name \"constant\" is kept for the program's own use");
    CHECK(desk.Failure("store(m, \"fitted\", m, \"a\");")
          == "Line 1, column 20: expected the name of a dataset, but \"m\" is none");
    desk.Run("drop(d, \"z\");");
    desk.output.text.clear();
    CHECK(desk.Failure("store(m, \"fitted\", d, \"a\");")
          == "Line 1, column 1: the dataset has no variable \"z\"");
    desk.workspace.Assign("text", RegressionOfDraws("y", {"t"}, Eigen::MatrixXd::Ones(2, 3)));
    CHECK(desk.Failure("store(text, \"fitted\", d, \"a\");")
          == "Line 1, column 1: the variable \"t\" holds text");
    for (int const stop : {1, 2})
    {
        desk.meter = Meter();
        desk.meter.stopAt = stop;
        CHECK(desk.Failure("store(mean, \"fitted\", d, \"a\");")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.output.text.empty());
}

TEST_CASE("models whose draws are not all there are refused")
{
    RegressionDesk desk;
    auto const refusal = [&](Eigen::MatrixXd const& draws)
    {
        auto const model = RegressionOfDraws("y", {"constant", "x", "z"}, draws);
        model->drawNames.resize(static_cast<std::size_t>(draws.cols()));
        desk.workspace.Assign("m", model);
        return desk.Failure("store(m, \"fitted\", d, \"a\");");
    };
    CHECK(refusal(Eigen::MatrixXd(0, 5)) == "Line 1, column 1: the model \"m\" has no draws");
    CHECK(refusal(Eigen::MatrixXd::Ones(2, 4))
          == "Line 1, column 1: the model \"m\" has fewer draws than parameters");
    CHECK(refusal(Eigen::MatrixXd::Constant(2, 5, NA))
          == "Line 1, column 1: the model \"m\" has draws that are missing or infinite");
}
