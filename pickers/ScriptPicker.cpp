#include "pickers/ScriptPicker.h"

#include <wx/filepicker.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "common/FilePath.h"
#include "common/Text.h"
#include "common/TextLabel.h"

ScriptPicker::ScriptPicker(wxWindow* parent, wxString& label, int width)
    : wxPanel(parent)
{
    auto* const sizer = new wxFlexGridSizer(2, 1, 0, 0);
    sizer->AddGrowableCol(0, 1);
    sizer->Add(zenqo::MakeTextLabel(this, label, wxSize(260, 23)), 0,
               wxALIGN_BOTTOM | wxTOP | wxRIGHT | wxLEFT, 5);
    m_file = new wxFilePickerCtrl(this, wxID_ANY, wxEmptyString, "Select a file", "*.*",
                                  wxDefaultPosition, wxSize(width, 27),
                                  wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL | wxFLP_SMALL);
    zenqo::AllowLongPath(m_file);
    sizer->Add(m_file, 0, wxBOTTOM | wxRIGHT | wxLEFT, 5);
    SetSizer(sizer, true);
    Layout();
}

std::string ScriptPicker::GetText() const { return zenqo::ToNarrow(m_file->GetPath()); }
