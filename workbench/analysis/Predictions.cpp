#include "workbench/analysis/Predictions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <boost/random/normal_distribution.hpp>

#include "workbench/analysis/RegressionDraws.h"
#include "workbench/analysis/Spread.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Quantiles.h"
#include "workbench/engine/Variables.h"
#include "workbench/estimation/RandomStream.h"

namespace workbench
{
namespace
{
constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();

/// The predictions of so many observations over all draws are in memory at once.
constexpr Eigen::Index BLOCK = 32;

constexpr std::uint64_t FORECAST_SEED = 1;

/// The standard normal distribution function.
double NormalProbability(double z) { return 0.5 * std::erfc(-z / std::sqrt(2.0)); }

/// The values that the predictions rest on, by their columns in the dataset.
class Source
{
public:
    Source(RegressionDraws const& regression, Dataset const& dataset, PredictionType type)
        : m_dataset(dataset), m_columns(regression.ColumnsIn(dataset)),
          m_dependent(type == PredictionType::Probability ? NumberColumnOf(dataset, regression.Dependent()) : 0)
    {
    }

    /// The values of a regressor, or of y; the ones of the constant are not looked up.
    double At(Eigen::Index row, Eigen::Index column) const
    {
        return column == 0 ? 1.0 : m_dataset.data(row, column);
    }

    double Dependent(Eigen::Index row) const { return At(row, m_dependent); }
    std::vector<Eigen::Index> const& Columns() const { return m_columns; }

    /// The observations that have all of the values.
    std::vector<Eigen::Index> Complete() const
    {
        std::vector<Eigen::Index> rows;
        for (Eigen::Index row = 0; row < m_dataset.data.rows(); ++row)
            if (std::isfinite(Dependent(row))
                && std::all_of(m_columns.begin(), m_columns.end(),
                               [&](auto column) { return std::isfinite(At(row, column)); }))
                rows.push_back(row);
        return rows;
    }

private:
    Dataset const& m_dataset;
    std::vector<Eigen::Index> m_columns;
    Eigen::Index m_dependent; ///< 0 if it is not needed.
};

/// One row of what PredictOverDraws gives. Moves the draws about.
Eigen::RowVector4d Summarized(Eigen::Ref<Eigen::VectorXd> draws)
{
    double const mean = draws.mean();
    if (!std::isfinite(mean))
        return Eigen::RowVector4d::Constant(MISSING);
    double const deviation = DeviationOf(draws, mean);
    QuantileTaker quantiles(draws.data(), draws.data() + draws.size());
    double const low = quantiles.Take(1, 20);
    return {mean, deviation, low, quantiles.Take(19, 20)};
}
} // namespace

Eigen::VectorXd PredictAtMean(RegressionDraws const& regression, Dataset const& dataset,
                              PredictionType type, Progress& progress)
{
    Source const source(regression, dataset, type);
    auto const coefficients = regression.MeanCoefficients();
    double const sigma = regression.MeanSigma();
    ProgressScope scope(progress, "Predicting");
    Eigen::VectorXd predictions = Eigen::VectorXd::Constant(dataset.data.rows(), MISSING);
    auto const rows = source.Complete();
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        double expected = 0.0;
        for (Eigen::Index j = 0; j < coefficients.size(); ++j)
            expected += coefficients[j] * source.At(rows[i], source.Columns()[static_cast<std::size_t>(j)]);
        predictions[rows[i]] = type == PredictionType::Probability
                                   ? NormalProbability((source.Dependent(rows[i]) - expected) / sigma)
                                   : expected;
        if (i % 4096 == 0)
            scope.Update(i, rows.size());
    }
    return predictions;
}

Eigen::MatrixXd PredictOverDraws(RegressionDraws const& regression, Dataset const& dataset,
                                 PredictionType type, Progress& progress)
{
    Source const source(regression, dataset, type);
    auto const coefficients = regression.Coefficients();
    ProgressScope scope(progress, "Predicting over the draws");
    Eigen::MatrixXd predictions = Eigen::MatrixXd::Constant(dataset.data.rows(), 4, MISSING);
    auto const rows = source.Complete();
    Eigen::MatrixXd regressors;
    Eigen::MatrixXd draws;
    for (std::size_t first = 0; first < rows.size(); first += BLOCK)
    {
        auto const count = std::min<Eigen::Index>(BLOCK, static_cast<Eigen::Index>(rows.size() - first));
        regressors.resize(coefficients.cols(), count);
        for (Eigen::Index i = 0; i < count; ++i)
            for (Eigen::Index j = 0; j < coefficients.cols(); ++j)
                regressors(j, i) = source.At(rows[first + static_cast<std::size_t>(i)],
                                             source.Columns()[static_cast<std::size_t>(j)]);
        draws.noalias() = coefficients * regressors;
        for (Eigen::Index i = 0; i < count; ++i)
        {
            auto const row = rows[first + static_cast<std::size_t>(i)];
            if (type == PredictionType::Probability)
                draws.col(i) = ((source.Dependent(row) - draws.col(i).array()) / regression.Sigma().array())
                                   .unaryExpr(&NormalProbability);
            predictions.row(row) = Summarized(draws.col(i));
        }
        scope.Update(first, rows.size());
    }
    return predictions;
}

Eigen::VectorXd ResidualsAtMean(RegressionDraws const& regression, Dataset const& dataset,
                                Progress& progress)
{
    auto const dependent = NumberColumnOf(dataset, regression.Dependent());
    Eigen::VectorXd const residuals
        = dataset.data.col(dependent)
          - PredictAtMean(regression, dataset, PredictionType::ExpectedValue, progress);
    return residuals.array().isFinite().select(residuals, MISSING);
}

Eigen::MatrixXd Forecast(RegressionDraws const& regression, Eigen::MatrixXd const& variables,
                         Progress& progress)
{
    ProgressScope scope(progress, "Forecasting");
    auto random = MakeRandomStream(FORECAST_SEED, 0);
    boost::random::normal_distribution<double> normal;
    auto const regressors = regression.WithConstant(variables);
    Eigen::MatrixXd forecast(variables.rows(), 5);
    Eigen::VectorXd errors(regression.Count());
    for (Eigen::Index period = 0; period < variables.rows(); ++period)
    {
        for (double& error : errors)
            error = normal(random);
        Eigen::VectorXd draws = regression.Coefficients() * regressors.row(period).transpose();
        draws += regression.Sigma().cwiseProduct(errors);
        auto const spread = SpreadOf(draws);
        forecast.row(period) << spread.mean, spread.deviation, spread.low, spread.median, spread.high;
        scope.Update(static_cast<std::uint64_t>(period + 1), static_cast<std::uint64_t>(variables.rows()));
    }
    return forecast;
}
} // namespace workbench
