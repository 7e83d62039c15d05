#include "modelspec/ExogValuesGrid.h"

#include <algorithm>

#include "common/GridSize.h"
#include "common/NumberGrid.h"

ExogValuesGrid::ExogValuesGrid(wxWindow* parent, int periods, wxArrayString const& names,
                               Eigen::MatrixXd const& values)
    : wxGrid(parent, wxID_ANY, wxPoint(100, 100)), m_editor(zenqo::MakeNumberEditor())
{
    SetDefaultEditor(m_editor);
    zenqo::SetUpNumberGrid(this, std::max(periods, 0), static_cast<int>(names.size()),
                           {20, wxALIGN_CENTRE, 50});
    Write(names, values);
    zenqo::AlignNumbers(this);
}

Eigen::MatrixXd ExogValuesGrid::ReadFields() { return zenqo::ReadNumbers(this); }

void ExogValuesGrid::RedrawGrid(int periods, wxArrayString const& names, Eigen::MatrixXd const& values)
{
    wxGridUpdateLocker const drawOnce(this);
    ClearGrid();
    zenqo::SetRowCount(this, 0);
    zenqo::SetColCount(this, 0);
    zenqo::SetColCount(this, static_cast<int>(names.size()));
    zenqo::SetRowCount(this, periods);
    Write(names, values);
}

void ExogValuesGrid::Write(wxArrayString const& names, Eigen::MatrixXd const& values)
{
    auto* const table = GetTable();
    for (int row = 0; row < GetNumberRows(); ++row)
        table->SetRowLabelValue(row, wxString::Format("T+%d", row + 1));
    zenqo::LabelColumns(this, names);
    zenqo::WriteNumbers(this, values);
}
