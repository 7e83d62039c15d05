#include "common/Records.h"

#include <algorithm>

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
    auto found = datasets.find(name);
    // A key whose bytes are no text reads as an empty name in the pickers, and is found by that.
    if (found == datasets.end())
        found = std::find_if(datasets.begin(), datasets.end(), [wide = ToWide(name)](auto const& entry)
                             { return ToWide(entry.first) == wide; });
    return found == datasets.end() ? wxArrayString() : found->second->varNames;
}

wxArrayString DrawNames(ModelMap const& models, std::string const& name)
{
    auto const found = models.find(name);
    return found == models.end() ? wxArrayString() : ToWide(found->second->drawNames);
}
} // namespace zenqo
