#include "common/SaveFileBox.h"

#include <wx/filepicker.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

namespace zenqo
{
wxFilePickerCtrl* AddSaveFileBox(wxWindow* parent, wxSizer* sizer, wxString const& path)
{
    auto* const box = new wxStaticBoxSizer(wxVERTICAL, parent, "File name and location");
    auto* const picker = new wxFilePickerCtrl(
        box->GetStaticBox(), wxID_ANY, path, "Select a file", "*.*", wxDefaultPosition, wxDefaultSize,
        wxFLP_SAVE | wxFLP_OVERWRITE_PROMPT | wxFLP_USE_TEXTCTRL);
    // Room to read the end of a path in.
    picker->SetMinSize(wxSize(360, -1));
    box->Add(picker, 0, wxEXPAND | wxALL, 5);
    sizer->Add(box, 0, wxEXPAND | wxALL, 5);
    return picker;
}
} // namespace zenqo
