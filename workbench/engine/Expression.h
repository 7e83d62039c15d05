#pragma once

#include <cstddef>
#include <string>
#include <string_view>

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

    /// The operator of the comparison that gives the values, "!=" also for "~="; empty if they are not
    /// a comparison's.
    std::string comparison;
};

/// What the names in an expression stand for. Each is written behind its owner: OWNER.NAME.
class ExpressionNames
{
public:
    /// Values of what a name stands for.
    struct Found
    {
        double const* values; ///< One for each row.
        std::size_t length;   ///< In bytes, of the name.
    };

    virtual ~ExpressionNames();

    /// How many values each name stands for.
    virtual Eigen::Index Rows() const = 0;

    /// What is written as `owner`, a dot and the beginning of `rest`, which begins with a letter or an
    /// underscore. Throws an Error if there is no such thing.
    virtual Found Find(std::string const& owner, std::string_view rest) const = 0;

    /// What a name stands for, what its owner is, and the owner that a message takes for an example.
    ///@{
    virtual std::string Kind() const = 0;
    virtual std::string OwnerKind() const = 0;
    virtual std::string Owner() const = 0;
    ///@}
};

/// The bytes at the beginning of `text` that are of one name.
std::string_view LeadingName(std::string_view text);

/// Computes `expression` for each row of `names`. The grammar, and what the operators do, is in
/// docs/script-language.md. `work` names the work for the progress.
///
/// A row without a value of one of the names has no value, and where an operation is not defined (0/0,
/// the logarithm of a negative number) there is none either; both are the one NaN that stands for a
/// missing value. What is beyond a double's range is infinite.
///
/// Throws an ExpressionError if the expression leaves the grammar, or names what is not there.
Computed Compute(std::string const& expression, ExpressionNames const& names, char const* work,
                 Progress& progress);

/// The same for each observation of the dataset `name` of `datasets`. A variable is written as
/// DATASET.VARIABLE; the dataset is any one of `datasets` with as many observations, and the variable
/// does not hold text.
Computed Compute(std::string const& expression, std::string const& name, DatasetMap const& datasets,
                 Progress& progress);
} // namespace workbench
