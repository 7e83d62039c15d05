#include "dialogs/external/OctaveDialog.h"

#include "common/ScriptBridge.h"
#include "pickers/ScriptPicker.h"
#include "pickers/TextPicker.h"

OctaveDialog::OctaveDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "GNU Octave Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_output, m_input, m_script) = zenqo::BuildBridge<TextPicker, ScriptPicker>(
        this,
        {"GNU Octave Script", "Location of the GNU Octave script file:",
         "Zenqo Items to Pass to GNU Octave", "GNU Octave Objects to Pass to Zenqo", "mat1, mat2, ..."});
    Bind(wxEVT_BUTTON, &OctaveDialog::OnButtonOk, this, wxID_OK);
}

OctaveDialog::~OctaveDialog() { zenqo::DeleteInOrder({m_output, m_input, m_script}); }

std::string OctaveDialog::GetScript() const { return m_script->GetText(); }

std::string OctaveDialog::GetOutputData() const { return m_output->GetText(); }

std::string OctaveDialog::GetInputData() const { return m_input->GetText(); }

void OctaveDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptScript(this, "No GNU Octave script has been provided.", event);
}
