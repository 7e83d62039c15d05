#include "dialogs/external/RprojectDialog.h"

#include "common/ScriptBridge.h"
#include "pickers/ScriptPicker.h"
#include "pickers/TextPicker.h"

RprojectDialog::RprojectDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "R-project Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_output, m_input, m_script) = zenqo::BuildBridge<TextPicker, ScriptPicker>(
        this,
        {"R-project Script", "Location of the R-project script file:", "Zenqo Items to Pass to R",
         "R Objects to Pass to Zenqo", "mat1, mat2, mydataset, ..."});
    Bind(wxEVT_BUTTON, &RprojectDialog::OnButtonOk, this, wxID_OK);
}

RprojectDialog::~RprojectDialog() { zenqo::DeleteInOrder({m_output, m_input, m_script}); }

std::string RprojectDialog::GetScript() const { return m_script->GetText(); }

std::string RprojectDialog::GetOutputData() const { return m_output->GetText(); }

std::string RprojectDialog::GetInputData() const { return m_input->GetText(); }

void RprojectDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptScript(this, "No R script has been provided.", event);
}
