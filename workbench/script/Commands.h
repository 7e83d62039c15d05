#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "workbench/engine/Workspace.h"
#include "workbench/script/Script.h"

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
    Matrix,      ///< A matrix, written out or by name.
    Number
};

struct Parameter
{
    std::string name;
    ParameterKind kind;
    bool optional = false; ///< May be left out, and all behind it.
};

/// What a command finds around it.
struct Context
{
    Workspace const& workspace;
    Output& output;
    Progress& progress;
};

/// The arguments of one call, checked against the command's parameters. Each getter throws a
/// ScriptError at the argument if what it names is not there.
class Arguments
{
public:
    Arguments(std::vector<Argument> const& arguments, Workspace const& workspace)
        : m_arguments(arguments), m_workspace(workspace)
    {
    }

    std::size_t Count() const { return m_arguments.size(); }
    std::string const& Text(std::size_t index) const { return m_arguments[index].text; }
    Position PositionOf(std::size_t index) const { return m_arguments[index].position; }
    char Delimiter(std::size_t index) const;

    /// The names that stand in a string, with blanks between them.
    std::vector<std::string> Names(std::size_t index) const;

    double Number(std::size_t index) const { return m_arguments[index].matrix(0, 0); }
    Object AnyObject(std::size_t index) const;
    std::shared_ptr<Dataset> DatasetAt(std::size_t index) const;
    Eigen::MatrixXd MatrixAt(std::size_t index) const;

private:
    std::vector<Argument> const& m_arguments;
    Workspace const& m_workspace;
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

    /// `name = import("path", "delimiter");`
    std::string Usage() const;
};

/// All commands, sorted by name. A new command is a new entry here and nothing else.
std::vector<Command> const& Commands();

/// Throws a ScriptError if `call` names no command, or its arguments do not fit the parameters.
/// `named` says whether the statement has a name on its left.
Command const& CheckCall(Call const& call, bool named);

/// The object that `argument` names. Throws a ScriptError if there is none.
Object FindObject(Argument const& argument, Workspace const& workspace);
} // namespace workbench
