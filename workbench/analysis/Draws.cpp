#include "workbench/analysis/Draws.h"

#include <algorithm>

#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"

namespace workbench
{
void CheckDraws(Model const& model, std::string const& name)
{
    if (model.draws.rows() == 0 || model.drawNames.empty())
        throw Error("the model " + Quoted(name) + " has no draws");
    if (model.draws.cols() != static_cast<Eigen::Index>(model.drawNames.size()))
        throw Error("the model " + Quoted(name) + " has " + std::to_string(model.draws.cols())
                    + " columns of draws, but " + std::to_string(model.drawNames.size())
                    + " names of draws");
}

int ChainsOf(Model const& model)
{
    return model.chains > 0 && model.draws.rows() % model.chains == 0 ? model.chains : 1;
}

Eigen::Index FindDraw(Model const& model, std::string_view drawName)
{
    auto const found = std::find(model.drawNames.begin(), model.drawNames.end(), drawName);
    return found == model.drawNames.end() ? -1 : found - model.drawNames.begin();
}
} // namespace workbench
