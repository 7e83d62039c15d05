#include "workbench/plot/Autocorrelation.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench
{
Eigen::VectorXd Autocorrelations(Eigen::VectorXd const& series, int lags)
{
    constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();
    Eigen::ArrayXd const there = (!series.array().isNaN()).cast<double>();
    double const mean = series.array().isNaN().select(0.0, series.array()).sum() / there.sum();
    Eigen::ArrayXd deviations = series.array().isNaN().select(0.0, series.array() - mean);
    // Beside the largest of them all are small enough to be squared.
    double const largest = deviations.size() > 0 ? deviations.abs().maxCoeff() : 0.0;
    if (!(largest > 0.0))
        return Eigen::VectorXd::Constant(lags, NOTHING);
    deviations /= largest;
    double const variance = deviations.square().sum() / there.sum();

    Eigen::VectorXd correlations(lags);
    for (int lag = 1; lag <= lags; ++lag)
    {
        Eigen::Index const length = std::max<Eigen::Index>(0, series.size() - lag);
        double const pairs = (there.head(length) * there.tail(length)).sum();
        double const sum = (deviations.head(length) * deviations.tail(length)).sum();
        correlations[lag - 1] = pairs > 0.0 ? sum / (pairs + lag) / variance : NOTHING;
    }
    return correlations;
}

int CorrelogramLags(Eigen::Index n)
{
    auto const rule = static_cast<Eigen::Index>(10.0 * std::log10(static_cast<double>(n)));
    return static_cast<int>(std::min(n - 1, rule));
}

double WhiteNoiseBand(Eigen::Index n) { return 1.959963984540054 / std::sqrt(static_cast<double>(n)); }
} // namespace workbench
