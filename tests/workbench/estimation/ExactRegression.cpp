#include "workbench/estimation/ExactRegression.h"

#include <algorithm>
#include <cmath>

#include <boost/math/quadrature/gauss_kronrod.hpp>

#include <Eigen/Dense>

#include "workbench/engine/Progress.h"

namespace
{
double Integrate(std::function<double(double)> const& function, double lower, double upper)
{
    return boost::math::quadrature::gauss_kronrod<double, 31>::integrate(function, lower, upper, 6,
                                                                         1e-10);
}
} // namespace

ExactRegression::ExactRegression(Eigen::MatrixXd const& x, Eigen::VectorXd const& y,
                                 workbench::RegressionPrior const& prior)
    : m_x(x), m_y(y), m_prior(prior)
{
    // The highest point by a search that halves its step, then outwards until e^-50 of it is left.
    double place = std::log(prior.shape / prior.rate);
    for (double step = 4.0; step > 1e-4; step /= 2.0)
        for (double const direction : {-step, step})
            while (LogJoint(place + direction) > LogJoint(place))
                place += direction;
    m_highest = LogJoint(place);
    m_lower = m_upper = place;
    auto const away = [&](double& limit, double direction)
    {
        for (double step = 1e-7; m_highest - LogJoint(limit) < 50.0; step *= 1.5)
            limit += direction * step;
    };
    away(m_lower, -1.0);
    away(m_upper, 1.0);
    m_logMarginal = m_highest
                    + std::log(Integrate([this](double u) { return std::exp(LogJoint(u) - m_highest); },
                                         m_lower, m_upper));
}

double ExactRegression::LogJoint(double logTau) const
{
    double const tau = std::exp(logTau);
    double const n = static_cast<double>(m_y.size());
    Eigen::MatrixXd const covariance = Eigen::MatrixXd::Identity(m_y.size(), m_y.size()) / tau
                                       + m_x * m_prior.precision.inverse() * m_x.transpose();
    Eigen::LDLT<Eigen::MatrixXd> const root(covariance);
    Eigen::VectorXd const residuals = m_y - m_x * m_prior.mean;
    double const likelihood = -0.5
                              * (n * std::log(2.0 * M_PI) + root.vectorD().array().log().sum()
                                 + residuals.dot(root.solve(residuals)));
    double const prior = m_prior.shape * std::log(m_prior.rate) - std::lgamma(m_prior.shape)
                         + m_prior.shape * logTau - m_prior.rate * tau;
    return likelihood + prior;
}

double ExactRegression::Mean(
    std::function<double(double, Eigen::VectorXd const&, Eigen::MatrixXd const&)> const& function) const
{
    auto const weighted = [&](double logTau)
    {
        double const tau = std::exp(logTau);
        Eigen::MatrixXd const covariance = (m_prior.precision + tau * m_x.transpose() * m_x).inverse();
        Eigen::VectorXd const mean =
            covariance * (m_prior.precision * m_prior.mean + tau * m_x.transpose() * m_y);
        return function(tau, mean, covariance) * std::exp(LogJoint(logTau) - m_logMarginal);
    };
    return Integrate(weighted, m_lower, m_upper);
}

workbench::RegressionData Reduce(Eigen::MatrixXd const& x, Eigen::VectorXd const& y)
{
    workbench::DesignMatrix design;
    design.values.resize(x.rows(), x.cols() + 1);
    design.values << y, x;
    design.columns = {"y"};
    for (Eigen::Index column = 0; column < x.cols(); ++column)
        design.columns.push_back("x" + std::to_string(column));
    workbench::Progress progress;
    return workbench::ReduceRegression(design, false, progress);
}
