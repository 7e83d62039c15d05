#include "workbench/script/Commands.h"

#include <cmath>

#include "workbench/engine/DelimitedText.h"
#include "workbench/engine/DesignMatrix.h"
#include "workbench/engine/WorkspaceFile.h"
#include "workbench/script/AnalysisCommands.h"
#include "workbench/script/DataCommands.h"
#include "workbench/script/EstimationCommands.h"
#include "workbench/script/Output.h"
#include "workbench/script/OutsideCommands.h"
#include "workbench/script/PlotCommands.h"
#include "workbench/script/PostEstimationCommands.h"
#include "workbench/script/Print.h"

namespace workbench
{
namespace
{
constexpr int MOST_LAGS = 1000000;

Outcome RunClear(Context const&, Arguments const& arguments)
{
    arguments.AnyObject(0);
    Outcome outcome;
    outcome.removed.push_back(arguments.Text(0));
    return outcome;
}

/// The lags of a variable: whole numbers, in a row or a column.
std::vector<int> LagsOf(Arguments const& arguments, std::size_t index)
{
    std::vector<int> lags;
    if (index >= arguments.Count())
        return lags;
    Eigen::MatrixXd const matrix = arguments.MatrixAt(index);
    for (double const lag : matrix.reshaped())
    {
        if (!(std::abs(lag) <= MOST_LAGS) || lag != std::floor(lag))
            throw ScriptError("a lag is a whole number between " + std::to_string(-MOST_LAGS) + " and "
                                  + std::to_string(MOST_LAGS),
                              arguments.PositionOf(index));
        lags.push_back(static_cast<int>(lag));
    }
    return lags;
}

Outcome RunDesign(Context const& context, Arguments const& arguments)
{
    auto const design = MakeDesignMatrix(*arguments.DatasetAt(0), arguments.Text(1),
                                         arguments.Names(2), LagsOf(arguments, 3));
    std::string text = "\n" + std::to_string(design.values.rows()) + " observations, "
                       + std::to_string(design.omitted) + " left out; columns:";
    for (auto const& column : design.columns)
        text += " " + column;
    context.output.Text(text + "\n");
    Outcome outcome;
    outcome.result = std::make_shared<Eigen::MatrixXd>(design.values);
    return outcome;
}

Outcome RunExport(Context const& context, Arguments const& arguments)
{
    auto const& name = arguments.Text(0);
    auto const& path = arguments.Text(1);
    char const delimiter = arguments.Delimiter(2);
    auto const object = arguments.AnyObject(0);
    if (auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&object))
        ExportMatrix(**matrix, name, path, delimiter, context.progress);
    else
        ExportDelimited(*arguments.DatasetAt(0), path, delimiter, context.progress);
    return {};
}

Outcome RunHelp(Context const& context, Arguments const&)
{
    std::string text = "\n";
    for (auto const& command : Commands())
        text += command.Usage() + "\n    " + command.help + "\n";
    context.output.Text(text);
    return {};
}

Outcome RunImport(Context const& context, Arguments const& arguments)
{
    auto const import = ImportDelimited(arguments.Text(0), arguments.Delimiter(1), context.progress);
    if (!import.warning.empty())
        context.output.Warning(import.warning);
    Outcome outcome;
    outcome.result = import.dataset;
    return outcome;
}

Outcome RunLoad(Context const& context, Arguments const& arguments)
{
    Outcome outcome;
    outcome.workspace = LoadWorkspace(arguments.Text(0), context.progress);
    outcome.stored = arguments.Text(0);
    return outcome;
}

Outcome RunPrint(Context const& context, Arguments const& arguments)
{
    Print(arguments.Text(0), arguments.AnyObject(0), context.output, context.progress);
    PrintStructure(arguments.Text(0), context.workspace.StructureOf(arguments.Text(0)), context.output);
    return {};
}

Outcome RunSave(Context const& context, Arguments const& arguments)
{
    SaveWorkspace(context.workspace, arguments.Text(0), context.progress);
    Outcome outcome;
    outcome.stored = arguments.Text(0);
    return outcome;
}
} // namespace

