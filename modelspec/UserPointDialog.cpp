#include "modelspec/UserPointDialog.h"

#include <wx/notebook.h>

#include "common/NotebookDialog.h"
#include "common/Text.h"
#include "modelspec/PriorGrid.h"

UserPointDialog::UserPointDialog(wxWindow* parent, std::vector<std::string>& names)
    : wxDialog(parent, wxID_ANY, "Define Point", wxDefaultPosition, wxSize(600, 100),
               zenqo::NOTEBOOK_DIALOG_STYLE)
{
    auto const frame = zenqo::BuildValuesFrame(this);
    m_notebook = frame.notebook;
    auto const count = static_cast<Eigen::Index>(names.size());
    m_grid = new PriorGrid(m_notebook, zenqo::ToWide(names), Eigen::MatrixXd::Zero(count, 1));
    zenqo::FinishValuesFrame(this, frame, m_grid, "Variables");
}

Eigen::VectorXd UserPointDialog::GetValues() { return m_grid->ReadFields(); }

void UserPointDialog::WriteValues(Eigen::VectorXd&) {}
