#pragma once

#include <string>
#include <vector>

#include "engine/Dataset.h"
#include "engine/Model.h"

namespace workbench
{
/// What can be asked of an estimated model, for the forms that ask for it.
///@{

/// Whether marginal effects, forecasts, predictions and the elements "fitted" and "residuals" are to be
/// had of the model.
bool IsRegression(Model const& model);

/// The regressors other than the constant, in their order: the names of a point, and the exogenous
/// variables of a forecast.
std::vector<std::string> VariablesOf(Model const& model);

/// How many types of effects (EffectType, from 1 on) make sense on `dataset`: 1 if the dependent
/// variable is not positive throughout, 2 if it is, but not all regressors other than the constant are,
/// and 3 if all are. Missing values do not count; 1 if a variable is not there or holds text.
int EffectTypes(Model const& model, Dataset const& dataset);

/// How many types of predictions (PredictionType, from 1 on) make sense on `dataset`: 2 if it has the
/// dependent variable, as numbers, else 1.
int PredictionTypes(Model const& model, Dataset const& dataset);
///@}
} // namespace workbench
