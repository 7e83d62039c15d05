#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <Eigen/Core>

#include "workbench/engine/Error.h"

namespace workbench
{
/// A place in a script; lines and columns begin at 1, columns count characters.
struct Position
{
    int line = 1;
    int column = 1;
};

/// An error at a place in a script.
struct ScriptError : Error
{
    ScriptError(std::string const& message, Position const& where)
        : Error(message), line(where.line), column(where.column)
    {
    }

    int line;
    int column;
};

/// What stands between the parentheses of a command, or behind an equals sign.
struct Argument
{
    enum class Kind
    {
        String,
        Number,
        Name,
        Matrix
    };

    Kind kind = Kind::Name;
    std::string text;       ///< Of a string or a name.
    Eigen::MatrixXd matrix; ///< Of a matrix; a number is a matrix of one element.
    Position position;
};

/// A choice behind the arguments of a command, `"key"=value`.
struct Option
{
    std::string key;
    Argument value;
    Position position; ///< Of the key.
};

/// A command with its arguments.
struct Call
{
    std::string command;
    std::vector<Argument> arguments;
    std::vector<Option> options;
    Position position;
};

/// One statement: a call with or without a name for what it gives, or a name for a value.
struct Statement
{
    std::string source; ///< From its first character to its semicolon.
    Position position;
    std::optional<std::string> target; ///< The name on the left of the equals sign.
    std::variant<Call, Argument> value;
};
} // namespace workbench
