#pragma once

#include <cstddef>
#include <string>

#include <Eigen/Core>

#include "engine/Dataset.h"
#include "workbench/engine/Error.h"

namespace workbench
{
class Progress;

/// What is wrong with an expression, and where.
struct ExpressionError : Error
{
    ExpressionError(std::string const& message, std::size_t where) : Error(message), offset(where) {}

    std::size_t offset; ///< In bytes from the expression's begin.
};

/// The values of an expression.
struct Computed
{
    Eigen::VectorXd values; ///< One for each observation; NaN where it is missing.
    Eigen::Index missing = 0;
    Eigen::Index undefined = 0; ///< Of the missing ones, those for which no variable misses its value.
    Eigen::Index infinite = 0;
};

/// Computes `expression` for each observation of the dataset `name` of `datasets`. The grammar, and
/// what the operators do, is in docs/script-language.md.
///
/// A variable is written as DATASET.VARIABLE; the dataset is any one of `datasets` with as many
/// observations. An observation without a value of one of the variables has no value, and where an
/// operation is not defined (0/0, the logarithm of a negative number) there is none either; both are
/// the one NaN that stands for a missing value. What is beyond a double's range is infinite.
///
/// Throws an ExpressionError if the expression leaves the grammar, or names what is not there, holds
/// text, or has another number of observations.
Computed Compute(std::string const& expression, std::string const& name, DatasetMap const& datasets,
                 Progress& progress);
} // namespace workbench
