#include "common/DisplayGrid.h"

#include <algorithm>
#include <cmath>

#include <wx/grid.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include "common/GridSize.h"
#include "common/LabelColours.h"
#include "common/Number.h"
#include "common/Text.h"

namespace zenqo
{
namespace
{
/// A label as it was written. The bytes of a text from another locale are taken one by one.
wxString LabelText(std::string const& label)
{
    wxString text = ToWide(label);
    if (text.empty() && !label.empty())
        text = wxString::From8BitData(label.data(), label.size());
    return text;
}

bool IsMissing(double value, Missing missing)
{
    return std::isnan(value) && (missing == Missing::ANY_NAN || !std::signbit(value));
}
} // namespace

wxGrid* BuildDisplayGrid(wxPanel* panel, wxPanel* picker)
{
    auto* const grid = new wxGrid(panel, wxID_ANY);
    grid->CreateGrid(0, 0, wxGrid::wxGridSelectCells);
    grid->EnableEditing(false);
    grid->EnableDragGridSize(true);
    grid->EnableDragColMove(false);
    grid->SetColLabelSize(20);
    grid->SetColLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    grid->AutoSizeRows(true);
    grid->EnableDragRowSize(false);
    grid->SetRowLabelSize(50);
    grid->SetRowLabelAlignment(wxALIGN_CENTRE, wxALIGN_CENTRE);
    grid->SetDefaultCellAlignment(wxALIGN_RIGHT, wxALIGN_TOP);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(picker, 0, wxEXPAND | wxTOP, 5);
    sizer->Add(grid, 1, wxEXPAND, 0);
    panel->SetSizer(sizer);
    panel->Layout();
    return grid;
}

void EmptyGrid(wxGrid* grid)
{
    LabelColours::Of(grid).Forget();
    grid->ClearGrid();
    SetColCount(grid, 0);
    SetRowCount(grid, 0);
}

void FillGrid(wxGrid* grid, int rows, std::vector<GridColumn> const& columns, Missing missing)
{
    wxGridUpdateLocker const drawOnce(grid);
    auto const count = static_cast<int>(columns.size());
    SetColCount(grid, count);
    SetRowCount(grid, rows);

    auto* const table = grid->GetTable();
    auto& colours = LabelColours::Of(grid);
    for (int col = 0; col < count; ++col)
    {
        table->SetColLabelValue(col, columns[col].title);
        if (columns[col].labels)
            colours.Mark(col, std::min(rows, static_cast<int>(columns[col].labels->size())));
    }
    wxString const dot = ".";
    NumberText number;
    // Straight into the table and row by row, the way it lies in memory: the grid's own call
    // would think of repainting at each cell.
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < count; ++col)
        {
            auto const& column = columns[col];
            auto const index = static_cast<std::size_t>(row);
            if (!column.labels)
            {
                double const value = column.numbers[index];
                table->SetValue(row, col, IsMissing(value, missing) ? dot : number.Of(value));
            }
            else if (index < column.labels->size())
                table->SetValue(row, col, LabelText((*column.labels)[index]));
        }
}
} // namespace zenqo
