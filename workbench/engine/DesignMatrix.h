#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>

#include "engine/Dataset.h"

namespace workbench
{
/// The observations that enter a linear model for one dependent variable.
struct DesignMatrix
{
    /// One row for each observation on which all columns have a value, in the dataset's order: the
    /// dependent variable, the independent ones, and the dependent variable at each lag.
    Eigen::MatrixXd values;

    std::vector<std::string> columns; ///< "gdp", "cpi", "gdp(-1)".
    Eigen::Index omitted = 0;         ///< The observations that have no row.
};

/// Takes the observations out of `dataset`. A lag of k is the value k observations earlier, so a
/// negative one is a later value. Throws an Error if a variable is not there, holds text or is named
/// twice, if a lag is 0 or given twice, or if no observation is complete.
DesignMatrix MakeDesignMatrix(Dataset const& dataset, std::string const& dependent,
                              std::vector<std::string> const& independent, std::vector<int> const& lags);
} // namespace workbench
