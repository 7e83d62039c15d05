#include "panes/MatrixGrid.h"

#include <wx/grid.h>

#include "common/DisplayGrid.h"
#include "common/MapKeys.h"
#include "pickers/MatrixPicker.h"

namespace
{
constexpr int ID_PICKED = 6081;

std::vector<zenqo::GridColumn> NumberedColumns(Eigen::MatrixXd const& matrix)
{
    std::vector<zenqo::GridColumn> columns;
    for (int j = 0; j < matrix.cols(); ++j)
        columns.push_back({wxString::Format("%d", j + 1), matrix.col(j).data(), nullptr});
    return columns;
}
} // namespace

MatrixGrid::MatrixGrid(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxSize(400, 300), wxTAB_TRAVERSAL),
      m_picker(new MatrixPicker(this)), m_grid(zenqo::BuildDisplayGrid(this, m_picker))
{
    m_picker->Bind(wxEVT_CHOICE, &MatrixGrid::OnMatrixChanged, this, ID_PICKED);
}

wxGrid* MatrixGrid::GetGrid() const { return m_grid; }

int MatrixGrid::GetSelection() const { return m_picker->GetSelection(); }

void MatrixGrid::SetChoice(wxString& name)
{
    m_picker->SetChoice(name);
    // The user's next pick is a change against this one.
    m_picker->SetCurrentSelection(m_picker->GetSelection());
}

void MatrixGrid::ClearGrid() { zenqo::EmptyGrid(m_grid); }

void MatrixGrid::Clear()
{
    ClearGrid();
    m_picker->ClearChoices();
}

void MatrixGrid::UpdateChoices(MatrixMap* matrices)
{
    auto names = zenqo::KeysOf(*matrices);
    m_picker->SetChoices(names);
    m_picker->SetSelection(0);
    m_picker->SetCurrentSelection(0);
}

void MatrixGrid::ShowData(Eigen::MatrixXd& matrix)
{
    ClearGrid();
    if (matrix.size() > 0)
        zenqo::FillGrid(m_grid, static_cast<int>(matrix.rows()), NumberedColumns(matrix),
                        zenqo::Missing::POSITIVE_NAN);
}

void MatrixGrid::Update(MatrixMap* matrices)
{
    if (!IsShown())
        return;
    Clear();
    if (matrices->empty())
        return;
    UpdateChoices(matrices);
    ShowData(*matrices->begin()->second);
}

void MatrixGrid::OnMatrixChanged(wxCommandEvent& event) { event.Skip(); }
