#include "workbench/estimation/PosteriorSummary.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "workbench/analysis/Draws.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Quantiles.h"
#include "workbench/estimation/Convergence.h"

namespace workbench
{
namespace
{
constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// Where the quantiles are.
constexpr std::array<std::size_t, 5> FORTIETHS = {1, 2, 20, 38, 39};

DrawSummary Nothing(std::string const& name)
{
    DrawSummary summary;
    summary.name = name;
    summary.quantiles.fill(NOTHING);
    summary.mean = summary.deviation = summary.error = summary.effectiveSize = summary.rHat = NOTHING;
    return summary;
}

/// `chains` has a chain in each column, and one draw at least.
DrawSummary Summarize(std::string const& name, Eigen::MatrixXd const& chains)
{
    DrawSummary summary = Nothing(name);
    if (chains.hasNaN())
        return summary;
    double const n = static_cast<double>(chains.size());
    summary.mean = chains.mean();
    if (chains.size() > 1)
        summary.deviation = (chains.array() - summary.mean).matrix().stableNorm() / std::sqrt(n - 1.0);
    summary.effectiveSize = EffectiveSize(chains);
    summary.error = summary.deviation / std::sqrt(summary.effectiveSize);
    summary.rHat = RHat(chains);

    std::vector<double> values(chains.data(), chains.data() + chains.size());
    QuantileTaker quantiles(values.data(), values.data() + values.size());
    std::transform(FORTIETHS.begin(), FORTIETHS.end(), summary.quantiles.begin(),
                   [&](std::size_t part) { return quantiles.Take(part, 40); });
    return summary;
}
} // namespace

std::vector<DrawSummary> SummarizeDraws(Model const& model, Progress& progress)
{
    ProgressScope scope(progress, "Summarizing the draws");
    auto const& draws = model.draws;
    bool const there =
        draws.rows() > 0 && draws.cols() == static_cast<Eigen::Index>(model.drawNames.size());
    auto const chains = ChainsOf(model);
    std::vector<DrawSummary> summaries;
    for (auto const& name : model.drawNames)
    {
        auto const column = static_cast<Eigen::Index>(summaries.size());
        scope.Update(static_cast<double>(column) / static_cast<double>(model.drawNames.size()));
        if (there)
            summaries.push_back(
                Summarize(name, draws.col(column).reshaped(draws.rows() / chains, chains)));
        else
            summaries.push_back(Nothing(name));
    }
    return summaries;
}
} // namespace workbench
