#include "dialogs/external/StataDialog.h"

#include "common/ScriptBridge.h"
#include "pickers/ScriptPicker.h"
#include "pickers/TextPicker.h"

StataDialog::StataDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, L"Stata® Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_output, m_input, m_script) = zenqo::BuildBridge<TextPicker, ScriptPicker>(
        this,
        {L"Stata® Script", L"Location of the Stata® do file:", L"Zenqo Items to Pass to Stata®",
         L"Stata® Matrices to Pass to Zenqo", "mat1, mat2, ..."});
    Bind(wxEVT_BUTTON, &StataDialog::OnButtonOk, this, wxID_OK);
}

StataDialog::~StataDialog() { zenqo::DeleteInOrder({m_output, m_input, m_script}); }

std::string StataDialog::GetScript() const { return m_script->GetText(); }

std::string StataDialog::GetOutputData() const { return m_output->GetText(); }

std::string StataDialog::GetInputData() const { return m_input->GetText(); }

void StataDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptScript(this, L"No Stata® do file has been provided.", event);
}
