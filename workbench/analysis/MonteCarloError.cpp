#include "workbench/analysis/MonteCarloError.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "workbench/engine/Progress.h"

namespace workbench
{
namespace
{
/// The sum of the products of what is `lag` draws apart in one chain.
double Products(Eigen::ArrayXd const& deviations, Eigen::Index length, Eigen::Index lag)
{
    double sum = 0.0;
    for (Eigen::Index begin = 0; begin < deviations.size(); begin += length)
        sum += deviations.segment(begin, length - lag)
                   .matrix()
                   .dot(deviations.segment(begin + lag, length - lag).matrix());
    return sum;
}
} // namespace

double MonteCarloError(Eigen::ArrayXd const& values, int chains, Progress& progress)
{
    ProgressScope scope(progress, "Estimating the simulation error");
    auto const missing = values.isNaN();
    auto const count = static_cast<double>(values.size() - missing.count());
    if (count == 0.0)
        return std::numeric_limits<double>::quiet_NaN();
    double const mean = missing.select(0.0, values).sum() / count;
    Eigen::ArrayXd const deviations = missing.select(0.0, values - mean);

    Eigen::Index const length = values.size() / chains;
    double sum = 0.0;
    double least = std::numeric_limits<double>::infinity();
    for (Eigen::Index lag = 0; lag < length; lag += 2)
    {
        double pair = Products(deviations, length, lag);
        if (lag + 1 < length)
            pair += Products(deviations, length, lag + 1);
        if (!(pair > 0.0))
            break;
        least = std::min(least, pair);
        sum += least;
        scope.Update(static_cast<std::uint64_t>(lag), static_cast<std::uint64_t>(length));
    }
    return std::sqrt(std::max(0.0, 2.0 * sum - deviations.square().sum())) / count;
}
} // namespace workbench
