#include "workbench/script/EstimationCommands.h"

#include "engine/Globals.h"
#include "workbench/estimation/EstimateRegression.h"
#include "workbench/script/ModelSummary.h"

namespace workbench
{
namespace
{
RegressionPrior PriorOf(Arguments const& arguments, Eigen::Index coefficients)
{
    auto prior = DefaultRegressionPrior(coefficients);
    if (arguments.Has("mean"))
    {
        auto const mean = arguments.MatrixAt("mean");
        if (mean.rows() != 1 && mean.cols() != 1)
            throw ScriptError("the prior mean is a row or a column", arguments.PositionOf("mean"));
        prior.mean = mean.reshaped();
    }
    if (arguments.Has("precision"))
        prior.precision = arguments.MatrixAt("precision");
    prior.shape = arguments.NumberOr("shape", prior.shape);
    prior.rate = arguments.NumberOr("rate", prior.rate);
    return prior;
}
} // namespace

SamplerSettings SettingsOf(Arguments const& arguments)
{
    Eigen::VectorXd numbers = Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs.head(5);
    auto const take = [&](Eigen::Index index, char const* key, std::uint64_t least)
    {
        if (arguments.Has(key))
            numbers[index] = static_cast<double>(arguments.WholeOr(key, 0, least));
    };
    take(0, "draws", 1);
    take(1, "burnin", 0);
    take(2, "chains", 1);
    take(3, "thin", 1);
    take(4, "seed", 1);
    return MakeSamplerSettings(numbers);
}

Outcome RunRegress(Context const& context, Arguments const& arguments)
{
    RegressionTerms const terms{arguments.Text(1), arguments.Names(2), arguments.Flag("constant")};
    auto const dataset = arguments.DatasetAt(0);
    auto const model = EstimateRegression(*dataset, terms, PriorOf(arguments, terms.Coefficients()),
                                          SettingsOf(arguments), context.progress);
    PrintSummary("Estimated " + DescribeModel(*model), *model, context.output, context.progress);
    Outcome outcome;
    outcome.result = model;
    return outcome;
}
} // namespace workbench
