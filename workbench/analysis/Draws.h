#pragma once

#include <string>
#include <string_view>

#include <Eigen/Core>

#include "engine/Model.h"

namespace workbench
{
/// Throws an Error if the model called `name` has no draws, or not as many columns of them as names.
void CheckDraws(Model const& model, std::string const& name);

/// The chains of a model that has draws; one if its record does not tell, or they are not equally long.
int ChainsOf(Model const& model);

/// The column of the draws called `drawName`; -1 if there is none.
Eigen::Index FindDraw(Model const& model, std::string_view drawName);
} // namespace workbench
