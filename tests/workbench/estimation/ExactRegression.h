#pragma once

#include <functional>

#include "workbench/estimation/RegressionPosterior.h"

/// The posterior of a small linear regression without sampling. Given tau, beta is normal and y ~ N(X m,
/// I/tau + X P^-1 X'), so all that is left is an integral over tau, which is done numerically. Nothing
/// of the code under test is in it.
class ExactRegression
{
public:
    ExactRegression(Eigen::MatrixXd const& x, Eigen::VectorXd const& y,
                    workbench::RegressionPrior const& prior);

    /// The logarithm of the marginal likelihood.
    double LogMarginal() const { return m_logMarginal; }

    /// The posterior mean of a function of tau and of what beta is given tau: its mean and covariance.
    double Mean(std::function<double(double tau, Eigen::VectorXd const& mean,
                                     Eigen::MatrixXd const& covariance)> const& function) const;

private:
    double LogJoint(double logTau) const;

    Eigen::MatrixXd m_x;
    Eigen::VectorXd m_y;
    workbench::RegressionPrior m_prior;
    double m_lower = 0.0; ///< Limits of log tau beyond which nothing is left.
    double m_upper = 0.0;
    double m_highest = 0.0;
    double m_logMarginal = 0.0;
};

/// The data of ExactRegression as the code under test takes them: `x` with all its columns.
workbench::RegressionData Reduce(Eigen::MatrixXd const& x, Eigen::VectorXd const& y);
