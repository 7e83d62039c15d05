#include "dialogs/data/ClearDatasetDialog.h"

#include "common/DialogFrame.h"
#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

ClearDatasetDialog::ClearDatasetDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Clear dataset"), m_dataset(new DatasetPicker(this))
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    zenqo::AddGrowingCell(sizer)->Add(m_dataset, 0, wxEXPAND | wxTOP, 10);
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::OfferKeys(m_dataset, *datasets);
    zenqo::LayOutDialog(this, sizer);
    Bind(wxEVT_BUTTON, &ClearDatasetDialog::OnButtonOk, this, wxID_OK);
}

std::string ClearDatasetDialog::GetDatasetName() const { return m_dataset->GetSelectionString(); }

void ClearDatasetDialog::SetDataset(int index) { m_dataset->SetSelection(index); }

void ClearDatasetDialog::OnButtonOk(wxCommandEvent& event) { event.Skip(); }
