#include "workbench/estimation/RegressionPosterior.h"

#include <cmath>
#include <utility>

#include <Eigen/Cholesky>
#include <Eigen/QR>
#include <Eigen/SVD>

#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
constexpr double LOG_TWO_PI = 1.83787706640934548356;

/// The rounds in which the pivot comes near the mode, and how near. Any pivot is right; a near one loses
/// fewer digits.
///@{
constexpr int PIVOT_ROUNDS = 100;
constexpr double NEAR = 1e-4;
///@}
} // namespace

RegressionPosterior::RegressionPosterior(RegressionData data, RegressionPrior prior)
    : m_data(std::move(data)), m_prior(std::move(prior))
{
    CheckRegressionPrior(m_prior, m_data.Coefficients());
    m_prior.precision = (0.5 * (m_prior.precision + m_prior.precision.transpose())).eval();
    m_root = m_prior.precision.llt().matrixL();

    auto const factor = m_data.factor.triangularView<Eigen::Upper>();
    Eigen::MatrixXd const relative =
        m_data.factor.transpose().triangularView<Eigen::Lower>().solve(m_root).transpose();
    Error const apart("the prior precision and the data are too many orders of magnitude apart");
    if (!relative.allFinite())
        throw apart;
    Eigen::JacobiSVD<Eigen::MatrixXd, Eigen::NoQRPreconditioner> const svd(relative,
                                                                           Eigen::ComputeFullV);
    m_precisions = svd.singularValues().array().square();
    m_basis = factor.solve(svd.matrixV());
    // Without a likelihood beta would be m, which is so far from what least squares gives.
    Eigen::ArrayXd const pull =
        m_precisions
        * (svd.matrixV().transpose() * (m_data.factor * m_prior.mean - m_data.target)).array();
    if (!m_precisions.allFinite() || !m_basis.allFinite() || !pull.allFinite())
        throw apart;
    FindPivot(pull);
    FindCentre();
}

void RegressionPosterior::FindPivot(Eigen::ArrayXd const& pull)
{
    double squares = m_data.squares;
    for (int round = 0; round < PIVOT_ROUNDS; ++round)
    {
        double const last = m_pivot;
        m_pivot = TauShape() / TauRate(squares);
        m_home = pull / (m_precisions + m_pivot);
        squares = m_data.squares + m_home.square().sum();
        if (std::abs(m_pivot - last) < NEAR * m_pivot)
            break;
    }
}

void RegressionPosterior::FindCentre()
{
    auto const size = m_data.Coefficients();
    double const root = std::sqrt(m_pivot);
    Eigen::MatrixXd both(2 * size, size);
    both << root * m_data.factor, m_root.transpose();
    Eigen::VectorXd right(2 * size);
    right << root * m_data.target, m_root.transpose() * m_prior.mean;
    m_centre = both.householderQr().solve(right);
}

Eigen::VectorXd RegressionPosterior::MeanAt(double tau) const
{
    return m_centre + m_basis * (m_home * (m_pivot - tau) / (m_precisions + tau)).matrix();
}

double RegressionPosterior::LogDeterminantAt(double tau) const
{
    return 2.0 * m_data.factor.diagonal().cwiseAbs().array().log().sum()
           + (m_precisions + tau).log().sum();
}

Eigen::VectorXd RegressionPosterior::LogDensity(Eigen::Ref<Eigen::MatrixXd const> const& betas,
                                                Eigen::Ref<Eigen::VectorXd const> const& taus,
                                                Eigen::Ref<Eigen::VectorXd const> const& squares) const
{
    auto const n = static_cast<double>(m_data.observations);
    auto const k = static_cast<double>(m_data.Coefficients());
    Eigen::ArrayXd const priorSquares =
        ((betas.rowwise() - m_prior.mean.transpose()) * m_root).rowwise().squaredNorm();
    double const constant = -0.5 * (n + k) * LOG_TWO_PI + m_root.diagonal().array().log().sum()
                            + m_prior.shape * std::log(m_prior.rate) - std::lgamma(m_prior.shape);
    auto const tau = taus.array();
    return constant + (0.5 * n + m_prior.shape - 1.0) * tau.log() - m_prior.rate * tau
           - 0.5 * (tau * squares.array() + priorSquares);
}
} // namespace workbench
