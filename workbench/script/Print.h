#pragma once

#include <string>

#include "workbench/engine/Workspace.h"

namespace workbench
{
class Output;
class Progress;

/// What is told of an object on one line: its kind, name and size.
///@{
std::string Title(std::string const& name, Dataset const& dataset);
std::string Title(std::string const& name, Eigen::MatrixXd const& matrix);
///@}

/// Prints an object under a title line that tells its name and size.
///
/// A dataset becomes a table with tabs between its cells, so that a selection of it copies as a
/// table: a line of names, then a line for each observation, which begins with its number. Where
/// the output keeps only so many lines the last observations are printed and the title says which.
/// A model with draws becomes a summary of them.
void Print(std::string const& name, Object const& object, Output& output, Progress& progress);
} // namespace workbench
