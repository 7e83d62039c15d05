// What the commands on estimated models take, beside the least that the same numbers could take.

#include <cmath>
#include <random>
#include <stdexcept>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "workbench/analysis/PostEstimation.h"
#include "workbench/analysis/Predictions.h"
#include "workbench/analysis/RegressionDraws.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/estimation/EstimateRegression.h"

namespace benchmarks
{
namespace
{
constexpr Eigen::Index OBSERVATIONS = 2000;
constexpr Eigen::Index DRAWS = 20000;
constexpr Eigen::Index REGRESSORS = 10;

/// The peer's product is taken in pieces of so many observations: as a whole it would fill the memory.
constexpr Eigen::Index PIECE = 40;

/// A linear regression of y on x1, x2, ... with normal draws.
Model Regression()
{
    Model model;
    model.type = workbench::LINEAR_REGRESSION;
    model.dependent = "y";
    for (Eigen::Index j = 1; j <= REGRESSORS; ++j)
        model.independent.push_back("x" + std::to_string(j));
    model.drawNames = model.independent;
    model.drawNames.insert(model.drawNames.end(), {"tau", "sigma"});
    std::mt19937_64 random(1);
    std::normal_distribution<double> normal;
    model.draws = Eigen::MatrixXd::NullaryExpr(DRAWS, REGRESSORS + 2, [&] { return normal(random); });
    model.draws.rightCols(2).setOnes();
    return model;
}
} // namespace

void MeasureAnalysis(Table& table)
{
    Claim const value{"predict over 20,000 draws, 2,000 x 10: against the product", 10.0};
    Claim const probability{"predict over 20,000 draws, a probability: against erfc", 3.0};
    if (!table.Wants(value.name) && !table.Wants(probability.name))
        return;
    auto const model = Regression();
    auto const names = workbench::VariablesOf(model);
    auto const data = workbench::MakeDataset({"y"}, OBSERVATIONS);
    data->data.conservativeResize(Eigen::NoChange, REGRESSORS + 2);
    for (auto const& name : names)
        data->varNames.Add(name);
    std::mt19937_64 random(2);
    std::normal_distribution<double> normal;
    data->data.rightCols(REGRESSORS + 1)
        = Eigen::MatrixXd::NullaryExpr(OBSERVATIONS, REGRESSORS + 1, [&] { return normal(random); });

    double checksum = 0.0;
    auto const predict = [&](workbench::PredictionType type)
    {
        return Seconds(
            [&]
            {
                workbench::RegressionDraws const regression(model, "m");
                workbench::Progress progress;
                checksum += workbench::PredictOverDraws(regression, *data, type, progress).sum();
            });
    };
    auto const product = [&](auto const& use)
    {
        return Seconds(
            [&]
            {
                Eigen::MatrixXd piece;
                for (Eigen::Index first = 0; first < OBSERVATIONS; first += PIECE)
                {
                    piece.noalias() = model.draws.leftCols(REGRESSORS)
                                      * data->data.block(first, 2, PIECE, REGRESSORS).transpose();
                    use(piece);
                }
            });
    };
    table.Compare(
        value, [&] { return predict(workbench::PredictionType::ExpectedValue); },
        [&] { return product([&](auto const& piece) { checksum += piece(0, 0); }); }, 5);
    table.Compare(
        probability, [&] { return predict(workbench::PredictionType::Probability); },
        [&]
        {
            return product([&](auto const& piece)
                           { checksum += piece.unaryExpr([](double z) { return std::erfc(z); }).sum(); });
        },
        3);
    if (std::isnan(checksum))
        throw std::runtime_error("the predictions and their peer computed nothing");
}
} // namespace benchmarks
