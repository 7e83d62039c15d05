#include "common/SaveFileBox.h"

#include <wx/filepicker.h>

#include "common/DialogFrame.h"

namespace zenqo
{
wxFilePickerCtrl* AddSaveFileBox(wxWindow* parent, wxSizer* sizer, wxString const& path)
{
    auto* const box = AddLabelledBox(parent, sizer, "File name and location");
    auto* const picker = new wxFilePickerCtrl(
        box->GetStaticBox(), wxID_ANY, path, "Select a file", "*.*", wxDefaultPosition, wxDefaultSize,
        wxFLP_SAVE | wxFLP_OVERWRITE_PROMPT | wxFLP_USE_TEXTCTRL);
    // Room to read the end of a path in.
    picker->SetMinSize(wxSize(360, -1));
    box->Add(picker, 0, wxEXPAND | wxALL, 5);
    return picker;
}
} // namespace zenqo
