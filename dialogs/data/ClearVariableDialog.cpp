#include "dialogs/data/ClearVariableDialog.h"

#include "common/DialogFrame.h"
#include "pickers/VariablePickerSingle.h"

ClearVariableDialog::ClearVariableDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Delete Variables")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_variables = zenqo::AddBoxedPicker<VariablePickerSingle>(
        this, zenqo::AddGrowingCell(sizer), "Select Dataset && Variables to Delete", datasets, 255,
        "Variables to Delete");
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutDialog(this, sizer);
    Bind(wxEVT_BUTTON, &ClearVariableDialog::OnButtonOk, this, wxID_OK);
}

std::string ClearVariableDialog::GetDatasetName() const { return m_variables->GetDatasetName(); }

wxArrayString ClearVariableDialog::GetVarNames() const { return m_variables->GetRhsVars(); }

void ClearVariableDialog::SetVariables(int index, wxArrayString& names)
{
    m_variables->SetVariables(index, names);
}

void ClearVariableDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(zenqo::ComplainOfNone(GetVarNames()), this, event);
}
