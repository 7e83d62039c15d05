#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "workbench/engine/Workspace.h"
#include "workbench/script/Arguments.h"

namespace workbench
{
class Output;
class Progress;

/// What a parameter takes.
enum class ParameterKind
{
    String,      ///< A string in double quotes.
    Delimiter,   ///< A string of one character, or a backslash and a t for the tab.
    ObjectName,  ///< The name of something in the workspace.
    DatasetName, ///< The name of a dataset.
    ModelName,   ///< The name of a model.
    Word,        ///< A name that stands for itself.
    Matrix,      ///< A matrix, written out or by name.
    Point,       ///< A matrix, or a string that names one of the kind.
    Number,
    Flag         ///< true or false.
};

/// How often a parameter is given.
enum class Given
{
    Once,
    Perhaps, ///< It may be left out, and all behind it.
    Often    ///< Once or more; the last parameter alone can be so.
};

struct Parameter
{
    std::string name;
    ParameterKind kind;
    Given given = Given::Once;
};

/// What a command finds around it.
struct Context
{
    Workspace const& workspace;
    Output& output;
    Progress& progress;
};

/// What a command did. It takes effect as a whole once the command has returned; a command that
/// throws has changed nothing.
struct Outcome
{
    Object result;                                        ///< Goes under the statement's name.
    std::vector<std::pair<std::string, Object>> assigned; ///< Further objects by name.
    std::vector<std::string> removed;                     ///< Names that go.
    std::vector<std::pair<std::string, Structure>> structures; ///< Of datasets, when all that is done.
    std::optional<Workspace> workspace;                   ///< Takes the place of all that was there.
    std::optional<std::string> stored;                    ///< The file that now holds the workspace.
};

/// Whether a statement gives a name to what the command returns.
enum class Naming
{
    Never,
    Always,
    Optional
};

/// One command of the script language.
struct Command
{
    std::string name;
    std::vector<Parameter> parameters;
    Naming naming;
    std::string help; ///< One sentence.
    Outcome (*run)(Context const& context, Arguments const& arguments);

    /// What may stand behind the arguments as `"name"=value`, in any order.
    std::vector<Parameter> options = {};

    /// `name = import("path", "delimiter");`
    std::string Usage() const;
};

/// All commands, sorted by name. A new command is a new entry here and nothing else.
std::vector<Command> const& Commands();
} // namespace workbench
