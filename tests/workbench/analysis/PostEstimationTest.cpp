#include "workbench/analysis/PostEstimation.h"

#include <catch2/catch.hpp>

#include <limits>

#include "workbench/analysis/ModelMaking.h"
#include "workbench/engine/Workspace.h"

namespace
{
std::shared_ptr<Dataset> Data()
{
    auto const data = workbench::MakeDataset({"y", "x", "z", "t"}, 3);
    data->data.rightCols(4).setOnes();
    data->data(1, 1) = std::numeric_limits<double>::quiet_NaN();
    data->labelledColumns[4] = {{"a"}, {"a", "a", "a"}};
    return data;
}
} // namespace

TEST_CASE("which types of effects make sense depends on what is positive")
{
    auto const model = RegressionOfDraws("y", {"constant", "x", "z"}, Eigen::MatrixXd::Ones(2, 5));
    CHECK(workbench::EffectTypes(*model, *Data()) == 3);
    auto const data = Data();
    data->data(2, 3) = 0;
    CHECK(workbench::EffectTypes(*model, *data) == 2);
    data->data(2, 1) = -1;
    CHECK(workbench::EffectTypes(*model, *data) == 1);
    CHECK(workbench::EffectTypes(*RegressionOfDraws("y", {"t"}, Eigen::MatrixXd::Ones(2, 3)), *Data()) == 2);
    CHECK(workbench::EffectTypes(*RegressionOfDraws("y", {"gone"}, Eigen::MatrixXd::Ones(2, 3)), *Data()) == 2);
    CHECK(workbench::EffectTypes(*RegressionOfDraws("t", {"x"}, Eigen::MatrixXd::Ones(2, 3)), *Data()) == 1);
    CHECK(workbench::EffectTypes(*RegressionOfDraws("gone", {"x"}, Eigen::MatrixXd::Ones(2, 3)), *Data()) == 1);
    CHECK(workbench::EffectTypes(*RegressionOfDraws("y", {"constant"}, Eigen::MatrixXd::Ones(2, 3)), *Data()) == 3);
}

TEST_CASE("a probability of what was observed needs the dependent variable")
{
    auto const types = [](char const* dependent)
    {
        return workbench::PredictionTypes(*RegressionOfDraws(dependent, {"x"}, Eigen::MatrixXd::Ones(2, 3)),
                                          *Data());
    };
    CHECK(types("y") == 2);
    CHECK(types("t") == 1);
    CHECK(types("gone") == 1);
}

TEST_CASE("the constant is no variable")
{
    auto const model = RegressionOfDraws("y", {"constant", "x", "z"}, Eigen::MatrixXd::Ones(2, 5));
    CHECK(workbench::VariablesOf(*model) == std::vector<std::string>{"x", "z"});
    CHECK(workbench::IsRegression(*model));
    CHECK_FALSE(workbench::IsRegression(Model()));
}
