#include "workbench/estimation/RegressionPrior.h"

#include <cmath>
#include <string>

#include <Eigen/Cholesky>

#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
/// By so much of its size a matrix that was typed or computed may miss symmetry.
constexpr double ASYMMETRY = 1e-10;

/// Less of a coefficient's precision than this, given the others, is no precision.
constexpr double SINGULAR = 1e-14;

std::string Size(Eigen::Index rows, Eigen::Index cols)
{
    return std::to_string(rows) + " x " + std::to_string(cols);
}

void CheckPrecision(Eigen::MatrixXd const& precision)
{
    if (!precision.allFinite())
        throw Error("the prior precision has elements that are no finite numbers");
    double const largest = precision.cwiseAbs().maxCoeff();
    if ((precision - precision.transpose()).cwiseAbs().maxCoeff() > ASYMMETRY * largest)
        throw Error("the prior precision is not symmetric");

    Error const indefinite("the prior precision is not positive definite");
    if (!(precision.diagonal().minCoeff() > 0.0))
        throw indefinite;
    // On a diagonal of ones the pivots can be told from rounding.
    Eigen::VectorXd const scale = precision.diagonal().cwiseSqrt().cwiseInverse();
    Eigen::MatrixXd const scaled = scale.asDiagonal() * precision * scale.asDiagonal();
    Eigen::LLT<Eigen::MatrixXd> const cholesky(scaled);
    if (cholesky.info() != Eigen::Success
        || cholesky.matrixLLT().diagonal().cwiseAbs2().minCoeff() < SINGULAR)
        throw indefinite;
}
} // namespace

RegressionPrior DefaultRegressionPrior(Eigen::Index coefficients)
{
    return {Eigen::VectorXd::Zero(coefficients),
            1e-4 * Eigen::MatrixXd::Identity(coefficients, coefficients), 1e-3, 1e-3};
}

void CheckRegressionPrior(RegressionPrior const& prior, Eigen::Index coefficients)
{
    if (prior.mean.size() != coefficients)
        throw Error("the prior mean has " + std::to_string(prior.mean.size())
                    + " elements, but the number of coefficients is " + std::to_string(coefficients));
    if (prior.precision.rows() != coefficients || prior.precision.cols() != coefficients)
        throw Error("the prior precision is " + Size(prior.precision.rows(), prior.precision.cols())
                    + ", but should be " + Size(coefficients, coefficients));
    if (!prior.mean.allFinite())
        throw Error("the prior mean has elements that are no finite numbers");
    CheckPrecision(prior.precision);
    for (auto const& [value, name] : {std::pair(prior.shape, "shape"), std::pair(prior.rate, "rate")})
        if (!(value > 0.0) || std::isinf(value))
            throw Error(std::string("the ") + name + " of the prior of tau must be a positive number");
}
} // namespace workbench
