// How long DataGrid::ShowData takes for a large dataset.

#include <random>
#include <sstream>

#include <wx/frame.h>
#include <wx/grid.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "common/DisplayGrid.h"
#include "common/Number.h"
#include "common/Text.h"
#include "panes/DataGrid.h"

namespace benchmarks
{
namespace
{
constexpr int ROWS = 100000;

/// Numbers of all lengths, behind the hidden first column.
Dataset Numbers(int rows, int columns)
{
    std::mt19937 generator(1);
    std::normal_distribution<double> normal(0.0, 100.0);
    Dataset dataset;
    dataset.data = Eigen::MatrixXd::NullaryExpr(rows, columns + 1, [&] { return normal(generator); });
    for (int col = 0; col <= columns; ++col)
        dataset.varNames.Add("variable" + std::to_string(col));
    return dataset;
}

/// One column of labels.
Dataset Labels(int rows)
{
    Dataset dataset = Numbers(rows, 1);
    auto& labels = dataset.labelledColumns[1].labels;
    for (int row = 0; row < rows; ++row)
        labels.push_back("label " + std::to_string(row % 1000));
    return dataset;
}

/// A shown window with a DataGrid, and with a grid like its own beside it.
class Window
{
public:
    Window()
        : m_frame(new wxFrame(nullptr, wxID_ANY, "Grids", wxDefaultPosition, wxSize(800, 400))),
          m_pane(new DataGrid(m_frame))
    {
        auto* const panel = new wxPanel(m_frame);
        m_like = zenqo::BuildDisplayGrid(panel, new wxPanel(panel));
        auto* const sizer = new wxBoxSizer(wxHORIZONTAL);
        sizer->Add(m_pane, 1, wxEXPAND);
        sizer->Add(panel, 1, wxEXPAND);
        m_frame->SetSizer(sizer);
        m_frame->Show();
    }
    ~Window() { m_frame->Destroy(); }

    double ShowData(Dataset& dataset)
    {
        m_pane->ClearGrid();
        Settle();
        double const seconds = Seconds([&] { m_pane->ShowData(dataset); });
        Settle();
        m_pane->ClearGrid();
        return seconds;
    }

    /// A stream for each cell, and the grid's own call.
    double ShowNaively(Dataset const& dataset)
    {
        auto const columns = static_cast<int>(dataset.data.cols()) - 1;
        auto const rows = static_cast<int>(dataset.data.rows());
        double const seconds = Seconds(
            [&]
            {
                m_like->AppendCols(columns);
                m_like->AppendRows(rows);
                for (int col = 0; col < columns; ++col)
                {
                    m_like->SetColLabelValue(col, dataset.varNames[static_cast<std::size_t>(col + 1)]);
                    for (int row = 0; row < rows; ++row)
                    {
                        std::ostringstream text;
                        text << dataset.data(row, col + 1);
                        m_like->SetCellValue(row, col, zenqo::ToWide(text.str()));
                    }
                }
            });
        Settle();
        zenqo::EmptyGrid(m_like);
        return seconds;
    }

private:
    wxFrame* m_frame;
    DataGrid* m_pane;
    wxGrid* m_like;
};

/// What cannot be saved: each number is made a text and stored. No grid knows of the table.
double FillTable(Dataset const& dataset)
{
    auto const columns = static_cast<int>(dataset.data.cols()) - 1;
    auto const rows = static_cast<int>(dataset.data.rows());
    wxGridStringTable table;
    return Seconds(
        [&]
        {
            table.AppendCols(static_cast<std::size_t>(columns));
            table.AppendRows(static_cast<std::size_t>(rows));
            for (int row = 0; row < rows; ++row)
                for (int col = 0; col < columns; ++col)
                    table.SetValue(row, col, zenqo::FormatNumberWide(dataset.data(row, col + 1)));
        });
}
} // namespace

void MeasureGrids(Table& table)
{
    Window window;
    auto numbers = Numbers(ROWS, 20);
    auto twice = Numbers(2 * ROWS, 20);
    auto number = Numbers(ROWS, 1);
    auto labels = Labels(ROWS);
    auto const show = [&window](Dataset& dataset) { return [&] { return window.ShowData(dataset); }; };

    table.Compare({"ShowData, 100,000 x 20: against a stream for each cell", 0.5}, show(numbers),
                  [&] { return window.ShowNaively(numbers); });
    table.Compare({"ShowData, 100,000 x 20: against the table alone", 1.3}, show(numbers),
                  [&] { return FillTable(numbers); });
    table.Compare({"ShowData, 200,000 x 20: against 100,000", 2.2}, show(twice), show(numbers));
    table.Compare({"ShowData, a labelled column: against a number column", 3.0}, show(labels),
                  show(number), 25);
}
} // namespace benchmarks
