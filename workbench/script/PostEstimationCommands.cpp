#include "workbench/script/PostEstimationCommands.h"

#include <cmath>

#include "workbench/analysis/Effects.h"
#include "workbench/analysis/Predictions.h"
#include "workbench/analysis/RegressionDraws.h"
#include "workbench/analysis/Spread.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Quantiles.h"
#include "workbench/engine/Variables.h"
#include "workbench/script/DataCommands.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
namespace
{
constexpr int MOST_PERIODS = 100000;

/// What the tables of a spread have behind their first columns.
constexpr char const* SPREAD_TITLES[] = {"mean", "st.dev.", "5%", "median", "95%"};

/// The endings of the variables of a prediction over the draws.
constexpr char const* PREDICTION_ENDINGS[] = {"_mean", "_sd", "_q05", "_q95"};

/// A whole number from 1 to `most` that an argument or an option is.
int NumberUpTo(int most, Arguments const& arguments, Arguments::Which const& which, std::string const& what)
{
    double const number = arguments.Number(which);
    if (!(number >= 1.0 && number <= most) || number != std::floor(number))
        throw ScriptError(what + " is a whole number from 1 to " + std::to_string(most),
                          arguments.PositionOf(which));
    return static_cast<int>(number);
}

int TypeUpTo(int most, Arguments const& arguments)
{
    return arguments.Has("type") ? NumberUpTo(most, arguments, "type", "the type") : 1;
}

RegressionDraws RegressionAt(Arguments const& arguments, Model const& model)
{
    return {model, arguments.Text(0)};
}

std::string SizeOf(Eigen::MatrixXd const& matrix)
{
    return "a matrix of " + std::to_string(matrix.rows()) + " by " + std::to_string(matrix.cols());
}

/// Points in the space of the variables, and how a title says where they are.
struct Points
{
    Eigen::MatrixXd values;
    std::string where;
};

/// The median of each column.
Eigen::RowVectorXd MediansOf(Eigen::MatrixXd values)
{
    Eigen::RowVectorXd medians(values.cols());
    for (Eigen::Index column = 0; column < values.cols(); ++column)
        medians[column] = QuantileTaker(values.col(column).data(),
                                        values.col(column).data() + values.rows())
                              .Take(1, 2);
    return medians;
}

/// The point that is written out, as a row or a column.
Points WrittenPoint(Arguments const& arguments, RegressionDraws const& regression)
{
    Eigen::MatrixXd const matrix = arguments.MatrixAt("point");
    auto const count = static_cast<Eigen::Index>(regression.Variables().size());
    bool const isVector = matrix.rows() == 1 || matrix.cols() == 1;
    if (!isVector || matrix.size() != count)
        throw ScriptError("expected " + Count(count, "value", "values")
                              + " as the point, one for each regressor other than the constant, but found "
                              + SizeOf(matrix),
                          arguments.PositionOf("point"));
    if (!matrix.allFinite())
        throw ScriptError("a point has no missing and no infinite values", arguments.PositionOf("point"));
    return {matrix.reshaped().transpose(), "at the given point"};
}

Points PointsAt(Context const& context, Arguments const& arguments, RegressionDraws const& regression)
{
    if (arguments.Has("point") && !arguments.IsString("point"))
        return WrittenPoint(arguments, regression);
    auto const word = arguments.Has("point") ? arguments.Text("point") : "mean";
    if (word != "mean" && word != "median" && word != "x_i")
        throw ScriptError("expected \"mean\", \"median\", \"x_i\" or a matrix as the point, but found "
                              + Quoted(word),
                          arguments.PositionOf("point"));
    auto const observations = regression.Observations(context.workspace.datasets);
    if (word == "x_i")
        return {observations,
                "on average over " + Count(observations.rows(), "observation", "observations")};
    if (word == "mean")
        return {observations.colwise().mean(), "at the mean of the data"};
    return {MediansOf(observations), "at the median of the data"};
}

std::string EffectText(EffectType type, std::string const& dependent)
{
    switch (type)
    {
    case EffectType::SemiElasticity:
        return "semi-elasticities dlnE(" + dependent + ")/dx";
    case EffectType::Elasticity:
        return "elasticities dlnE(" + dependent + ")/dlnx";
    case EffectType::Marginal:
        break;
    }
    return "marginal effects dE(" + dependent + ")/dx";
}

/// Adds the columns of a spread to a table's titles, and gives the titles.
std::vector<TableColumn> WithSpread(std::vector<TableColumn> columns)
{
    for (auto const* const title : SPREAD_TITLES)
        columns.push_back({title, false});
    return columns;
}

void AddCells(std::vector<std::string>& cells, Eigen::RowVectorXd const& numbers)
{
    for (double const number : numbers)
        cells.push_back(NumberCell(number));
}

/// Warns of draws and elasticities that are not in the table.
void WarnOf(Effects const& effects, RegressionDraws const& regression, Output& output)
{
    if (effects.omitted > 0)
        output.Warning("Left out: " + Count(effects.omitted, "draw", "draws") + " of "
                       + std::to_string(regression.Count()) + ", in which the expected value of "
                       + Quoted(regression.Dependent()) + " is not positive and has no logarithm.");
    for (std::size_t i = 0; i < regression.Variables().size(); ++i)
        if (effects.draws.col(static_cast<Eigen::Index>(i)).hasNaN())
            output.Warning("There is no elasticity with respect to " + Quoted(regression.Variables()[i])
                           + ", which is not positive there and has no logarithm.");
}
} // namespace

