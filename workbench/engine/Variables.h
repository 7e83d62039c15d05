#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <Eigen/Core>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;

/// The name of the variable in column `column`, in UTF-8.
std::string VariableName(Dataset const& dataset, Eigen::Index column);

bool HoldsText(Dataset const& dataset, Eigen::Index column);

/// The label of observation `row`, from 0; empty if it is missing.
std::string_view LabelAt(LabelledColumn const& column, Eigen::Index row);

/// The column of the variable called `name`; 0, which is the hidden first column's, if there is none.
Eigen::Index FindVariable(Dataset const& dataset, std::string const& name);

/// The same. Throws an Error if there is none.
Eigen::Index ColumnOf(Dataset const& dataset, std::string const& name);

/// The same. Throws an Error if there is none, or it holds text.
Eigen::Index NumberColumnOf(Dataset const& dataset, std::string const& name);

/// The columns of the variables called `names`, in that order. Throws an Error if there is no name,
/// one that is no variable's, or one twice.
std::vector<Eigen::Index> ColumnsOf(Dataset const& dataset, std::vector<std::string> const& names);

/// A copy of `dataset` with variables called `names`, whose values are the columns of `values`, one for
/// each observation. A variable that has one of the names, which may hold text, is replaced in its
/// place; new ones come last. Throws an Error if a name is not legal in the script language, or is the
/// hidden column's.
std::shared_ptr<Dataset> WithVariables(Dataset const& dataset, std::vector<std::string> const& names,
                                       Eigen::MatrixXd const& values, Progress& progress);

/// The same for one variable.
std::shared_ptr<Dataset> WithVariable(Dataset const& dataset, std::string const& name,
                                      Eigen::VectorXd const& values, Progress& progress);

/// A copy of `dataset` without the variables called `names`; what holds text still does.
/// Throws an Error as ColumnsOf does, or if no variable would be left.
std::shared_ptr<Dataset> WithoutVariables(Dataset const& dataset, std::vector<std::string> const& names,
                                          Progress& progress);
} // namespace workbench
