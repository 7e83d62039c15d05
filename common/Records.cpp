#include "common/Records.h"

#include "common/Text.h"
#include "engine/Sentinels.h"

namespace zenqo
{
bool HasVariables(Dataset const& dataset)
{
    return dataset.name != EMPTY_DATASET && !dataset.varNames.empty() && !dataset.varNames[0].empty();
}

wxArrayString VariableNames(DatasetMap const& datasets, std::string const& name)
{
    auto const found = datasets.find(name);
    return found == datasets.end() ? wxArrayString() : found->second->varNames;
}

wxArrayString DrawNames(ModelMap const& models, std::string const& name)
{
    auto const found = models.find(name);
    return found == models.end() ? wxArrayString() : ToWide(found->second->drawNames);
}
} // namespace zenqo
