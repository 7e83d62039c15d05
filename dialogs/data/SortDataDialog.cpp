#include "dialogs/data/SortDataDialog.h"

#include "common/DialogFrame.h"
#include "pickers/VariablePickerSingle.h"

SortDataDialog::SortDataDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Sort Data")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_variables = zenqo::AddBoxedPicker<VariablePickerSingle>(
        this, zenqo::AddGrowingCell(sizer), "Select Dataset && Sorting Variables", datasets, 235,
        "Sorting Variables");
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutDialog(this, sizer, 1);
    Bind(wxEVT_BUTTON, &SortDataDialog::OnButtonOk, this, wxID_OK);
}

std::string SortDataDialog::GetDatasetName() const { return m_variables->GetDatasetName(); }

wxArrayString SortDataDialog::GetVarNames() const { return m_variables->GetRhsVars(); }

void SortDataDialog::SetVariables(int index, wxArrayString& names)
{
    m_variables->SetVariables(index, names);
}

void SortDataDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(zenqo::ComplainOfNone(GetVarNames()), this, event);
}
