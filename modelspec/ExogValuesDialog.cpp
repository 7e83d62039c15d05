#include "modelspec/ExogValuesDialog.h"

#include <wx/notebook.h>

#include "common/NotebookDialog.h"
#include "common/Text.h"
#include "engine/Sentinels.h"
#include "modelspec/ExogValuesGrid.h"

ExogValuesDialog::ExogValuesDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Define Values for the Exogenous Variables", wxDefaultPosition,
               wxSize(600, 100), zenqo::NOTEBOOK_DIALOG_STYLE)
{
    auto const frame = zenqo::BuildValuesFrame(this);
    m_notebook = frame.notebook;
    wxArrayString unnamed;
    unnamed.Add(zenqo::DEFAULT_STRING);
    m_grid = new ExogValuesGrid(m_notebook, 1, unnamed, Eigen::MatrixXd::Zero(1, 1));
    zenqo::FinishValuesFrame(this, frame, m_grid, "Values");
}

void ExogValuesDialog::DrawGrid(int periods, std::vector<std::string>& names,
                                Eigen::MatrixXd const& values)
{
    m_grid->RedrawGrid(periods, zenqo::ToWide(names), values);
}

Eigen::MatrixXd ExogValuesDialog::GetValues() { return m_grid->ReadFields(); }
