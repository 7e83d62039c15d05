#include "workbench/engine/Variables.h"

#include <algorithm>
#include <map>

#include "engine/Functions.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"

namespace workbench
{
std::string VariableName(Dataset const& dataset, Eigen::Index column)
{
    return dataset.varNames[static_cast<std::size_t>(column)].utf8_string();
}

bool HoldsText(Dataset const& dataset, Eigen::Index column)
{
    return dataset.labelledColumns.count(static_cast<int>(column)) != 0;
}

std::string_view LabelAt(LabelledColumn const& column, Eigen::Index row)
{
    auto const index = static_cast<std::size_t>(row);
    return index < column.labels.size() ? std::string_view(column.labels[index]) : std::string_view();
}

Eigen::Index FindVariable(Dataset const& dataset, std::string const& name)
{
    auto const columns =
        std::min<Eigen::Index>(dataset.data.cols(), static_cast<Eigen::Index>(dataset.varNames.size()));
    for (Eigen::Index column = 1; column < columns; ++column)
        if (VariableName(dataset, column) == name)
            return column;
    return 0;
}

Eigen::Index ColumnOf(Dataset const& dataset, std::string const& name)
{
    auto const column = FindVariable(dataset, name);
    if (column == 0)
        throw Error("the dataset has no variable " + Quoted(name));
    return column;
}

Eigen::Index NumberColumnOf(Dataset const& dataset, std::string const& name)
{
    auto const column = ColumnOf(dataset, name);
    if (HoldsText(dataset, column))
        throw Error("the variable " + Quoted(name) + " holds text");
    return column;
}

std::vector<Eigen::Index> ColumnsOf(Dataset const& dataset, std::vector<std::string> const& names)
{
    if (names.empty())
        throw Error("no variable is named");
    std::vector<Eigen::Index> columns;
    for (auto const& name : names)
    {
        auto const column = ColumnOf(dataset, name);
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            throw Error(Quoted(name) + " is given twice");
        columns.push_back(column);
    }
    return columns;
}

std::shared_ptr<Dataset> WithVariables(Dataset const& dataset, std::vector<std::string> const& names,
                                       Eigen::MatrixXd const& values, Progress& progress)
{
    for (auto const& name : names)
    {
        if (!CheckID(name))
            throw Error(Quoted(name)
                        + " cannot be the name of a variable: it may have letters, digits and "
                          "underscores, and does not begin with a digit");
        if (!dataset.varNames.empty() && VariableName(dataset, 0) == name)
            throw Error("the name " + Quoted(name) + " is kept for the program's own use");
    }

    ProgressScope scope(progress, "Copying the dataset");
    auto const made = std::make_shared<Dataset>();
    made->name = dataset.name;
    made->varNames = dataset.varNames;
    made->labelledColumns = dataset.labelledColumns;
    std::map<Eigen::Index, Eigen::Index> columns; // of `values`, by those of the dataset made
    auto end = dataset.data.cols();
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        auto target = FindVariable(dataset, names[i]);
        if (target == 0)
        {
            target = end++;
            made->varNames.Add(wxString::FromUTF8(names[i]));
        }
        made->labelledColumns.erase(static_cast<int>(target));
        columns[target] = static_cast<Eigen::Index>(i);
    }
    made->data.resize(dataset.data.rows(), end);
    for (Eigen::Index column = 0; column < end; ++column)
    {
        auto const replaced = columns.find(column);
        if (replaced != columns.end())
            made->data.col(column) = values.col(replaced->second);
        else
            made->data.col(column) = dataset.data.col(column);
        scope.Update(static_cast<std::uint64_t>(column + 1), static_cast<std::uint64_t>(end));
    }
    return made;
}

std::shared_ptr<Dataset> WithVariable(Dataset const& dataset, std::string const& name,
                                      Eigen::VectorXd const& values, Progress& progress)
{
    return WithVariables(dataset, {name}, values, progress);
}

std::shared_ptr<Dataset> WithoutVariables(Dataset const& dataset, std::vector<std::string> const& names,
                                          Progress& progress)
{
    auto dropped = ColumnsOf(dataset, names);
    auto const left = dataset.data.cols() - static_cast<Eigen::Index>(dropped.size());
    if (left < 2)
        throw Error("a dataset keeps at least one variable");
    std::sort(dropped.begin(), dropped.end());

    ProgressScope scope(progress, "Copying the dataset");
    auto const made = std::make_shared<Dataset>();
    made->name = dataset.name;
    made->data.resize(dataset.data.rows(), left);
    for (Eigen::Index from = 0, to = 0; from < dataset.data.cols(); ++from)
    {
        if (std::binary_search(dropped.begin(), dropped.end(), from))
            continue;
        made->varNames.Add(dataset.varNames[static_cast<std::size_t>(from)]);
        made->data.col(to) = dataset.data.col(from);
        auto const labelled = dataset.labelledColumns.find(static_cast<int>(from));
        if (labelled != dataset.labelledColumns.end())
            made->labelledColumns[static_cast<int>(to)] = labelled->second;
        scope.Update(static_cast<std::uint64_t>(++to), static_cast<std::uint64_t>(left));
    }
    return made;
}
} // namespace workbench
