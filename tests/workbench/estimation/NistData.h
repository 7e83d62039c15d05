#pragma once

#include <string>
#include <vector>

#include "workbench/estimation/RegressionData.h"

/// A linear regression of the Statistical Reference Datasets of the National Institute of Standards and
/// Technology, with what least squares gives on it, certified to 15 digits.
struct NistRegression
{
    std::string name;
    workbench::DesignMatrix design;
    bool constant;
    std::vector<double> coefficients;
    std::vector<double> errors; ///< Their standard errors.
    double deviation;           ///< The residual standard deviation.

    workbench::RegressionData Reduce() const;

    /// Observations less coefficients.
    double Freedom() const;
};

/// Norris, Pontius, NoInt1, NoInt2, Filip, Longley, Wampler3, Wampler4 and Wampler5.
std::vector<NistRegression> const& NistRegressions();

NistRegression const& Nist(std::string const& name);
