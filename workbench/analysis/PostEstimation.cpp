#include "workbench/analysis/PostEstimation.h"

#include <algorithm>

#include "workbench/engine/Variables.h"
#include "workbench/engine/Workspace.h"
#include "workbench/estimation/EstimateRegression.h"

namespace workbench
{
namespace
{
/// Whether all values of a variable of numbers are positive that are not missing.
bool IsPositive(Dataset const& dataset, std::string const& name)
{
    auto const column = FindVariable(dataset, name);
    return column != 0 && !HoldsText(dataset, column)
           && !(dataset.data.col(column).array() <= 0.0).any();
}
} // namespace

bool IsRegression(Model const& model) { return model.type == LINEAR_REGRESSION; }

std::vector<std::string> VariablesOf(Model const& model)
{
    std::vector<std::string> variables;
    std::copy_if(model.independent.begin(), model.independent.end(), std::back_inserter(variables),
                 [](std::string const& regressor) { return regressor != CONSTANT; });
    return variables;
}

int EffectTypes(Model const& model, Dataset const& dataset)
{
    if (!IsPositive(dataset, model.dependent))
        return 1;
    auto const variables = VariablesOf(model);
    bool const all = std::all_of(variables.begin(), variables.end(), [&](std::string const& variable)
                                 { return IsPositive(dataset, variable); });
    return all ? 3 : 2;
}

int PredictionTypes(Model const& model, Dataset const& dataset)
{
    auto const column = FindVariable(dataset, model.dependent);
    return column != 0 && !HoldsText(dataset, column) ? 2 : 1;
}
} // namespace workbench