std::vector<Command> const& Commands()
{
    using Kind = ParameterKind;
    // What goes to a script of another program, and comes back.
    std::vector<Parameter> const scriptParameters
        = {{"script", Kind::String}, {"out", Kind::String}, {"back", Kind::String}};
    static std::vector<Command> const commands = {
        {"clear",
         {{"name", Kind::ObjectName}},
         Naming::Never,
         "Takes an object out of the workspace.",
         RunClear},
        {"compare",
         {{"models", Kind::String}},
         Naming::Optional,
         "Tells how probable models are, given the data, by their marginal likelihoods.",
         RunCompare,
         {{"priors", Kind::Matrix}, {"approximation", Kind::String}}},
        {"create",
         {{"dataset", Kind::DatasetName}, {"name", Kind::String}, {"expression", Kind::String}},
         Naming::Never,
         "Makes or replaces a variable of a dataset.",
         RunCreate},
        {"design",
         {{"name", Kind::DatasetName},
          {"dependent", Kind::String},
          {"independent", Kind::String},
          {"lags", Kind::Matrix, Given::Perhaps}},
         Naming::Always,
         "Makes the matrix of a dependent variable, independent ones and lags of the dependent one.",
         RunDesign},
        {"drop",
         {{"dataset", Kind::DatasetName}, {"variables", Kind::String}},
         Naming::Never,
         "Takes variables out of a dataset.",
         RunDrop},
        {"export",
         {{"name", Kind::ObjectName}, {"path", Kind::String}, {"delimiter", Kind::Delimiter}},
         Naming::Never,
         "Writes a dataset or a matrix to a file of delimited text.",
         RunExport},
        {"forecast",
         {{"model", Kind::ModelName}, {"periods", Kind::Number}},
         Naming::Optional,
         "Forecasts the dependent variable of a model for some periods.",
         RunForecast,
         {{"W", Kind::Matrix}}},
        {"help", {}, Naming::Never, "Lists the commands.", RunHelp},
        {"import",
         {{"path", Kind::String}, {"delimiter", Kind::Delimiter}},
         Naming::Always,
         "Reads a dataset from a file of delimited text, whose first line holds the variable names.",
         RunImport},
        {"jags",
         {{"model", Kind::String}, {"data", Kind::String}, {"monitors", Kind::String}},
         Naming::Optional,
         "Samples from the posterior of a model that is written for JAGS.",
         RunJagsCommand,
         {{"inits", Kind::String},
          {"draws", Kind::Number},
          {"burnin", Kind::Number},
          {"chains", Kind::Number},
          {"thin", Kind::Number},
          {"seed", Kind::Number}}},
        {"load",
         {{"path", Kind::String}},
         Naming::Never,
         "Replaces the whole workspace by that of a workspace file.",
         RunLoad},
        {"mfx",
         {{"model", Kind::ModelName}},
         Naming::Optional,
         "Tells how much the dependent variable of a model changes with each regressor.",
         RunEffects,
         {{"point", Kind::Point}, {"type", Kind::Number}}},
        {"octave",
         scriptParameters,
         Naming::Never,
         "Runs a script of GNU Octave on objects of the workspace, and takes objects back.",
         RunOctaveCommand},
        {"plot",
         {{"name", Kind::ObjectName},
          {"variables", Kind::String},
          {"type", Kind::String},
          {"path", Kind::String, Given::Perhaps}},
         Naming::Never,
         "Draws variables of a dataset or the draws of a model: as a histogram, scatter, history, density, "
         "lines, correlogram, or all of those for one variable.",
         RunPlot},
        {"predict",
         {{"model", Kind::ModelName}, {"dataset", Kind::DatasetName}},
         Naming::Never,
         "Makes variables of a dataset that predict the dependent variable of a model.",
         RunPredict,
         {{"prefix", Kind::Word}, {"stats", Kind::Flag}, {"type", Kind::Number}}},
        {"print",
         {{"name", Kind::ObjectName}},
         Naming::Never,
         "Shows an object on the console.",
         RunPrint},
        {"regress",
         {{"dataset", Kind::DatasetName}, {"dependent", Kind::String}, {"independent", Kind::String}},
         Naming::Optional,
         "Estimates a linear regression by Gibbs sampling.",
         RunRegress,
         {{"constant", Kind::Flag},
          {"mean", Kind::Matrix},
          {"precision", Kind::Matrix},
          {"shape", Kind::Number},
          {"rate", Kind::Number},
          {"draws", Kind::Number},
          {"burnin", Kind::Number},
          {"chains", Kind::Number},
          {"thin", Kind::Number},
          {"seed", Kind::Number}}},
        {"rproject",
         scriptParameters,
         Naming::Never,
         "Runs a script of R on objects of the workspace, and takes objects back.",
         RunRCommand},
        {"save",
         {{"path", Kind::String}},
         Naming::Never,
         "Writes the whole workspace to a workspace file.",
         RunSave},
        {"sort",
         {{"dataset", Kind::DatasetName}, {"variables", Kind::String}},
         Naming::Never,
         "Puts the observations of a dataset in the order of variables.",
         RunSort},
        {"store",
         {{"model", Kind::ModelName},
          {"element", Kind::String},
          {"dataset", Kind::DatasetName},
          {"name", Kind::String}},
         Naming::Never,
         "Makes a variable of a dataset from the fitted values or the residuals of a model.",
         RunStore},
        {"structure",
         {{"dataset", Kind::DatasetName},
          {"time", Kind::String},
          {"format", Kind::String},
          {"group", Kind::String}},
         Naming::Never,
         "Tells which variables of a dataset are its time and its groups.",
         RunStructure},
        {"summarize",
         {{"dataset", Kind::DatasetName}, {"variables", Kind::String}, {"rows", Kind::String, Given::Perhaps}},
         Naming::Never,
         "Prints mean, standard deviation, quartiles and limits of variables.",
         RunSummarize},
        {"test",
         {{"model", Kind::ModelName}, {"condition", Kind::String, Given::Often}},
         Naming::Never,
         "Tells how probable conditions on the parameters of a model are.",
         RunTest},
    };
    return commands;
}
} // namespace workbench
