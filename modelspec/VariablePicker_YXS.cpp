#include "modelspec/VariablePicker_YXS.h"

#include "common/VariableRoles.h"
#include "modelspec/EqsNotebook.h"
#include "pickers/DatasetPicker.h"

VariablePicker_YXS::VariablePicker_YXS(wxWindow* parent, DatasetMap* datasets, int const& listHeight)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0), m_datasets(datasets),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::OfferKeys(m_datasetPicker, *datasets);
    m_names = FindNames();
    m_notebook = new EqsNotebook(this, m_names, listHeight);
    zenqo::LayOutUnderPicker(this, m_datasetPicker, m_notebook, 1, wxEXPAND);
    m_datasetPicker->Bind(wxEVT_CHOICE, &VariablePicker_YXS::OnDatasetChanged, this);
}

std::string VariablePicker_YXS::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxArrayString VariablePicker_YXS::GetDepVars() const { return m_notebook->GetDepVars(); }

std::vector<wxArrayString> VariablePicker_YXS::GetIndVars() const { return m_notebook->GetIndVars(); }

bool VariablePicker_YXS::GetChanged() const { return m_notebook->GetChanged(); }

void VariablePicker_YXS::SetChanged(bool changed) { m_notebook->SetChanged(changed); }

void VariablePicker_YXS::OnDatasetChanged(wxCommandEvent&)
{
    m_names = FindNames();
    m_notebook->OnDatasetChanged(m_names);
}

wxArrayString VariablePicker_YXS::FindNames() const
{
    return zenqo::VariableNames(*m_datasets, GetDatasetName());
}
