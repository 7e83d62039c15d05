#include "common/Records.h"

#include "engine/Dataset.h"
#include "engine/Sentinels.h"

namespace zenqo
{
bool HasVariables(Dataset const& dataset)
{
    return dataset.name != EMPTY_DATASET && !dataset.varNames.empty() && !dataset.varNames[0].empty();
}
} // namespace zenqo
