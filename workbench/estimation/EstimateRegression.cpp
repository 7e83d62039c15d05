#include "workbench/estimation/EstimateRegression.h"

#include <algorithm>
#include <cmath>

#include "workbench/engine/DesignMatrix.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/estimation/ChainRunner.h"
#include "workbench/estimation/MarginalLikelihood.h"
#include "workbench/estimation/RegressionChain.h"

namespace workbench
{
namespace
{
/// Appends `name`, or what an import would make of it if it is taken.
void AppendUnique(std::vector<std::string>& names, std::string const& name)
{
    auto unique = name;
    for (int count = 2; std::find(names.begin(), names.end(), unique) != names.end(); ++count)
        unique = name + "_" + std::to_string(count);
    names.push_back(unique);
}

Eigen::MatrixXd Row(double first, double second) { return Eigen::RowVector2d(first, second); }
} // namespace

std::shared_ptr<Model> EstimateRegression(Dataset const& dataset, RegressionTerms const& terms,
                                          RegressionPrior const& prior, SamplerSettings const& settings,
                                          Progress& progress)
{
    auto const design = MakeDesignMatrix(dataset, terms.dependent, terms.independent, {});
    RegressionPosterior const posterior(ReduceRegression(design, terms.constant, progress), prior);

    auto const model = std::make_shared<Model>();
    model->draws = RunChains(
        settings, RegressionChain::Columns(terms.Coefficients()),
        [&](int chain)
        { return std::make_unique<RegressionChain>(posterior, MakeRandomStream(settings.seed, chain)); },
        progress);
    if (!model->draws.allFinite())
        throw Error(
            "the draws left the range of numbers: the variables or the prior are too many orders of "
            "magnitude apart");

    model->type = LINEAR_REGRESSION;
    model->chains = settings.chains;
    model->dataset = dataset.name.utf8_string();
    model->dependent = terms.dependent;
    model->independent = posterior.Data().regressors;
    model->drawNames = model->independent;
    AppendUnique(model->drawNames, "tau");
    AppendUnique(model->drawNames, "sigma");
    model->results["logML"] = RegressionLogMarginals(posterior, model->draws);
    model->results["observations"] =
        Row(static_cast<double>(posterior.Data().observations), static_cast<double>(design.omitted));
    model->results["sampler"] = NumbersOf(settings);
    model->results["prior_mean"] = prior.mean;
    model->results["prior_precision"] = prior.precision;
    model->results["prior_tau"] = Row(prior.shape, prior.rate);
    return model;
}
} // namespace workbench
