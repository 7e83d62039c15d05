#pragma once

#include <boost/random/gamma_distribution.hpp>
#include <boost/random/normal_distribution.hpp>

#include "workbench/estimation/ChainRunner.h"
#include "workbench/estimation/RandomStream.h"
#include "workbench/estimation/RegressionPosterior.h"

namespace workbench
{
/// The Gibbs sampler of a linear regression: beta is drawn given tau, then tau given beta
/// (RegressionPosterior tells the distributions). A draw is beta, tau, and sigma = tau^(-1/2).
class RegressionChain : public Chain
{
public:
    /// The chain begins with a tau that is drawn as if beta were the centre of `posterior`, which must
    /// outlive it.
    RegressionChain(RegressionPosterior const& posterior, RandomStream const& random);

    /// The chain begins with `tau`.
    RegressionChain(RegressionPosterior const& posterior, RandomStream const& random, double tau);

    void Step() override;
    void Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>> row) const override;

    /// The numbers in a draw of so many coefficients.
    static Eigen::Index Columns(Eigen::Index coefficients) { return coefficients + 2; }

private:
    double DrawTau(double squares);

    RegressionPosterior const& m_posterior;
    RandomStream m_random;
    boost::random::normal_distribution<double> m_normal;
    boost::random::gamma_distribution<double> m_gamma;
    Eigen::ArrayXd m_noise;
    Eigen::ArrayXd m_variance;
    Eigen::ArrayXd m_delta; ///< beta, in the posterior's coordinates.
    double m_tau;
};
} // namespace workbench
