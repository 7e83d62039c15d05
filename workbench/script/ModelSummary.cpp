#include "workbench/script/ModelSummary.h"

#include <cmath>
#include <vector>

#include "workbench/analysis/Draws.h"
#include "workbench/estimation/PosteriorSummary.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
namespace
{
/// The numbers of a result that has `count` of them; none if it is not there, or is another thing.
std::vector<double> Numbers(Model const& model, char const* result, Eigen::Index count)
{
    auto const found = model.results.find(result);
    if (found == model.results.end() || found->second.size() != count)
        return {};
    return {found->second.data(), found->second.data() + count};
}

/// A whole number with all its digits, as long as it has not too many.
std::string WholeCell(double value)
{
    return std::abs(value) < 1e16 ? std::to_string(static_cast<long long>(value)) : NumberCell(value);
}

std::string ObservationsLine(Model const& model)
{
    auto const numbers = Numbers(model, "observations", 2);
    if (numbers.empty())
        return {};
    return "observations: " + WholeCell(numbers[0]) + ", left out: " + WholeCell(numbers[1]) + "\n";
}

std::string SamplerLine(Model const& model)
{
    auto const chains = ChainsOf(model);
    std::string line =
        Count(chains, "chain", "chains") + " of " + Count(model.draws.rows() / chains, "draw", "draws");
    auto const numbers = Numbers(model, "sampler", 5);
    if (!numbers.empty())
        line += ", burn-in " + WholeCell(numbers[1]) + ", thinning " + WholeCell(numbers[3]) + ", seed "
                + WholeCell(numbers[4]);
    return line + "\n";
}

std::string LogMarginalLine(Model const& model)
{
    auto const numbers = Numbers(model, "logML", 2);
    if (numbers.empty())
        return {};
    auto const told = [](double value) { return std::isnan(value) ? "not known" : NumberCell(value); };
    return "log marginal likelihood: " + told(numbers[0]) + " (Lewis and Raftery), " + told(numbers[1])
           + " (Chib)\n";
}

/// To so many digits behind the point.
double Rounded(double value, int digits)
{
    double const scale = std::pow(10.0, digits);
    return std::round(value * scale) / scale;
}

std::string DrawsTable(Model const& model, Progress& progress)
{
    std::vector<std::vector<std::string>> rows;
    for (auto const& draws : SummarizeDraws(model, progress))
    {
        auto const& quantiles = draws.quantiles;
        rows.push_back({AsCell(draws.name), NumberCell(draws.mean), NumberCell(draws.deviation),
                        NumberCell(quantiles[0]), NumberCell(quantiles[2]), NumberCell(quantiles[4]),
                        NumberCell(draws.error), NumberCell(Rounded(draws.effectiveSize, 0)),
                        NumberCell(Rounded(draws.rHat, 3))});
    }
    return FormatTable({{"parameter", true},
                        {"mean", false},
                        {"st.dev.", false},
                        {"2.5%", false},
                        {"median", false},
                        {"97.5%", false},
                        {"mcse", false},
                        {"ess", false},
                        {"R-hat", false}},
                       rows);
}
} // namespace

std::string DescribeModel(Model const& model)
{
    if (model.type.empty())
        return "draws of "
               + Count(static_cast<Eigen::Index>(model.drawNames.size()), "quantity", "quantities");
    std::string text = model.type;
    if (!model.dependent.empty())
        text += " of " + model.dependent;
    if (!model.dataset.empty())
        text += ", dataset " + model.dataset;
    return text;
}

void PrintSummary(std::string const& title, Model const& model, Output& output, Progress& progress)
{
    auto const table = DrawsTable(model, progress);
    output.Text("\n" + title + "\n" + ObservationsLine(model) + SamplerLine(model) + table
                + LogMarginalLine(model));
}
} // namespace workbench
