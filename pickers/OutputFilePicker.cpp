#include "pickers/OutputFilePicker.h"

#include <wx/filepicker.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>

#include "common/FilePath.h"
#include "common/Text.h"

OutputFilePicker::OutputFilePicker(wxWindow* parent, wxString what)
    : wxPanel(parent)
{
    auto* const sizer = new wxFlexGridSizer(2, 2, 0, 0);
    sizer->AddGrowableCol(1, 0);
    m_default = new wxRadioButton(this, wxID_ANY, "Default " + what);
    m_default->SetValue(true);
    sizer->Add(m_default, 1, wxEXPAND | wxTOP | wxLEFT, 5);
    sizer->Add(1, 1);
    m_custom = new wxRadioButton(this, wxID_ANY, "Custom " + what);
    sizer->Add(m_custom, 1, wxEXPAND | wxBOTTOM | wxLEFT, 5);
    m_file = new wxFilePickerCtrl(
        this, wxID_ANY, wxEmptyString, "Output File:", "All files |*.*;*", wxDefaultPosition,
        wxDefaultSize, wxFLP_SAVE | wxFLP_OVERWRITE_PROMPT | wxFLP_USE_TEXTCTRL | wxFLP_SMALL);
    zenqo::AllowLongPath(m_file);
    m_file->Enable(false);
    sizer->Add(m_file, 10, wxEXPAND | wxBOTTOM | wxRIGHT | wxLEFT, 5);

    m_default->SetValue(true);
    SetSizer(sizer, true);
    Layout();
    m_default->Bind(wxEVT_RADIOBUTTON, &OutputFilePicker::OnDefaultChoice, this);
    m_custom->Bind(wxEVT_RADIOBUTTON, &OutputFilePicker::OnCustomChoice, this);
}

std::string OutputFilePicker::GetFilename() const
{
    return m_custom->GetValue() ? zenqo::ToNarrow(m_file->GetPath()) : std::string();
}

void OutputFilePicker::OnDefaultChoice(wxCommandEvent&) { m_file->Enable(false); }

void OutputFilePicker::OnCustomChoice(wxCommandEvent&) { m_file->Enable(true); }
