#pragma once

#include <string>

#include "engine/Dataset.h"
#include "engine/Model.h"

namespace zenqo
{
/// False for the placeholder dataset and for one without usable variables, which the panes skip.
bool HasVariables(Dataset const& dataset);

/// All variables of the dataset `name`, the hidden first one included; none if there is no such
/// dataset.
wxArrayString VariableNames(DatasetMap const& datasets, std::string const& name);

/// The names of the posterior draws of the model `name`; none if there is no such model.
wxArrayString DrawNames(ModelMap const& models, std::string const& name);
} // namespace zenqo
