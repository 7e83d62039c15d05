#include "modelspec/PriorGrid.h"

#include "common/NumberGrid.h"

PriorGrid::PriorGrid(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXd const& values)
    : wxGrid(parent, wxID_ANY), m_editor(zenqo::MakeNumberEditor())
{
    SetDefaultEditor(m_editor);
    zenqo::SetUpNumberGrid(this, static_cast<int>(names.size()), 1, {0, {}, 150});
    zenqo::RedrawColumn(this, names, values);
    zenqo::AlignNumbers(this);
}

Eigen::MatrixXd PriorGrid::ReadFields() { return zenqo::ReadNumbers(this); }

void PriorGrid::RedrawGrid(wxArrayString const& names, Eigen::MatrixXd const& values)
{
    zenqo::RedrawColumn(this, names, values);
}
