#include "modelspec/PriorGridSym.h"

#include "common/GridSize.h"
#include "common/NumberGrid.h"

PriorGridSym::PriorGridSym(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXd const& values)
    : wxGrid(parent, wxID_ANY, wxPoint(100, 100)), m_editor(zenqo::MakeNumberEditor())
{
    auto const count = static_cast<int>(names.size());
    SetDefaultEditor(m_editor);
    zenqo::SetUpNumberGrid(this, count, count, {20, wxALIGN_RIGHT, 100});
    RedrawGrid(names, values);
    zenqo::AlignNumbers(this);
    Bind(wxEVT_GRID_CELL_CHANGED, &PriorGridSym::OnNumberChange, this);
}

Eigen::MatrixXd PriorGridSym::ReadFields() { return zenqo::ReadNumbers(this); }

void PriorGridSym::RedrawGrid(wxArrayString const& names, Eigen::MatrixXd const& values)
{
    wxGridUpdateLocker const drawOnce(this);
    DisableCellEditControl();
    auto const count = static_cast<int>(names.size());
    zenqo::SetRowCount(this, count);
    zenqo::SetColCount(this, count);
    zenqo::LabelRows(this, names);
    zenqo::LabelColumns(this, names);
    zenqo::WriteNumbers(this, values);
}

void PriorGridSym::OnNumberChange(wxGridEvent& event)
{
    SetCellValue(event.GetCol(), event.GetRow(), GetCellValue(event.GetRow(), event.GetCol()));
}
