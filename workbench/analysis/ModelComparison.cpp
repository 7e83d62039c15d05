#include "workbench/analysis/ModelComparison.h"

#include <algorithm>
#include <cmath>

#include "common/Number.h"
#include "workbench/engine/DesignMatrix.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"

namespace workbench
{
namespace
{
/// By how much a probability of six digits is off at most.
constexpr double ROUNDING = 1e-6;

/// How many observations a model was estimated on; empty if its record does not tell.
std::string ObservationsOf(Model const& model)
{
    auto const found = model.results.find("observations");
    return found == model.results.end() || found->second.size() == 0
               ? std::string()
               : zenqo::FormatNumber(found->second(0, 0));
}

/// The values of a field that at least one of the models tells, each once.
std::string Told(std::vector<std::shared_ptr<Model>> const& models, std::string (*field)(Model const&))
{
    std::vector<std::string> values;
    for (auto const& model : models)
    {
        auto const value = field(*model);
        if (!value.empty() && std::find(values.begin(), values.end(), value) == values.end())
            values.push_back(value);
    }
    std::string told;
    for (std::size_t i = 0; values.size() > 1 && i < values.size(); ++i)
        told += (i == 0 ? "" : ", ") + values[i];
    return told;
}

bool Has(Eigen::MatrixXd const& logML, Approximation approximation)
{
    auto const place = static_cast<Eigen::Index>(approximation);
    return place < logML.size() && std::isfinite(logML.reshaped()[place]);
}
} // namespace

char const* NameOf(Approximation approximation)
{
    return approximation == Approximation::LewisRaftery ? "Lewis-Raftery" : "Chib-Jeliazkov";
}

Candidate CandidateOf(std::string const& name, Model const& model, Approximation wanted)
{
    auto const found = model.results.find("logML");
    auto const logML = found == model.results.end() ? Eigen::MatrixXd() : found->second;
    if (wanted == Approximation::ChibJeliazkov && !Has(logML, wanted))
        wanted = Approximation::LewisRaftery;
    if (!Has(logML, wanted))
        throw Error("the model " + Quoted(name) + " has no log marginal likelihood"
                    + (Has(logML, Approximation::ChibJeliazkov)
                           ? " by Lewis and Raftery; there is one with \"approximation\"=\"CJ\""
                           : ""));
    return {name, logML.reshaped()[static_cast<Eigen::Index>(wanted)], wanted};
}

Eigen::VectorXd CheckedPriors(Eigen::MatrixXd const& priors, std::size_t count)
{
    bool const isVector = priors.rows() == 1 || priors.cols() == 1;
    if (!isVector || static_cast<std::size_t>(priors.size()) != count)
        throw Error("there are " + std::to_string(priors.size()) + " prior probabilities for "
                    + std::to_string(count) + " models");
    Eigen::VectorXd const vector = priors.reshaped();
    if (!(vector.array() > 0.0).all())
        throw Error("prior probabilities are positive");
    double const sum = vector.sum();
    if (!(std::abs(sum - 1.0) <= ROUNDING * static_cast<double>(count)))
        throw Error("prior probabilities sum to one, but these to " + zenqo::FormatNumber(sum));
    return vector / sum;
}

Eigen::VectorXd PosteriorProbabilities(Eigen::VectorXd const& logML, Eigen::VectorXd const& priors)
{
    // The likelihoods themselves are beyond the range of numbers, so their quotients are taken.
    Eigen::ArrayXd const logs = logML.array() + priors.array().log();
    // The matrices' own exponential function does not come down to 0.
    Eigen::ArrayXd const weights
        = (logs - logs.maxCoeff()).unaryExpr([](double log) { return std::exp(log); });
    return weights / weights.sum();
}

std::vector<std::string> Differences(std::vector<std::shared_ptr<Model>> const& models)
{
    struct Field
    {
        char const* name;
        std::string (*value)(Model const&);
    };
    Field const fields[] = {{"dependent variable", [](Model const& model) { return model.dependent; }},
                            {"dataset", [](Model const& model) { return model.dataset; }},
                            {"number of observations", ObservationsOf}};
    std::vector<std::string> differences;
    for (auto const& field : fields)
    {
        auto const told = Told(models, field.value);
        if (!told.empty())
            differences.push_back(std::string("The models differ in the ") + field.name + " (" + told
                                  + "), and only models of one dependent variable on one set of "
                                    "observations can be compared.");
    }
    return differences;
}
} // namespace workbench
