#include "workbench/script/Interpreter.h"

#include <new>
#include <utility>

#include "workbench/engine/Workspace.h"
#include "workbench/script/CallCheck.h"
#include "workbench/script/Parser.h"

namespace workbench
{
namespace
{
/// What can be said of a statement without running it.
void Check(Statement const& statement)
{
    if (statement.target == zenqo::EMPTY_DATASET)
        throw ScriptError("the name \"" + *statement.target + "\" is kept for the program's own use",
                          statement.position);
    if (auto const* call = std::get_if<Call>(&statement.value))
        CheckCall(*call, statement.target.has_value());
}

/// The object that a name on the right of an equals sign, a number or a matrix stands for.
Object Evaluate(Argument const& argument, Workspace const& workspace)
{
    if (argument.kind == Argument::Kind::Name)
        return Copy(FindObject(argument, workspace));
    return std::make_shared<Eigen::MatrixXd>(argument.matrix);
}

/// Brings what a command did into the workspace.
void Apply(Outcome&& outcome, std::optional<std::string> const& target, Workspace& workspace)
{
    if (outcome.workspace)
    {
        outcome.workspace->stored = workspace.stored;
        std::swap(workspace, *outcome.workspace);
    }
    for (auto const& name : outcome.removed)
        workspace.Remove(name);
    for (auto const& [name, object] : outcome.assigned)
        workspace.Assign(name, object);
    if (target)
        workspace.Assign(*target, outcome.result);
    for (auto const& [name, structure] : outcome.structures)
        workspace.SetStructure(name, structure);
    if (outcome.stored)
        workspace.NoteStored(*outcome.stored);
}
} // namespace

Interpreter::Interpreter(Workspace& workspace, Output& output, Progress& progress)
    : m_workspace(workspace), m_output(output), m_progress(progress)
{
}

bool Interpreter::Run(std::string const& script, Echo echo)
{
    Position where;
    std::string message;
    try
    {
        auto const statements = ParseScript(script);
        for (auto const& statement : statements)
        {
            where = statement.position;
            Check(statement);
        }
        for (auto const& statement : statements)
        {
            where = statement.position;
            if (echo == Echo::Statements)
                m_output.Code(statement.source);
            Execute(statement);
        }
        return true;
    }
    catch (ScriptError const& error)
    {
        where = {error.line, error.column};
        message = error.what();
    }
    catch (Interrupted const&)
    {
        message = "interrupted; the statement changed nothing";
    }
    catch (std::bad_alloc const&)
    {
        message = "there is not enough memory; the statement changed nothing";
    }
    catch (std::exception const& error)
    {
        message = error.what();
    }
    m_output.Error("Line " + std::to_string(where.line) + ", column " + std::to_string(where.column)
                   + ": " + message);
    return false;
}

void Interpreter::Execute(Statement const& statement)
{
    Outcome outcome;
    if (auto const* call = std::get_if<Call>(&statement.value))
    {
        auto const& command = CheckCall(*call, statement.target.has_value());
        outcome = command.run({m_workspace, m_output, m_progress}, {*call, m_workspace});
    }
    else
    {
        auto const& argument = std::get<Argument>(statement.value);
        outcome.result = Evaluate(argument, m_workspace);
        if (argument.kind == Argument::Kind::Name)
            outcome.structures.emplace_back(*statement.target, m_workspace.StructureOf(argument.text));
    }
    Apply(std::move(outcome), statement.target, m_workspace);
}
} // namespace workbench
