#include "workbench/script/Commands.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

#include "workbench/engine/DelimitedText.h"
#include "workbench/engine/DesignMatrix.h"
#include "workbench/engine/WorkspaceFile.h"
#include "workbench/script/DataCommands.h"
#include "workbench/script/Nearest.h"
#include "workbench/script/Output.h"
#include "workbench/script/PlotCommands.h"
#include "workbench/script/Print.h"

namespace workbench
{
namespace
{
// ----------------------------------------------------------------------------------- the commands

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
    ExportDelimited(*arguments.DatasetAt(0), arguments.Text(1), arguments.Delimiter(2),
                    context.progress);
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
    Print(arguments.Text(0), arguments.AnyObject(0), context.output);
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

// --------------------------------------------------------------------------------------- checking

std::string Describe(Argument const& argument)
{
    switch (argument.kind)
    {
    case Argument::Kind::String:
        return "the string \"" + argument.text + "\"";
    case Argument::Kind::Name:
        return "the name \"" + argument.text + "\"";
    case Argument::Kind::Number:
        return "a number";
    case Argument::Kind::Matrix:
        break;
    }
    return "a matrix";
}

/// What is expected for a parameter, and the kinds of argument that are.
char const* Expected(ParameterKind kind)
{
    switch (kind)
    {
    case ParameterKind::String:
        return "a string in double quotes";
    case ParameterKind::Delimiter:
        return "a string of one character, or \"\\t\" for the tab,";
    case ParameterKind::ObjectName:
        return "the name of an object";
    case ParameterKind::DatasetName:
        return "the name of a dataset";
    case ParameterKind::Matrix:
        return "a matrix or the name of one";
    case ParameterKind::Number:
        break;
    }
    return "a number";
}

bool IsOneCharacter(std::string const& text) { return text.size() == 1 || text == "\\t"; }

bool Fits(Argument const& argument, ParameterKind kind)
{
    using Kind = Argument::Kind;
    switch (kind)
    {
    case ParameterKind::String:
        return argument.kind == Kind::String;
    case ParameterKind::Delimiter:
        return argument.kind == Kind::String && IsOneCharacter(argument.text);
    case ParameterKind::ObjectName:
    case ParameterKind::DatasetName:
        return argument.kind == Kind::Name;
    case ParameterKind::Matrix:
        return argument.kind != Kind::String;
    case ParameterKind::Number:
        break;
    }
    return argument.kind == Kind::Number;
}

std::vector<std::string> CommandNames()
{
    std::vector<std::string> names;
    for (auto const& command : Commands())
        names.push_back(command.name);
    return names;
}

Command const& FindCommand(Call const& call)
{
    for (auto const& command : Commands())
        if (command.name == call.command)
            return command;
    throw ScriptError("there is no command \"" + call.command + "\""
                          + Suggestion(call.command, CommandNames(), "commands"),
                      call.position);
}
} // namespace

std::vector<Command> const& Commands()
{
    using Kind = ParameterKind;
    static std::vector<Command> const commands = {
        {"clear",
         {{"name", Kind::ObjectName}},
         Naming::Never,
         "Takes an object out of the workspace.",
         RunClear},
        {"create",
         {{"dataset", Kind::DatasetName}, {"name", Kind::String}, {"expression", Kind::String}},
         Naming::Never,
         "Makes or replaces a variable of a dataset.",
         RunCreate},
        {"design",
         {{"name", Kind::DatasetName},
          {"dependent", Kind::String},
          {"independent", Kind::String},
          {"lags", Kind::Matrix, true}},
         Naming::Always,
         "Makes the matrix of a dependent variable, independent ones and lags of the dependent one.",
         RunDesign},
        {"drop",
         {{"dataset", Kind::DatasetName}, {"variables", Kind::String}},
         Naming::Never,
         "Takes variables out of a dataset.",
         RunDrop},
        {"export",
         {{"name", Kind::DatasetName}, {"path", Kind::String}, {"delimiter", Kind::Delimiter}},
         Naming::Never,
         "Writes a dataset to a file of delimited text.",
         RunExport},
        {"help", {}, Naming::Never, "Lists the commands.", RunHelp},
        {"import",
         {{"path", Kind::String}, {"delimiter", Kind::Delimiter}},
         Naming::Always,
         "Reads a dataset from a file of delimited text, whose first line holds the variable names.",
         RunImport},
        {"load",
         {{"path", Kind::String}},
         Naming::Never,
         "Replaces the whole workspace by that of a workspace file.",
         RunLoad},
        {"plot",
         {{"dataset", Kind::DatasetName},
          {"variables", Kind::String},
          {"type", Kind::String},
          {"path", Kind::String, true}},
         Naming::Never,
         "Draws variables of a dataset as a histogram, scatter, history, density, lines or correlogram.",
         RunPlot},
        {"print",
         {{"name", Kind::ObjectName}},
         Naming::Never,
         "Shows an object on the console.",
         RunPrint},
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
        {"structure",
         {{"dataset", Kind::DatasetName},
          {"time", Kind::String},
          {"format", Kind::String},
          {"group", Kind::String}},
         Naming::Never,
         "Tells which variables of a dataset are its time and its groups.",
         RunStructure},
        {"summarize",
         {{"dataset", Kind::DatasetName}, {"variables", Kind::String}, {"rows", Kind::String, true}},
         Naming::Never,
         "Prints mean, standard deviation, quartiles and limits of variables.",
         RunSummarize},
    };
    return commands;
}

std::string Command::Usage() const
{
    std::string usage = naming == Naming::Never ? "" : "name = ";
    usage += name + "(";
    bool isFirst = true;
    for (auto const& parameter : parameters)
    {
        bool const isString =
            parameter.kind == ParameterKind::String || parameter.kind == ParameterKind::Delimiter;
        auto const written = isString ? "\"" + parameter.name + "\"" : parameter.name;
        usage += (isFirst ? "" : ", ") + (parameter.optional ? "[" + written + "]" : written);
        isFirst = false;
    }
    return usage + ");";
}

Command const& CheckCall(Call const& call, bool named)
{
    auto const& command = FindCommand(call);
    if (named && command.naming == Naming::Never)
        throw ScriptError("\"" + command.name + "\" gives nothing that could have a name; expected "
                              + command.Usage(),
                          call.position);
    if (!named && command.naming == Naming::Always)
        throw ScriptError("what \"" + command.name + "\" gives needs a name; expected "
                              + command.Usage(),
                          call.position);

    auto const& parameters = command.parameters;
    auto const required =
        std::count_if(parameters.begin(), parameters.end(), [](auto const& p) { return !p.optional; });
    auto const given = call.arguments.size();
    if (given < static_cast<std::size_t>(required) || given > parameters.size())
        throw ScriptError("\"" + command.name + "\" does not take " + std::to_string(given)
                              + (given == 1 ? " argument" : " arguments") + "; expected "
                              + command.Usage(),
                          call.position);
    for (std::size_t i = 0; i < given; ++i)
        if (!Fits(call.arguments[i], parameters[i].kind))
            throw ScriptError(std::string("expected ") + Expected(parameters[i].kind) + " as the "
                                  + parameters[i].name + " in " + command.Usage() + " but found "
                                  + Describe(call.arguments[i]),
                              call.arguments[i].position);
    return command;
}

Object FindObject(Argument const& argument, Workspace const& workspace)
{
    auto object = workspace.Find(argument.text);
    if (std::holds_alternative<std::monostate>(object))
        throw ScriptError("there is nothing called \"" + argument.text + "\" in the workspace"
                              + Suggestion(argument.text, workspace.Names(), "names"),
                          argument.position);
    return object;
}

char Arguments::Delimiter(std::size_t index) const
{
    auto const& text = m_arguments[index].text;
    return text == "\\t" ? '\t' : text.front();
}

Object Arguments::AnyObject(std::size_t index) const
{
    return FindObject(m_arguments[index], m_workspace);
}

std::shared_ptr<Dataset> Arguments::DatasetAt(std::size_t index) const
{
    auto const object = AnyObject(index);
    if (auto const* dataset = std::get_if<std::shared_ptr<Dataset>>(&object))
        return *dataset;
    throw ScriptError("expected the name of a dataset, but \"" + m_arguments[index].text + "\" is none",
                      m_arguments[index].position);
}

std::vector<std::string> Arguments::Names(std::size_t index) const
{
    std::istringstream stream(Text(index));
    return {std::istream_iterator<std::string>(stream), {}};
}

Eigen::MatrixXd Arguments::MatrixAt(std::size_t index) const
{
    auto const& argument = m_arguments[index];
    if (argument.kind != Argument::Kind::Name)
        return argument.matrix;
    auto const object = AnyObject(index);
    if (auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&object))
        return **matrix;
    throw ScriptError("expected a matrix, but \"" + argument.text + "\" is none", argument.position);
}
} // namespace workbench