Outcome RunEffects(Context const& context, Arguments const& arguments)
{
    auto const type = static_cast<EffectType>(TypeUpTo(3, arguments));
    auto const model = arguments.ModelAt(0);
    auto const regression = RegressionAt(arguments, *model);
    auto const& variables = regression.Variables();
    if (variables.empty())
        throw Error("the model " + Quoted(arguments.Text(0)) + " has no regressor but the constant");
    auto const points = PointsAt(context, arguments, regression);
    auto effects = EffectsAt(regression, points.values, type, context.progress);
    if (effects.draws.rows() == 0)
        throw Error("the expected value of " + Quoted(regression.Dependent())
                    + " is positive in no draw, and so has no logarithm");

    bool const onePoint = points.values.rows() == 1;
    auto const result = std::make_shared<Eigen::MatrixXd>(variables.size(), std::size(SPREAD_TITLES));
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < variables.size(); ++i)
    {
        auto const column = static_cast<Eigen::Index>(i);
        Eigen::VectorXd draws = effects.draws.col(column);
        auto const spread = SpreadOf(draws);
        result->row(column) << spread.mean, spread.deviation, spread.low, spread.median, spread.high;
        rows.push_back({AsCell(variables[i])});
        if (onePoint)
            rows.back().push_back(NumberCell(points.values(0, column)));
        AddCells(rows.back(), result->row(column));
    }
    std::vector<TableColumn> titles{{"x", true}};
    if (onePoint)
        titles.push_back({"at", false});
    context.output.Text("\nModel " + arguments.Text(0) + ", " + EffectText(type, regression.Dependent())
                        + " " + points.where + ": " + Count(effects.draws.rows(), "draw", "draws") + "\n"
                        + FormatTable(WithSpread(std::move(titles)), rows));
    WarnOf(effects, regression, context.output);
    Outcome outcome;
    outcome.result = result;
    return outcome;
}

Outcome RunForecast(Context const& context, Arguments const& arguments)
{
    auto const periods = NumberUpTo(MOST_PERIODS, arguments, 1, "the number of periods");
    auto const model = arguments.ModelAt(0);
    auto const regression = RegressionAt(arguments, *model);
    auto const count = static_cast<Eigen::Index>(regression.Variables().size());
    Eigen::MatrixXd values;
    if (!arguments.Has("W"))
    {
        Eigen::RowVectorXd means(count);
        if (count > 0)
            means = regression.Observations(context.workspace.datasets).colwise().mean();
        values = means.replicate(periods, 1);
    }
    else
    {
        values = arguments.MatrixAt("W");
        if (values.rows() != periods || values.cols() != count)
            throw ScriptError("expected " + SizeOf(Eigen::MatrixXd(periods, count))
                                  + " as \"W\", a row for each period and a column for each regressor "
                                    "other than the constant, but found "
                                  + SizeOf(values),
                              arguments.PositionOf("W"));
        if (!values.allFinite())
            throw ScriptError("\"W\" has no missing and no infinite values", arguments.PositionOf("W"));
    }

    auto const result
        = std::make_shared<Eigen::MatrixXd>(Forecast(regression, values, context.progress));
    std::vector<std::vector<std::string>> rows;
    for (Eigen::Index period = 0; period < periods; ++period)
    {
        rows.push_back({"T+" + std::to_string(period + 1)});
        AddCells(rows.back(), result->row(period));
    }
    context.output.Text("\nForecast of " + regression.Dependent() + " by " + arguments.Text(0) + ", "
                        + (arguments.Has("W") || count == 0 ? "" : "regressors at the mean of the data, ")
                        + Count(regression.Count(), "draw", "draws") + "\n"
                        + FormatTable(WithSpread({{"period", true}}), rows));
    Outcome outcome;
    outcome.result = result;
    return outcome;
}

Outcome RunPredict(Context const& context, Arguments const& arguments)
{
    auto const type = static_cast<PredictionType>(TypeUpTo(2, arguments));
    auto const model = arguments.ModelAt(0);
    auto const regression = RegressionAt(arguments, *model);
    auto const& owner = arguments.Text(1);
    auto const dataset = arguments.DatasetAt(1);
    auto const name = (arguments.Has("prefix") ? arguments.Text("prefix") : "p_") + regression.Dependent();
    std::vector<std::string> names{name};
    Eigen::MatrixXd values;
    if (arguments.Flag("stats"))
    {
        names.clear();
        for (auto const* const ending : PREDICTION_ENDINGS)
            names.push_back(name + ending);
        values = PredictOverDraws(regression, *dataset, type, context.progress);
    }
    else
        values = PredictAtMean(regression, *dataset, type, context.progress);
    auto const made = WithVariables(*dataset, names, values, context.progress);
    for (std::size_t i = 0; i < names.size(); ++i)
        TellVariable(owner, names[i], values.rows(),
                     values.col(static_cast<Eigen::Index>(i)).array().isNaN().count(), 0, context.output);
    return ReplaceDataset(context, owner, made, names);
}

Outcome RunStore(Context const& context, Arguments const& arguments)
{
    auto const& element = arguments.Text(1);
    if (element != "fitted" && element != "residuals")
        throw ScriptError("expected \"fitted\" or \"residuals\" as the element, but found " + Quoted(element),
                          arguments.PositionOf(1));
    auto const model = arguments.ModelAt(0);
    auto const regression = RegressionAt(arguments, *model);
    auto const& owner = arguments.Text(2);
    auto const dataset = arguments.DatasetAt(2);
    auto const values
        = element == "fitted"
              ? PredictAtMean(regression, *dataset, PredictionType::ExpectedValue, context.progress)
              : ResidualsAtMean(regression, *dataset, context.progress);
    auto const made = WithVariable(*dataset, arguments.Text(3), values, context.progress);
    TellVariable(owner, arguments.Text(3), values.size(), values.array().isNaN().count(), 0, context.output);
    return ReplaceDataset(context, owner, made, {arguments.Text(3)});
}
} // namespace workbench
