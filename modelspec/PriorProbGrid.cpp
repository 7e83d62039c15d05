#include "modelspec/PriorProbGrid.h"

#include "common/NumberGrid.h"

PriorProbGrid::PriorProbGrid(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXd const& values)
    : wxGrid(parent, wxID_ANY, wxPoint(100, 100)), m_editor(zenqo::MakeNumberEditor())
{
    SetDefaultEditor(m_editor);
    zenqo::SetUpNumberGrid(this, static_cast<int>(names.size()), 1, {0, {}, 200});
    zenqo::RedrawColumn(this, names, values);
    zenqo::AlignNumbers(this);
}

Eigen::MatrixXd PriorProbGrid::ReadFields() { return zenqo::ReadNumbers(this); }

void PriorProbGrid::RedrawGrid(wxArrayString const& names, Eigen::MatrixXd const& values)
{
    zenqo::RedrawColumn(this, names, values);
}
