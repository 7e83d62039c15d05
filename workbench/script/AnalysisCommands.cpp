#include "workbench/script/AnalysisCommands.h"

#include <cmath>

#include "workbench/analysis/Conditions.h"
#include "workbench/analysis/Draws.h"
#include "workbench/analysis/ModelComparison.h"
#include "workbench/engine/Expression.h"
#include "workbench/engine/InputFile.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
namespace
{
Approximation ApproximationAt(Arguments const& arguments, char const* key)
{
    auto const name = arguments.Has(key) ? arguments.Text(key) : "LR";
    if (name != "LR" && name != "CJ")
        throw ScriptError("expected \"LR\" or \"CJ\" as the approximation, but found " + Quoted(name),
                          arguments.PositionOf(key));
    return name == "LR" ? Approximation::LewisRaftery : Approximation::ChibJeliazkov;
}

Eigen::VectorXd PriorsAt(Arguments const& arguments, char const* key, std::size_t count)
{
    if (!arguments.Has(key))
        return Eigen::VectorXd::Constant(static_cast<Eigen::Index>(count),
                                         1.0 / static_cast<double>(count));
    try
    {
        return CheckedPriors(arguments.MatrixAt(key), count);
    }
    catch (Error const& error)
    {
        throw ScriptError(error.what(), arguments.PositionOf(key));
    }
}

Condition ConditionAt(Context const& context, Arguments const& arguments, std::size_t index,
                      Model const& model)
{
    try
    {
        return EvaluateCondition(arguments.Text(index), arguments.Text(0), model, context.progress);
    }
    catch (ExpressionError const& error)
    {
        throw ScriptError(error.what(), arguments.PlaceIn(index, error.offset));
    }
}

std::vector<std::string> VerdictRow(std::string const& condition, Verdict const& verdict)
{
    return {AsCell(condition), std::to_string(verdict.draws), NumberCell(verdict.probability),
            NumberCell(verdict.error)};
}

/// Warns of what a number in the table cannot tell.
void WarnOf(std::string const& text, Condition const& condition, Verdict const& verdict, Output& output)
{
    auto const undefined = condition.holds.size() - verdict.draws;
    if (undefined > 0)
        output.Warning("The condition " + Quoted(text) + " has no value in "
                       + Count(undefined, "draw", "draws") + " of "
                       + std::to_string(condition.holds.size())
                       + ", which are left out: an operation is not defined there, as the logarithm of "
                         "a negative number.");
    if (verdict.draws > 0 && IsVainEquality(condition, verdict))
        output.Warning("The probability of " + Quoted(text)
                       + " says nothing about the model: two draws of continuous quantities are never "
                         "equal, whatever is true. Test whether the difference is small, with a "
                         "condition for each of its bounds.");
}
} // namespace

Outcome RunCompare(Context const& context, Arguments const& arguments)
{
    auto const names = arguments.Names(0);
    auto const models = arguments.ModelsAt(0);
    auto const wanted = ApproximationAt(arguments, "approximation");
    auto const priors = PriorsAt(arguments, "priors", models.size());
    Eigen::VectorXd logML(priors.size());
    std::vector<Candidate> candidates;
    for (std::size_t i = 0; i < models.size(); ++i)
    {
        candidates.push_back(CandidateOf(names[i], *models[i], wanted));
        logML[static_cast<Eigen::Index>(i)] = candidates.back().logML;
    }
    auto const probabilities = PosteriorProbabilities(logML, priors);

    Eigen::Index best = 0;
    double const largest = logML.maxCoeff(&best);
    std::vector<std::vector<std::string>> rows;
    for (Eigen::Index i = 0; i < logML.size(); ++i)
    {
        auto const& candidate = candidates[static_cast<std::size_t>(i)];
        rows.push_back({candidate.name, NameOf(candidate.approximation), NumberCell(logML[i]),
                        NumberCell(priors[i]), NumberCell(probabilities[i]),
                        NumberCell(std::exp(logML[i] - largest))});
    }
    context.output.Text("\nComparison of " + Count(logML.size(), "model", "models")
                        + "; Bayes factors against " + names[static_cast<std::size_t>(best)] + "\n"
                        + FormatTable({{"model", true},
                                       {"approximation", true},
                                       {"log-ML", false},
                                       {"prior", false},
                                       {"posterior", false},
                                       {"Bayes factor", false}},
                                      rows));
    for (auto const& difference : Differences(models))
        context.output.Warning(difference);
    Outcome outcome;
    outcome.result = std::make_shared<Eigen::MatrixXd>(probabilities);
    return outcome;
}

Outcome RunTest(Context const& context, Arguments const& arguments)
{
    auto const& name = arguments.Text(0);
    auto const model = arguments.ModelAt(0);
    CheckDraws(*model, name);
    int const chains = ChainsOf(*model);

    std::vector<Condition> conditions;
    for (std::size_t i = 1; i < arguments.Count(); ++i)
        conditions.push_back(ConditionAt(context, arguments, i, *model));
    Eigen::ArrayXd all = Eigen::ArrayXd::Ones(model->draws.rows());
    std::vector<Verdict> verdicts;
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < conditions.size(); ++i)
    {
        verdicts.push_back(Judge(conditions[i].holds, chains));
        rows.push_back(VerdictRow(arguments.Text(i + 1), verdicts[i]));
        all *= conditions[i].holds;
    }
    if (conditions.size() > 1)
        rows.push_back(VerdictRow("all together", Judge(all, chains)));

    auto const count = static_cast<Eigen::Index>(conditions.size());
    context.output.Text("\nTest of " + Count(count, "condition", "conditions") + " on " + name + "\n"
                        + FormatTable({{"condition", true}, {"draws", false}, {"probability", false},
                                       {"st.error", false}},
                                      rows));
    for (std::size_t i = 0; i < conditions.size(); ++i)
        WarnOf(arguments.Text(i + 1), conditions[i], verdicts[i], context.output);
    return {};
}
} // namespace workbench
