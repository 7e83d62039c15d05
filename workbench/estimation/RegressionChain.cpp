#include "workbench/estimation/RegressionChain.h"

#include <cmath>

namespace workbench
{
RegressionChain::RegressionChain(RegressionPosterior const& posterior, RandomStream const& random)
    : RegressionChain(posterior, random, 0.0)
{
    m_tau = DrawTau(posterior.Data().squares + posterior.Home().square().sum());
}

RegressionChain::RegressionChain(RegressionPosterior const& posterior, RandomStream const& random,
                                 double tau)
    : m_posterior(posterior), m_random(random), m_gamma(posterior.TauShape()),
      m_noise(posterior.Data().Coefficients()), m_variance(m_noise.size()),
      m_delta(Eigen::ArrayXd::Zero(m_noise.size())), m_tau(tau)
{
}

void RegressionChain::Step()
{
    for (auto& noise : m_noise)
        noise = m_normal(m_random);
    auto const& home = m_posterior.Home();
    m_variance = (m_posterior.PriorPrecisions() + m_tau).inverse();
    m_delta = home * m_variance * (m_posterior.Pivot() - m_tau) + m_noise * m_variance.sqrt();
    m_tau = DrawTau(m_posterior.Data().squares + (home + m_delta).square().sum());
}

double RegressionChain::DrawTau(double squares)
{
    return m_gamma(m_random) / m_posterior.TauRate(squares);
}

void RegressionChain::Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>> row) const
{
    auto const size = m_delta.size();
    row.head(size) = m_posterior.Centre().transpose();
    row.head(size).noalias() += m_delta.matrix().transpose() * m_posterior.Basis().transpose();
    row[size] = m_tau;
    row[size + 1] = 1.0 / std::sqrt(m_tau);
}
} // namespace workbench
