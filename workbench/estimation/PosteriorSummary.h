#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/Model.h"

namespace workbench
{
class Progress;

/// What is told of the draws of one quantity; NaN stands for what they do not tell.
struct DrawSummary
{
    std::string name;
    double mean = 0.0;
    double deviation = 0.0; ///< The standard deviation.

    /// At 0.025, 0.05, 0.5, 0.95 and 0.975, see QuantileTaker.
    std::array<double, 5> quantiles{};

    /// The Monte Carlo standard error of the mean: deviation / sqrt(effective size).
    double error = 0.0;

    double effectiveSize = 0.0; ///< Convergence.h tells of this and the next.
    double rHat = 0.0;
};

/// Summarizes the draws of each quantity of `model`, in the order of its names. If the model has no
/// draws, or not a column of them for each name, all is NaN; if their number is none of so many chains
/// alike, they count as one chain.
std::vector<DrawSummary> SummarizeDraws(Model const& model, Progress& progress);
} // namespace workbench
