#pragma once

#include <vector>

#include <Eigen/Core>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;

/// What is told of a variable's values; NaN stands for what its observations do not tell.
struct Summary
{
    Eigen::Index observations = 0; ///< So many values are summarized.
    double mean = 0.0;
    double deviation = 0.0; ///< The standard deviation of a sample, with n - 1; of one value none.
    double minimum = 0.0;
    double lowerQuartile = 0.0;
    double median = 0.0;
    double upperQuartile = 0.0;
    double maximum = 0.0;
};

/// Which observations count.
enum class SummaryRows
{
    Available, ///< For each variable those on which it has a value.
    Complete   ///< Those on which all variables have one.
};

/// Summarizes the columns `columns` of numbers, each by itself.
///
/// The mean is corrected by the mean of what is left over, and the deviation takes the corrected
/// algorithm of two passes: T. F. Chan, G. H. Golub and R. J. LeVeque, "Algorithms for Computing
/// the Sample Variance", The American Statistician 37 (1983), 242-247. The quartiles are QuantileTaker's.
std::vector<Summary> Summarize(Dataset const& dataset, std::vector<Eigen::Index> const& columns,
                               SummaryRows rows, Progress& progress);
} // namespace workbench
