#pragma once

#include <Eigen/Core>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;
class RegressionDraws;

/// What is predicted for an observation. The numbers are those of scripts.
enum class PredictionType
{
    ExpectedValue = 1, ///< E(y) = x beta
    Probability = 2    ///< That y is at most what it was observed to be.
};

/// The predictions for each observation of `dataset` with the posterior means of the parameters in their
/// places; NaN where a regressor, or for a probability y itself, is missing or infinite. Throws an Error
/// if one of them is not in the dataset, or holds text.
Eigen::VectorXd PredictAtMean(RegressionDraws const& regression, Dataset const& dataset,
                              PredictionType type, Progress& progress);

/// The same over the draws: a column each for mean, standard deviation, and the quantiles 0.05 and 0.95.
Eigen::MatrixXd PredictOverDraws(RegressionDraws const& regression, Dataset const& dataset,
                                 PredictionType type, Progress& progress);

/// What the model leaves of y, y less PredictAtMean's expected value.
Eigen::VectorXd ResidualsAtMean(RegressionDraws const& regression, Dataset const& dataset,
                                Progress& progress);

/// Draws from the posterior predictive distribution of y, summed up: a row for each row of `variables`,
/// which has a column for each variable, and columns for mean, standard deviation, and the quantiles
/// 0.05, 0.5 and 0.95. Each draw of the parameters gives one y with an error of its own. The errors come
/// from one stream of random numbers with a seed that never changes, row by row, so the same forecast
/// gives the same numbers, and a longer one begins with them.
Eigen::MatrixXd Forecast(RegressionDraws const& regression, Eigen::MatrixXd const& variables,
                         Progress& progress);
} // namespace workbench
