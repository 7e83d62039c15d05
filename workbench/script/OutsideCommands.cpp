#include "workbench/script/OutsideCommands.h"

#include "engine/Globals.h"
#include "workbench/engine/Variables.h"
#include "workbench/outside/JagsRun.h"
#include "workbench/outside/NameList.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
namespace
{
/// Something of the workspace that is handed to a program, and what it is called there.
struct Item
{
    std::string name;
    Object object;
};

/// What `name` stands for: an object, or "dataset.variable", which becomes a matrix of one column.
Item FindItem(std::string const& name, Position const& position, Workspace const& workspace)
{
    auto const point = name.find('.');
    auto const object =
        FindObject({Argument::Kind::Name, name.substr(0, point), {}, position}, workspace);
    if (point == std::string::npos)
        return {name, object};
    auto const* dataset = std::get_if<std::shared_ptr<Dataset>>(&object);
    if (!dataset)
        throw ScriptError("\"" + name.substr(0, point) + "\" is no dataset, so it has no variables",
                          position);
    auto const variable = name.substr(point + 1);
    auto const column = NumberColumnOf(**dataset, variable);
    return {variable, std::make_shared<Eigen::MatrixXd>((*dataset)->data.col(column))};
}

/// What the names that stand in an argument, with commas between them, stand for.
std::vector<Item> ItemsAt(Arguments const& arguments, int index, Workspace const& workspace)
{
    std::vector<Item> items;
    for (auto const& name : SplitNames(arguments.Text(index)))
        items.push_back(FindItem(name, arguments.PositionOf(index), workspace));
    return items;
}

std::vector<JagsValue> JagsData(Arguments const& arguments, int index, Workspace const& workspace)
{
    std::vector<JagsValue> data;
    for (auto const& item : ItemsAt(arguments, index, workspace))
    {
        auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&item.object);
        if (!matrix)
            throw ScriptError("\"" + item.name
                                  + "\" can't be handed to JAGS; what can are matrices and "
                                    "variables of datasets, written as dataset.variable",
                              arguments.PositionOf(index));
        data.push_back({item.name, **matrix});
    }
    return data;
}
} // namespace

Outcome RunJagsCommand(Context const& context, Arguments const& arguments)
{
    auto const whole = [&](char const* key, int index, std::uint64_t least)
    {
        auto const otherwise = static_cast<std::uint64_t>(Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs[index]);
        return arguments.WholeOr(key, otherwise, least);
    };
    JagsRun run;
    run.model = arguments.Text(0);
    run.data = JagsData(arguments, 1, context.workspace);
    run.monitors = SplitNames(arguments.Text(2));
    if (arguments.Has("inits"))
        run.initialValues = ReadInitialValues(arguments.Text("inits"));
    run.draws = whole("draws", 0, 1);
    run.burnIn = whole("burnin", 1, 0);
    run.chains = whole("chains", 2, 1);
    run.thin = whole("thin", 3, 1);
    run.seed = whole("seed", 4, 0);

    Outcome outcome;
    auto const model = RunJags(run, context.output, context.progress);
    outcome.result = model;
    context.output.Text("\n" + Count(model->chains, "chain", "chains") + " of "
                        + Count(model->draws.rows() / model->chains, "draw", "draws") + ": "
                        + JoinNames(model->drawNames) + "\n");
    return outcome;
}
} // namespace workbench
