#include "workbench/script/DataCommands.h"

#include <algorithm>

#include "workbench/engine/Expression.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Sort.h"
#include "workbench/engine/Summary.h"
#include "workbench/engine/Variables.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
Outcome ReplaceDataset(Context const& context, std::string const& name,
                       std::shared_ptr<Dataset> const& made, std::vector<std::string> const& touched)
{
    Outcome outcome;
    outcome.assigned.emplace_back(name, made);
    auto const structure = context.workspace.StructureOf(name);
    auto const rest = std::find_if(touched.begin(), touched.end(), [&](std::string const& variable)
                                   { return structure.RestsOn(variable); });
    if (rest == touched.end())
        outcome.structures.emplace_back(name, structure);
    else
        context.output.Warning("The dataset " + Quoted(name)
                               + " has lost its structure, which rested on the variable "
                               + Quoted(*rest) + ".");
    return outcome;
}

void TellVariable(std::string const& dataset, std::string const& variable, Eigen::Index observations,
                  Eigen::Index missing, Eigen::Index infinite, Output& output)
{
    std::string text = "\n" + dataset + "." + variable + ": "
                       + Count(observations, "observation", "observations") + ", "
                       + std::to_string(missing) + " missing";
    if (infinite > 0)
        text += ", " + std::to_string(infinite) + " infinite";
    output.Text(text + "\n");
}

void PrintStructure(std::string const& name, Structure const& structure, Output& output)
{
    if (structure.IsEmpty())
        return;
    std::string text = "\nStructure of " + name + ": ";
    if (!structure.time.empty())
        text += "time variable " + structure.time + " (" + structure.format + ")";
    if (!structure.group.empty())
        text += (structure.time.empty() ? "" : ", ") + ("group variable " + structure.group);
    output.Text(text + "\n");
}

Outcome RunCreate(Context const& context, Arguments const& arguments)
{
    auto const& owner = arguments.Text(0);
    auto const& name = arguments.Text(1);
    auto const dataset = arguments.DatasetAt(0);
    Computed computed;
    try
    {
        computed = Compute(arguments.Text(2), owner, context.workspace.datasets, context.progress);
    }
    catch (ExpressionError const& error)
    {
        throw ScriptError(error.what(), arguments.PlaceIn(2, error.offset));
    }
    auto const made = WithVariable(*dataset, name, computed.values, context.progress);
    TellVariable(owner, name, dataset->data.rows(), computed.missing, computed.infinite, context.output);
    if (computed.undefined > 0)
        context.output.Warning(
            "The expression has no value in " + Count(computed.undefined, "observation", "observations")
            + " in which its variables have one: an operation is not defined there, as "
              "0/0 or the logarithm of a negative number.");
    return ReplaceDataset(context, owner, made, {name});
}

Outcome RunDrop(Context const& context, Arguments const& arguments)
{
    auto const names = arguments.Names(1);
    auto const made = WithoutVariables(*arguments.DatasetAt(0), names, context.progress);
    return ReplaceDataset(context, arguments.Text(0), made, names);
}

Outcome RunSort(Context const& context, Arguments const& arguments)
{
    auto const dataset = arguments.DatasetAt(0);
    auto const keys = ColumnsOf(*dataset, arguments.Names(1));
    return ReplaceDataset(context, arguments.Text(0), Sorted(*dataset, keys, context.progress), {});
}

Outcome RunStructure(Context const& context, Arguments const& arguments)
{
    auto const& name = arguments.Text(0);
    Structure structure{arguments.Text(1), arguments.Text(2), arguments.Text(3)};
    CheckStructure(*arguments.DatasetAt(0), structure, context.progress);
    if (structure.time.empty())
        structure.format.clear();
    if (structure.IsEmpty())
        context.output.Text("\n" + name + " has no structure\n");
    PrintStructure(name, structure, context.output);
    Outcome outcome;
    outcome.structures.emplace_back(name, structure);
    return outcome;
}

Outcome RunSummarize(Context const& context, Arguments const& arguments)
{
    auto const rows = arguments.Count() < 3 ? "available" : arguments.Text(2);
    if (rows != "available" && rows != "complete")
        throw ScriptError("expected \"available\" or \"complete\" as the rows, but found "
                              + Quoted(rows),
                          arguments.PositionOf(2));
    auto const dataset = arguments.DatasetAt(0);
    auto const names = arguments.Names(1);
    auto const columns = ColumnsOf(*dataset, names);
    for (auto const& name : names)
        NumberColumnOf(*dataset, name);
    auto const summaries =
        Summarize(*dataset, columns, rows == "complete" ? SummaryRows::Complete : SummaryRows::Available,
                  context.progress);

    std::vector<TableColumn> titles{{"variable", true}};
    for (auto const* const title : {"obs", "mean", "st.dev.", "min", "q1", "median", "q3", "max"})
        titles.push_back({title, false});
    std::vector<std::vector<std::string>> cells;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        auto const& s = summaries[i];
        cells.push_back({names[i], std::to_string(s.observations)});
        for (double const value : {s.mean, s.deviation, s.minimum, s.lowerQuartile, s.median,
                                   s.upperQuartile, s.maximum})
            cells.back().push_back(NumberCell(value));
    }
    context.output.Text("\nSummary of " + arguments.Text(0) + ": "
                        + Count(static_cast<Eigen::Index>(names.size()), "variable", "variables") + ", "
                        + rows + " observations\n" + FormatTable(std::move(titles), cells));
    return {};
}
} // namespace workbench
