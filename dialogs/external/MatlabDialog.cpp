#include "dialogs/external/MatlabDialog.h"

#include <wx/textctrl.h>

#include "common/ScriptBridge.h"
#include "common/Text.h"
#include "common/TextLabel.h"
#include "common/TypewriterFont.h"
#include "pickers/ScriptPicker.h"
#include "pickers/TextPicker.h"

MatlabDialog::MatlabDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, L"MATLAB® Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_output, m_input, m_script) = zenqo::BuildBridge<TextPicker, ScriptPicker>(
        this,
        {L"MATLAB® Script", L"Location of the MATLAB® script file:", L"Zenqo Items to Pass to MATLAB®",
         L"MATLAB® Matrices to Pass to Zenqo", "mat1, mat2, ..."},
        [this](wxSizer* sizer) { AddOptions(sizer); });
    Bind(wxEVT_BUTTON, &MatlabDialog::OnButtonOk, this, wxID_OK);
}

void MatlabDialog::AddOptions(wxSizer* sizer)
{
    auto* const box
        = zenqo::AddLabelledBox(this, sizer, "Command-line options", 0, zenqo::BELOW_FIRST_BOX);
    auto* const inBox = box->GetStaticBox();
    auto* const label = zenqo::MakeTextLabel(inBox, "Options to pass to the command that calls MALTAB:",
                                             wxSize(150, 23));
    box->Add(label, 1, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, 5);
    m_options = new wxTextCtrl(inBox, wxID_ANY,
                               "-nojvm -nodesktop -nodisplay -nosplash -minimize -wait -r",
                               wxDefaultPosition, wxSize(400, -1));
    m_options->SetFont(zenqo::TypewriterFont(10));
    box->Add(m_options, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);
}

MatlabDialog::~MatlabDialog() { zenqo::DeleteInOrder({m_output, m_input, m_script}); }

std::string MatlabDialog::GetScript() const { return m_script->GetText(); }

std::string MatlabDialog::GetOutputData() const { return m_output->GetText(); }

std::string MatlabDialog::GetInputData() const { return m_input->GetText(); }

std::string MatlabDialog::GetOptions() const { return zenqo::ToNarrow(m_options->GetValue()); }

void MatlabDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptScript(this, L"No MATLAB® script has been provided.", event);
}
