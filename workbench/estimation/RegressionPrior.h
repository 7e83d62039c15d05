#pragma once

#include <Eigen/Core>

namespace workbench
{
/// What is known of a linear regression y = X beta + e, e ~ N(0, 1/tau), before the data are seen:
/// independently of each other beta ~ N(mean, precision^-1) and tau ~ Gamma(shape, rate), whose mean is
/// shape/rate.
struct RegressionPrior
{
    Eigen::VectorXd mean;
    Eigen::MatrixXd precision;
    double shape;
    double rate;
};

/// A prior that says little where coefficients are of the order of 1: mean 0, precision 0.0001, so
/// standard deviation 100, for each coefficient by itself; shape and rate 0.001.
RegressionPrior DefaultRegressionPrior(Eigen::Index coefficients);

/// Throws an Error if `prior` is none for so many coefficients: wrong sizes, numbers that are not
/// finite, a precision that is not symmetric or not positive definite, a shape or rate that is not
/// positive.
void CheckRegressionPrior(RegressionPrior const& prior, Eigen::Index coefficients);
} // namespace workbench
