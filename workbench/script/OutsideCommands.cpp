#include "workbench/script/OutsideCommands.h"

#include "workbench/engine/Variables.h"
#include "workbench/outside/Bridge.h"
#include "workbench/outside/JagsRun.h"
#include "workbench/outside/NameList.h"
#include "workbench/script/EstimationCommands.h"
#include "workbench/script/ModelSummary.h"
#include "workbench/script/Output.h"
#include "workbench/script/Print.h"

namespace workbench
{
namespace
{
/// Something of the workspace that is handed to a program, and what it is called there.
using Item = std::pair<std::string, Object>;

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
    for (auto const& [name, object] : ItemsAt(arguments, index, workspace))
    {
        auto const* matrix = std::get_if<std::shared_ptr<Eigen::MatrixXd>>(&object);
        if (!matrix)
            throw ScriptError("\"" + name
                                  + "\" can't be handed to JAGS; what can are matrices and "
                                    "variables of datasets, written as dataset.variable",
                              arguments.PositionOf(index));
        data.push_back({name, **matrix});
    }
    return data;
}

Outcome RunScript(Bridge const& bridge, Context const& context, Arguments const& arguments)
{
    BridgeRun run;
    run.script = arguments.Text(0);
    run.handedOut = ItemsAt(arguments, 1, context.workspace);
    for (auto const& [name, object] : run.handedOut)
        if (std::holds_alternative<std::shared_ptr<Model>>(object))
            throw ScriptError("\"" + name + "\" is a model; what can be handed out are datasets, their "
                                  "variables, and matrices",
                              arguments.PositionOf(1));
    run.handedBack = SplitNames(arguments.Text(2));
    Outcome outcome;
    outcome.assigned = RunBridge(bridge, run, context.output, context.progress);
    std::string text = "\n";
    for (auto const& [name, object] : outcome.assigned)
    {
        auto const* dataset = std::get_if<std::shared_ptr<Dataset>>(&object);
        text += (dataset ? Title(name, **dataset)
                         : Title(name, *std::get<std::shared_ptr<Eigen::MatrixXd>>(object)))
                + "\n";
    }
    context.output.Text(text);
    return outcome;
}
} // namespace

Outcome RunJagsCommand(Context const& context, Arguments const& arguments)
{
    JagsRun run;
    run.model = arguments.Text(0);
    run.data = JagsData(arguments, 1, context.workspace);
    run.monitors = SplitNames(arguments.Text(2));
    if (arguments.Has("inits"))
        run.initialValues = ReadInitialValues(arguments.Text("inits"));
    run.sampler = SettingsOf(arguments);
    Outcome outcome;
    auto const model = RunJags(run, context.output, context.progress);
    outcome.result = model;
    PrintSummary("JAGS: " + DescribeModel(*model), *model, context.output, context.progress);
    return outcome;
}

Outcome RunOctaveCommand(Context const& context, Arguments const& arguments)
{
    return RunScript(OctaveBridge(), context, arguments);
}

Outcome RunRCommand(Context const& context, Arguments const& arguments)
{
    return RunScript(RBridge(), context, arguments);
}
} // namespace workbench
