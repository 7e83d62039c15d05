#include "workbench/analysis/Spread.h"

#include <cmath>
#include <limits>

#include "workbench/engine/Quantiles.h"

namespace workbench
{
Spread SpreadOf(Eigen::Ref<Eigen::VectorXd> draws)
{
    constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();
    if (draws.size() == 0 || !draws.allFinite())
        return {NOTHING, NOTHING, NOTHING, NOTHING, NOTHING};
    double const mean = draws.mean();
    double const deviation = DeviationOf(draws, mean);
    QuantileTaker quantiles(draws.data(), draws.data() + draws.size());
    double const low = quantiles.Take(1, 20);
    double const median = quantiles.Take(1, 2);
    return {mean, deviation, low, median, quantiles.Take(19, 20)};
}

double DeviationOf(Eigen::Ref<Eigen::VectorXd const> const& draws, double mean)
{
    double const rest = (draws.array() - mean).mean();
    return std::sqrt((draws.array() - mean - rest).square().sum() / static_cast<double>(draws.size() - 1));
}
} // namespace workbench
