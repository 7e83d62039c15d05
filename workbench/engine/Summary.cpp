#include "workbench/engine/Summary.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "workbench/engine/Progress.h"
#include "workbench/engine/Quantiles.h"

namespace workbench
{
namespace
{
constexpr double NONE = std::numeric_limits<double>::quiet_NaN();

/// Reports for each column, so that a stop is heard between the steps of a long one.
constexpr std::uint64_t STEPS = 4;

/// For each observation whether all columns have a value on it.
std::vector<bool> CompleteRows(Dataset const& dataset, std::vector<Eigen::Index> const& columns)
{
    std::vector<bool> complete(static_cast<std::size_t>(dataset.data.rows()), true);
    for (auto const column : columns)
        for (Eigen::Index row = 0; row < dataset.data.rows(); ++row)
            if (std::isnan(dataset.data(row, column)))
                complete[static_cast<std::size_t>(row)] = false;
    return complete;
}

/// The mean and the standard deviation; there is at least one value.
void Moments(std::vector<double> const& values, Summary& summary)
{
    auto const count = static_cast<long double>(values.size());
    long double const rough = std::accumulate(values.begin(), values.end(), 0.0L) / count;
    summary.mean = static_cast<double>(rough);
    if (!std::isfinite(rough))
        return;
    long double rest = 0.0L;
    long double squares = 0.0L;
    for (double const value : values)
    {
        long double const difference = value - rough;
        rest += difference;
        squares += difference * difference;
    }
    summary.mean = static_cast<double>(rough + rest / count);
    if (values.size() > 1)
        summary.deviation = static_cast<double>(
            std::sqrt(std::max(0.0L, squares - rest * rest / count) / (count - 1.0L)));
}
} // namespace

std::vector<Summary> Summarize(Dataset const& dataset, std::vector<Eigen::Index> const& columns,
                               SummaryRows rows, Progress& progress)
{
    ProgressScope scope(progress, "Summarizing the variables");
    std::uint64_t done = 0;
    auto const report = [&] { scope.Update(done++, STEPS * columns.size()); };

    std::vector<bool> complete;
    if (rows == SummaryRows::Complete)
        complete = CompleteRows(dataset, columns);
    std::vector<Summary> summaries;
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(dataset.data.rows()));
    for (auto const column : columns)
    {
        report();
        values.clear();
        for (Eigen::Index row = 0; row < dataset.data.rows(); ++row)
        {
            double const value = dataset.data(row, column);
            if (!std::isnan(value) && (complete.empty() || complete[static_cast<std::size_t>(row)]))
                values.push_back(value);
        }
        Summary summary{
            static_cast<Eigen::Index>(values.size()), NONE, NONE, NONE, NONE, NONE, NONE, NONE};
        if (!values.empty())
        {
            Moments(values, summary);
            auto const [smallest, largest] = std::minmax_element(values.begin(), values.end());
            summary.minimum = *smallest;
            summary.maximum = *largest;
            QuantileTaker quantiles(values.data(), values.data() + values.size());
            report();
            summary.lowerQuartile = quantiles.Take(1, 4);
            report();
            summary.median = quantiles.Take(2, 4);
            report();
            summary.upperQuartile = quantiles.Take(3, 4);
        }
        summaries.push_back(summary);
        done = STEPS * summaries.size();
    }
    return summaries;
}
} // namespace workbench
