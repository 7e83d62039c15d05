#include "common/SaveFileBox.h"

#include <wx/filepicker.h>

#include "common/DialogFrame.h"
#include "common/FilePath.h"

namespace zenqo
{
wxFilePickerCtrl* AddSaveFileBox(wxWindow* parent, wxSizer* sizer, wxString const& path)
{
    auto* const box = AddLabelledBox(parent, sizer, "File name and location");
    auto* const picker = new wxFilePickerCtrl(
        box->GetStaticBox(), wxID_ANY, wxEmptyString, "Select a file", "*.*", wxDefaultPosition,
        wxDefaultSize, wxFLP_SAVE | wxFLP_OVERWRITE_PROMPT | wxFLP_USE_TEXTCTRL);
    ShowPath(picker, path);
    // Room to read the end of a path in.
    picker->SetMinSize(wxSize(360, -1));
    box->Add(picker, 0, wxEXPAND | wxALL, 5);
    return picker;
}

wxString ProposedFile(wxString const& name) { return "./" + name + ".csv"; }

void AddExportButtons(wxDialog* dialog, wxSizer* sizer)
{
    AddButtonRow(dialog, sizer, "&Export", 1, wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM);
}
} // namespace zenqo
