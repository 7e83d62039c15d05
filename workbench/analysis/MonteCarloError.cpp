#include "workbench/analysis/MonteCarloError.h"

#include <cmath>
#include <limits>

#include "workbench/analysis/Spread.h"
#include "workbench/estimation/Convergence.h"

namespace workbench
{
double MonteCarloError(Eigen::ArrayXd const& values, int chains)
{
    auto const missing = values.isNaN();
    auto const count = static_cast<double>(values.size() - missing.count());
    if (count == 0.0)
        return std::numeric_limits<double>::quiet_NaN();
    double const mean = missing.select(0.0, values).sum() / count;
    Eigen::VectorXd const deviations = missing.select(0.0, values - mean);
    if (deviations.isZero(0.0))
        return 0.0;
    // Where all draws count their share is one.
    double const share = count / static_cast<double>(values.size());
    double const size = EffectiveSize(deviations.reshaped(values.size() / chains, chains));
    return DeviationOf(deviations, 0.0) / share / std::sqrt(size);
}
} // namespace workbench
