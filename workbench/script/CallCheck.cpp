#include "workbench/script/CallCheck.h"

#include <algorithm>
#include <set>

#include "workbench/script/Nearest.h"

namespace workbench
{
namespace
{
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
    case ParameterKind::ModelName:
        return "the name of a model";
    case ParameterKind::Word:
        return "a name";
    case ParameterKind::Matrix:
        return "a matrix or the name of one";
    case ParameterKind::Point:
        return "a string, a matrix or the name of one";
    case ParameterKind::Number:
        return "a number";
    case ParameterKind::Flag:
        break;
    }
    return "true or false";
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
    case ParameterKind::ModelName:
    case ParameterKind::Word:
        return argument.kind == Kind::Name;
    case ParameterKind::Matrix:
        return argument.kind != Kind::String;
    case ParameterKind::Point:
        return true;
    case ParameterKind::Number:
        return argument.kind == Kind::Number;
    case ParameterKind::Flag:
        break;
    }
    return argument.kind == Kind::Name && (argument.text == "true" || argument.text == "false");
}

/// How a parameter is written in a command's usage.
std::string Written(Parameter const& parameter)
{
    bool const isString =
        parameter.kind == ParameterKind::String || parameter.kind == ParameterKind::Delimiter;
    auto const written = isString ? "\"" + parameter.name + "\"" : parameter.name;
    switch (parameter.given)
    {
    case Given::Perhaps:
        return "[" + written + "]";
    case Given::Often:
        return written + ", ...";
    case Given::Once:
        break;
    }
    return written;
}

/// How an option's value is written in a command's usage.
char const* Sample(ParameterKind kind)
{
    switch (kind)
    {
    case ParameterKind::String:
    case ParameterKind::Delimiter:
    case ParameterKind::Point:
        return "\"...\"";
    case ParameterKind::Matrix:
        return "[...]";
    case ParameterKind::Number:
        return "1";
    case ParameterKind::Flag:
        return "true";
    case ParameterKind::ObjectName:
    case ParameterKind::DatasetName:
    case ParameterKind::ModelName:
    case ParameterKind::Word:
        break;
    }
    return "name";
}

/// Throws a ScriptError if `argument` is not what `parameter`, known as `what`, takes.
void CheckFits(Argument const& argument, Parameter const& parameter, Command const& command,
               std::string const& what)
{
    if (!Fits(argument, parameter.kind))
        throw ScriptError(std::string("expected ") + Expected(parameter.kind) + " as the " + what
                              + " in " + command.Usage() + " but found " + Describe(argument),
                          argument.position);
}

void CheckArguments(Call const& call, Command const& command)
{
    auto const& parameters = command.parameters;
    auto const required =
        std::count_if(parameters.begin(), parameters.end(),
                      [](auto const& parameter) { return parameter.given != Given::Perhaps; });
    bool const goesOn = !parameters.empty() && parameters.back().given == Given::Often;
    auto const given = call.arguments.size();
    if (given < static_cast<std::size_t>(required) || (given > parameters.size() && !goesOn))
        throw ScriptError("\"" + command.name + "\" does not take " + std::to_string(given)
                              + (given == 1 ? " argument" : " arguments") + "; expected "
                              + command.Usage(),
                          call.position);
    for (std::size_t i = 0; i < given; ++i)
    {
        auto const& parameter = parameters[std::min(i, parameters.size() - 1)];
        CheckFits(call.arguments[i], parameter, command, parameter.name);
    }
}

std::vector<std::string> KeysOf(std::vector<Parameter> const& options)
{
    std::vector<std::string> keys;
    for (auto const& option : options)
        keys.push_back(option.name);
    return keys;
}

void CheckOptions(Call const& call, Command const& command)
{
    std::set<std::string> seen;
    for (auto const& option : call.options)
    {
        auto const known =
            std::find_if(command.options.begin(), command.options.end(),
                         [&](auto const& parameter) { return parameter.name == option.key; });
        if (known == command.options.end())
            throw ScriptError("\"" + command.name + "\" has no option \"" + option.key + "\""
                                  + (command.options.empty() ? ""
                                                             : Suggestion(option.key,
                                                                          KeysOf(command.options),
                                                                          "options")),
                              option.position);
        if (!seen.insert(option.key).second)
            throw ScriptError("the option \"" + option.key + "\" is given twice", option.position);
        CheckFits(option.value, *known, command, "option \"" + option.key + "\"");
    }
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

std::string Command::Usage() const
{
    std::string usage = naming == Naming::Never ? "" : "name = ";
    usage += name + "(";
    char const* before = "";
    for (auto const& parameter : parameters)
    {
        usage += before + Written(parameter);
        before = ", ";
    }
    for (auto const& option : options)
    {
        usage += before + ("[\"" + option.name) + "\"=" + Sample(option.kind) + "]";
        before = ", ";
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
    CheckArguments(call, command);
    CheckOptions(call, command);
    return command;
}
} // namespace workbench
