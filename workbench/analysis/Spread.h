#pragma once

#include <Eigen/Core>

namespace workbench
{
/// How the draws of a quantity are spread; all NaN if one of them is not finite, or there is none.
struct Spread
{
    double mean;
    double deviation; ///< The standard deviation, with n - 1; NaN of one draw.
    double low;       ///< The quantiles 0.05, 0.5 and 0.95, see QuantileTaker.
    double median;
    double high;
};

/// Moves the draws about.
Spread SpreadOf(Eigen::Ref<Eigen::VectorXd> draws);

/// The standard deviation of draws whose mean is known, with n - 1; NaN of one draw.
double DeviationOf(Eigen::Ref<Eigen::VectorXd const> const& draws, double mean);
} // namespace workbench
