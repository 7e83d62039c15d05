#include "common/NumberGrid.h"

#include <wx/grid.h>
#include <wx/numformatter.h>

#include "common/GridSize.h"
#include "common/Number.h"

namespace zenqo
{
namespace
{
/// The toolkit's editor of numbers, made fit for every text that a cell can hold.
class NumberEditor : public wxGridCellFloatEditor
{
public:
    NumberEditor() : wxGridCellFloatEditor(-1, -1, wxGRID_FLOAT_FORMAT_FIXED)
    {
        SetParameters("-1,-1,g");
    }

    void BeginEdit(int row, int col, wxGrid* grid) override
    {
        auto* const table = grid->GetTable();
        wxString const text = table->GetValue(row, col);
        double ignored = 0.0;
        // A number too small to be read, as 1e-310, is 0 while it is edited: the toolkit asserts.
        bool const readable = wxNumberFormatter::FromString(text, &ignored);
        if (!readable)
            table->SetValue(row, col, wxEmptyString);
        wxGridCellFloatEditor::BeginEdit(row, col, grid);
        if (!readable)
            table->SetValue(row, col, text);
    }

    bool EndEdit(int row, int col, wxGrid const* grid, wxString const& before, wxString* after) override
    {
        wxString text;
        if (!wxGridCellFloatEditor::EndEdit(row, col, grid, before, &text))
            return false;
        // To the toolkit "nan" is never what it was.
        if (text == before)
            return false;
        if (after)
            *after = text;
        return true;
    }

    wxGridCellEditor* Clone() const override { return new NumberEditor(*this); }
};
} // namespace

wxGridCellFloatEditor* MakeNumberEditor() { return new NumberEditor; }

void SetUpNumberGrid(wxGrid* grid, int rows, int cols, NumberGridLook const& look)
{
    grid->CreateGrid(rows, cols, wxGrid::wxGridSelectCells);
    grid->EnableEditing(true);
    grid->EnableDragGridSize(true);
    grid->EnableDragColMove(false);
    grid->SetColLabelSize(look.colLabelHeight);
    if (look.colLabelAlignment)
        grid->SetColLabelAlignment(*look.colLabelAlignment, wxALIGN_CENTRE);
    grid->AutoSizeRows();
    grid->EnableDragRowSize(false);
    grid->SetRowLabelSize(look.rowLabelWidth);
    grid->SetRowLabelAlignment(wxALIGN_LEFT, wxALIGN_CENTRE);
    // Wide enough for the longest number of six digits, which would else be cut at its front.
    grid->SetDefaultColSize(110, true);
}

void AlignNumbers(wxGrid* grid) { grid->SetDefaultCellAlignment(wxALIGN_RIGHT, wxALIGN_TOP); }

void LabelRows(wxGrid* grid, wxArrayString const& names)
{
    auto* const table = grid->GetTable();
    for (std::size_t i = 0; i < names.size(); ++i)
        table->SetRowLabelValue(static_cast<int>(i), names[i]);
}

void LabelColumns(wxGrid* grid, wxArrayString const& names)
{
    auto* const table = grid->GetTable();
    for (std::size_t i = 0; i < names.size(); ++i)
        table->SetColLabelValue(static_cast<int>(i), names[i]);
}

void WriteNumbers(wxGrid* grid, Eigen::MatrixXd const& values)
{
    auto* const table = grid->GetTable();
    int const rows = grid->GetNumberRows();
    int const cols = grid->GetNumberCols();
    NumberText text;
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < cols; ++col)
            table->SetValue(row, col, text.Of(values(row, col)));
}

void RedrawColumn(wxGrid* grid, wxArrayString const& names, Eigen::MatrixXd const& values)
{
    wxGridUpdateLocker const drawOnce(grid);
    grid->DisableCellEditControl();
    SetRowCount(grid, static_cast<int>(names.size()));
    LabelRows(grid, names);
    WriteNumbers(grid, values);
}

Eigen::MatrixXd ReadNumbers(wxGrid* grid)
{
    grid->DisableCellEditControl();
    Eigen::MatrixXd numbers = Eigen::MatrixXd::Zero(grid->GetNumberRows(), grid->GetNumberCols());
    double number = 0.0;
    for (int row = 0; row < numbers.rows(); ++row)
        for (int col = 0; col < numbers.cols(); ++col)
        {
            grid->GetCellValue(row, col).ToDouble(&number);
            numbers(row, col) = number;
        }
    return numbers;
}
} // namespace zenqo
