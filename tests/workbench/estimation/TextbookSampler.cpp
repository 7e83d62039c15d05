#include "workbench/estimation/TextbookSampler.h"

#include <boost/random/gamma_distribution.hpp>
#include <boost/random/normal_distribution.hpp>

#include <Eigen/Cholesky>

#include "workbench/estimation/RegressionChain.h"

using workbench::Chain;
using workbench::RandomStream;
using workbench::RegressionPosterior;

namespace
{
class TextbookChain : public Chain
{
public:
    TextbookChain(RegressionPosterior const& posterior, RandomStream const& random, double tau,
                  Fault fault)
        : m_posterior(posterior), m_random(random), m_fault(fault), m_tau(tau)
    {
    }

    void Step() override
    {
        auto const& data = m_posterior.Data();
        auto const& prior = m_posterior.Prior();
        Eigen::MatrixXd const cross = data.factor.transpose() * data.factor;
        double const weight = m_fault == Fault::Weight ? 1.0 : m_tau;
        Eigen::LLT<Eigen::MatrixXd> const precision(prior.precision + weight * cross);
        Eigen::VectorXd pull = m_tau * data.factor.transpose() * data.target;
        if (m_fault != Fault::PriorMean)
            pull += prior.precision * prior.mean;
        Eigen::VectorXd const mean = precision.solve(pull);

        boost::random::normal_distribution<double> normal;
        Eigen::VectorXd noise = mean;
        for (auto& element : noise)
            element = normal(m_random);
        m_beta = mean + precision.matrixU().solve(noise);

        double const squares =
            data.SquaresAt((m_fault == Fault::Residuals ? mean : m_beta).transpose())[0];
        double const half = m_fault == Fault::Shape ? 1.0 : 0.5;
        boost::random::gamma_distribution<double> gamma(prior.shape
                                                        + half * static_cast<double>(data.observations));
        m_tau = gamma(m_random) / (prior.rate + 0.5 * squares);
    }

    void Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>> row) const override
    {
        row.head(m_beta.size()) = m_beta.transpose();
        row[m_beta.size()] = m_tau;
    }

private:
    RegressionPosterior const& m_posterior;
    RandomStream m_random;
    Fault m_fault;
    double m_tau;
    Eigen::VectorXd m_beta;
};
} // namespace

RegressionSampler Textbook(Fault fault)
{
    return [fault](RegressionPosterior const& posterior, RandomStream const& random, double tau)
    { return std::make_unique<TextbookChain>(posterior, random, tau, fault); };
}

RegressionSampler OurSampler()
{
    return [](RegressionPosterior const& posterior, RandomStream const& random, double tau)
    { return std::make_unique<workbench::RegressionChain>(posterior, random, tau); };
}
