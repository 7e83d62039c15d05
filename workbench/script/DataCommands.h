#pragma once

#include "workbench/script/Commands.h"

namespace workbench
{
/// The commands that make new datasets of old ones, and look at their variables. Each is told in
/// docs/script-language.md.
///@{
Outcome RunCreate(Context const& context, Arguments const& arguments);
Outcome RunDrop(Context const& context, Arguments const& arguments);
Outcome RunSort(Context const& context, Arguments const& arguments);
Outcome RunStructure(Context const& context, Arguments const& arguments);
Outcome RunSummarize(Context const& context, Arguments const& arguments);
///@}

/// Puts `made` in the place of the dataset `name`. It keeps the structure, unless that rests on one of
/// the variables `touched`.
Outcome ReplaceDataset(Context const& context, std::string const& name,
                       std::shared_ptr<Dataset> const& made, std::vector<std::string> const& touched);

/// Prints how many values a new variable has: "d.x: 16 observations, 2 missing".
void TellVariable(std::string const& dataset, std::string const& variable, Eigen::Index observations,
                  Eigen::Index missing, Eigen::Index infinite, Output& output);

/// Prints one line on the structure of the dataset `name`, or nothing if it is empty.
void PrintStructure(std::string const& name, Structure const& structure, Output& output);
} // namespace workbench
