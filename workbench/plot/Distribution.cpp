#include "workbench/plot/Distribution.h"

#include <algorithm>
#include <cmath>

#include <Eigen/Core>

namespace workbench
{
namespace
{
constexpr double MOST_BINS = 200.0;

/// Up to here a whole number and its half can be told apart.
constexpr double LARGEST_WHOLE = 1e15;

double InterquartileRange(SortedValues const& values)
{
    return Quantile(values, 0.75) - Quantile(values, 0.25);
}

bool AreWhole(SortedValues const& values)
{
    return std::abs(values.front()) < LARGEST_WHOLE && std::abs(values.back()) < LARGEST_WHOLE
           && std::all_of(values.begin(), values.end(), [](double v) { return v == std::floor(v); });
}

/// The width that the rule asks for; the values are not all equal.
double WantedWidth(SortedValues const& values)
{
    double const n = static_cast<double>(values.size());
    double const range = values.back() - values.front();
    double const iqr = InterquartileRange(values);
    double const wanted = iqr > 0.0 ? 2.0 * iqr / std::cbrt(n) : range / std::ceil(1.0 + std::log2(n));
    return std::max(wanted, range / MOST_BINS);
}
} // namespace

double Quantile(SortedValues const& values, double p)
{
    double const place = p * static_cast<double>(values.size() - 1);
    auto const below = static_cast<std::size_t>(place);
    auto const above = std::min(below + 1, values.size() - 1);
    return values[below] + (place - std::floor(place)) * (values[above] - values[below]);
}

Histogram MakeHistogram(SortedValues const& values)
{
    Histogram histogram;
    double const range = values.back() - values.front();
    double bins = 1.0;
    if (AreWhole(values))
    {
        if (range > 0.0)
            histogram.width = std::max(1.0, std::round(WantedWidth(values)));
        histogram.start = values.front() - 0.5;
        bins = std::ceil((range + 1.0) / histogram.width);
    }
    else if (range > 0.0)
    {
        // A hair less, so that rounding makes no further bin.
        bins = std::max(1.0, std::ceil(range / WantedWidth(values) - 1e-9));
        histogram.start = values.front();
        histogram.width = range / bins;
    }
    else
    {
        histogram.width = std::max(std::abs(values.front()) / 10.0, 1e-300);
        histogram.start = values.front() - histogram.width / 2.0;
    }

    histogram.counts.resize(static_cast<std::size_t>(bins));
    for (double const value : values)
    {
        double const bin = std::floor((value - histogram.start) / histogram.width);
        ++histogram.counts[static_cast<std::size_t>(std::clamp(bin, 0.0, bins - 1.0))];
    }
    return histogram;
}

double SilvermanBandwidth(SortedValues const& values)
{
    if (values.front() == values.back())
        return 0.0;
    double const n = static_cast<double>(values.size());
    Eigen::Map<Eigen::ArrayXd const> const all(values.data(), static_cast<Eigen::Index>(values.size()));
    double const deviation = (all - all.mean()).matrix().stableNorm() / std::sqrt(n - 1.0);
    double const iqr = InterquartileRange(values);
    double const spread = iqr > 0.0 ? std::min(deviation, iqr / 1.34) : deviation;
    return 0.9 * spread * std::pow(n, -0.2);
}

double KernelDensity(SortedValues const& values, double bandwidth, double x)
{
    constexpr double REACH = 9.0;
    constexpr double SQRT_TWO_PI = 2.50662827463100050242;
    auto const first = std::lower_bound(values.begin(), values.end(), x - REACH * bandwidth);
    auto const last = std::upper_bound(first, values.end(), x + REACH * bandwidth);
    double sum = 0.0;
    for (auto value = first; value != last; ++value)
    {
        double const u = (x - *value) / bandwidth;
        sum += std::exp(-0.5 * u * u);
    }
    return sum / (static_cast<double>(values.size()) * bandwidth * SQRT_TWO_PI);
}
} // namespace workbench
