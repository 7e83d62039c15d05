#include "workbench/estimation/Convergence.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include <boost/math/special_functions/erf.hpp>

#include "workbench/plot/Autocorrelation.h"

namespace workbench
{
namespace
{
constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// Halves of fewer draws tell nothing.
constexpr Eigen::Index SHORTEST = 2;

/// The autocorrelations of this many lags are found first; if they do not suffice, more and more.
constexpr Eigen::Index FIRST_LAGS = 32;

Eigen::MatrixXd Halves(Eigen::MatrixXd const& chains)
{
    auto const half = chains.rows() / 2;
    Eigen::MatrixXd halves(half, 2 * chains.cols());
    halves << chains.topRows(half), chains.bottomRows(half);
    return halves;
}

bool TellNothing(Eigen::MatrixXd const& chains)
{
    return chains.rows() / 2 < SHORTEST || chains.cols() == 0 || !chains.allFinite()
           || chains.minCoeff() == chains.maxCoeff();
}

/// The variance within chains, and the estimate of the whole variance that has that between them in it.
struct Variances
{
    explicit Variances(Eigen::MatrixXd const& halves) : means(halves.colwise().mean())
    {
        double const n = static_cast<double>(halves.rows());
        each = (halves.rowwise() - means).colwise().squaredNorm() / (n - 1.0);
        within = each.mean();
        double const between =
            (means.array() - means.mean()).square().sum() / static_cast<double>(means.size() - 1);
        whole = within * (n - 1.0) / n + between;
    }

    Eigen::RowVectorXd means;
    Eigen::RowVectorXd each; ///< Of each chain.
    double within;
    double whole;
};

/// The autocorrelations of all chains taken together, from lag 0 on, found when they are asked for.
class JointCorrelations
{
public:
    explicit JointCorrelations(Eigen::MatrixXd const& halves) : m_halves(halves), m_variances(halves) {}

    double At(Eigen::Index lag)
    {
        if (lag >= m_values.size())
            Extend(std::min(m_halves.rows() - 1, std::max(FIRST_LAGS, 4 * lag)));
        return m_values[lag];
    }

private:
    void Extend(Eigen::Index lags)
    {
        double const n = static_cast<double>(m_halves.rows());
        Eigen::VectorXd mean = Eigen::VectorXd::Zero(lags);
        for (Eigen::Index chain = 0; chain < m_halves.cols(); ++chain)
            if (m_variances.each[chain] > 0.0)
                mean += m_variances.each[chain]
                        * Autocorrelations(m_halves.col(chain), static_cast<int>(lags));
        mean *= (n - 1.0) / n / static_cast<double>(m_halves.cols());
        m_values.resize(lags + 1);
        m_values << 1.0, 1.0 - (m_variances.within - mean.array()) / m_variances.whole;
    }

    Eigen::MatrixXd const& m_halves;
    Variances m_variances;
    Eigen::VectorXd m_values;
};

/// The draws' ranks as numbers of a standard normal distribution; equal draws share their mean rank.
Eigen::MatrixXd NormalRanks(Eigen::MatrixXd const& draws)
{
    std::vector<Eigen::Index> order(static_cast<std::size_t>(draws.size()));
    std::iota(order.begin(), order.end(), Eigen::Index{0});
    std::sort(order.begin(), order.end(),
              [&](Eigen::Index a, Eigen::Index b) { return draws.data()[a] < draws.data()[b]; });
    Eigen::MatrixXd ranks(draws.rows(), draws.cols());
    double const all = static_cast<double>(draws.size());
    for (std::size_t first = 0, last = 0; first < order.size(); first = last)
    {
        while (last < order.size() && draws.data()[order[last]] == draws.data()[order[first]])
            ++last;
        double const rank = 0.5 * static_cast<double>(first + 1 + last);
        double const normal =
            -std::sqrt(2.0) * boost::math::erfc_inv(2.0 * (rank - 0.375) / (all + 0.25));
        for (std::size_t i = first; i < last; ++i)
            ranks.data()[order[i]] = normal;
    }
    return ranks;
}

double ScaleReduction(Eigen::MatrixXd const& halves)
{
    Variances const variances(halves);
    return std::sqrt(variances.whole / variances.within);
}

double MedianOf(Eigen::MatrixXd const& draws)
{
    std::vector<double> values(draws.data(), draws.data() + draws.size());
    auto const middle = values.begin() + draws.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return draws.size() % 2 == 1 ? *middle : 0.5 * (*middle + *std::max_element(values.begin(), middle));
}
} // namespace

double EffectiveSize(Eigen::MatrixXd const& chains)
{
    if (TellNothing(chains))
        return NOTHING;
    auto const halves = Halves(chains);
    JointCorrelations correlations(halves);
    double sum = 0.0;
    double last = std::numeric_limits<double>::infinity();
    for (Eigen::Index lag = 0; lag + 1 < halves.rows(); lag += 2)
    {
        // The sums of neighbours would fall and stay positive, were it not for noise.
        double const pair = correlations.At(lag) + correlations.At(lag + 1);
        if (!(pair > 0.0))
            break;
        last = std::min(last, pair);
        sum += last;
    }
    double const size = static_cast<double>(halves.size());
    return size / std::max(2.0 * sum - 1.0, 1.0 / std::log10(size));
}

double RHat(Eigen::MatrixXd const& chains)
{
    if (TellNothing(chains))
        return NOTHING;
    auto const halves = Halves(chains);
    Eigen::MatrixXd const folded = (halves.array() - MedianOf(halves)).abs();
    return std::max(ScaleReduction(NormalRanks(halves)), ScaleReduction(NormalRanks(folded)));
}
} // namespace workbench
