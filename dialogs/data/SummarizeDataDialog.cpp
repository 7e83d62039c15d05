#include "dialogs/data/SummarizeDataDialog.h"

#include <wx/radiobox.h>

#include "common/DialogFrame.h"
#include "common/RadioBox.h"
#include "pickers/VariablePickerSingle.h"

SummarizeDataDialog::SummarizeDataDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Summarize Data")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_variables = zenqo::AddBoxedPicker<VariablePickerSingle>(
        this, zenqo::AddGrowingCell(sizer), "Select Dataset && Variables to Summarize", datasets, 235,
        "Variables to Summarize");
    m_options = zenqo::AddRadioBox(
        this, sizer, "Options",
        {"Use all observartions available per variable",
         "Use only observartions without missing values for all selected variables"});
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutDialog(this, sizer);
    Bind(wxEVT_BUTTON, &SummarizeDataDialog::OnButtonOk, this, wxID_OK);
}

std::string SummarizeDataDialog::GetDatasetName() const { return m_variables->GetDatasetName(); }

wxArrayString SummarizeDataDialog::GetVarNames() const { return m_variables->GetRhsVars(); }

bool SummarizeDataDialog::GetSummarizeAll() const { return m_options->GetSelection() != 0; }

void SummarizeDataDialog::SetVariables(int index, wxArrayString& names)
{
    m_variables->SetVariables(index, names);
}

void SummarizeDataDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(zenqo::ComplainOfNone(GetVarNames()), this, event);
}
