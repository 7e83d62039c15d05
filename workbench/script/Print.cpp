#include "workbench/script/Print.h"

#include <algorithm>
#include <type_traits>
#include <vector>

#include "workbench/engine/Utf8.h"
#include "workbench/estimation/EstimateRegression.h"
#include "workbench/script/ModelSummary.h"
#include "workbench/script/Output.h"
#include "workbench/script/Table.h"

namespace workbench
{
namespace
{
/// Text goes out in pieces of about this size, so that a long table needs no memory.
constexpr std::size_t PIECE = 64 * 1024;

/// The lines of a printed dataset that are no observations: an empty one, the title, the names.
constexpr int HEAD_LINES = 3;

std::string Cell(Dataset const& dataset, Eigen::Index row, Eigen::Index column)
{
    auto const labelled = dataset.labelledColumns.find(static_cast<int>(column));
    if (labelled != dataset.labelledColumns.end())
    {
        auto const& labels = labelled->second.labels;
        auto const index = static_cast<std::size_t>(row);
        return index < labels.size() && !labels[index].empty() ? AsCell(labels[index]) : ".";
    }
    return NumberCell(dataset.data(row, column));
}

/// A cell of column `column` as it is printed; column 0 stands for the observations' numbers.
std::string CellOf(Dataset const& dataset, Eigen::Index row, Eigen::Index column)
{
    return column == 0 ? std::to_string(row + 1) : Cell(dataset, row, column);
}

std::vector<TableColumn> MeasureColumns(Dataset const& dataset, Eigen::Index first)
{
    std::vector<TableColumn> columns{{"obs", false}};
    for (std::size_t j = 1; j < dataset.varNames.GetCount(); ++j)
        columns.push_back({AsCell(dataset.varNames[j].utf8_string()),
                           dataset.labelledColumns.count(static_cast<int>(j)) > 0});
    for (std::size_t j = 0; j < columns.size(); ++j)
    {
        columns[j].width = CountCharacters(columns[j].title);
        for (Eigen::Index i = first; i < dataset.data.rows(); ++i)
            columns[j].width = std::max(columns[j].width,
                                        CountCharacters(CellOf(dataset, i, static_cast<Eigen::Index>(j))));
    }
    return columns;
}

void PrintDataset(std::string const& name, Dataset const& dataset, Output& output)
{
    auto const rows = dataset.data.rows();
    auto const room = output.MaxLines() > 0 ? std::max(1, output.MaxLines() - HEAD_LINES) : rows;
    auto const first = std::max<Eigen::Index>(0, rows - room);
    auto const columns = MeasureColumns(dataset, first);

    std::string text = "\n" + Title(name, dataset);
    if (first > 0)
        text += ", of which the last " + std::to_string(rows - first) + " are shown";
    for (std::size_t j = 0; j < columns.size(); ++j)
        text += (j == 0 ? "\n" : "\t") + Pad(columns[j].title, columns[j]);
    text += "\n";
    for (Eigen::Index i = first; i < rows; ++i)
    {
        for (std::size_t j = 0; j < columns.size(); ++j)
            text += (j == 0 ? "" : "\t") + Pad(CellOf(dataset, i, static_cast<Eigen::Index>(j)), columns[j]);
        text += "\n";
        if (text.size() > PIECE)
        {
            output.Text(text);
            text.clear();
        }
    }
    output.Text(text);
}

void PrintMatrix(std::string const& name, Eigen::MatrixXd const& matrix, Output& output)
{
    output.Text("\n" + Title(name, matrix) + "\n");
    if (matrix.size() > 0)
        output.Matrix(matrix);
}

void PrintModel(std::string const& name, Model const& model, Output& output, Progress& progress)
{
    auto const title = "Model " + name + ": " + DescribeModel(model);
    if (model.draws.rows() > 0)
        PrintSummary(title, model, output, progress);
    else
    {
        std::string text = "\n" + title + "\n";
        for (auto const& drawName : model.drawNames)
            text += "  " + AsCell(drawName) + "\n";
        output.Text(text);
    }
    if (model.type == LINEAR_REGRESSION)
        return;
    for (auto const& [key, value] : model.results)
        PrintMatrix(name + ", " + AsCell(key), value, output);
}
} // namespace

std::string Title(std::string const& name, Dataset const& dataset)
{
    auto const variables = std::max<Eigen::Index>(0, dataset.data.cols() - 1);
    return "Dataset " + name + ": " + Count(dataset.data.rows(), "observation", "observations") + " of "
           + Count(variables, "variable", "variables");
}

std::string Title(std::string const& name, Eigen::MatrixXd const& matrix)
{
    return "Matrix " + name + ": " + Count(matrix.rows(), "row", "rows") + ", "
           + Count(matrix.cols(), "column", "columns");
}

void Print(std::string const& name, Object const& object, Output& output, Progress& progress)
{
    std::visit(
        [&](auto const& pointer)
        {
            using Pointer = std::decay_t<decltype(pointer)>;
            if constexpr (std::is_same_v<Pointer, std::shared_ptr<Dataset>>)
                PrintDataset(name, *pointer, output);
            else if constexpr (std::is_same_v<Pointer, std::shared_ptr<Eigen::MatrixXd>>)
                PrintMatrix(name, *pointer, output);
            else if constexpr (std::is_same_v<Pointer, std::shared_ptr<Model>>)
                PrintModel(name, *pointer, output, progress);
        },
        object);
}
} // namespace workbench
