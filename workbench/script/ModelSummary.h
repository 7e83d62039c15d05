#pragma once

#include <string>

#include "engine/Model.h"

namespace workbench
{
class Output;
class Progress;

/// What kind of model it is and of what: "linear regression of gdp, dataset macro"; "draws of 5
/// quantities" if its record does not tell.
std::string DescribeModel(Model const& model);

/// Prints, under the line `title`, what is known of a model that has draws: its observations and its
/// sampler, a table with a line for each quantity, and the log marginal likelihood.
void PrintSummary(std::string const& title, Model const& model, Output& output, Progress& progress);
} // namespace workbench
