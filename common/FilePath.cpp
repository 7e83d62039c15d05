#include "common/FilePath.h"

#include <wx/filename.h>
#include <wx/filepicker.h>
#include <wx/textctrl.h>

namespace zenqo
{
void AllowLongPath(wxFilePickerCtrl* picker)
{
    // The field takes 512 characters as it is made, and shows 32 of a path that it is made with. What
    // it cuts off is lost with the user's first key.
    picker->GetTextCtrl()->SetMaxLength(0);
}

void ShowPath(wxFilePickerCtrl* picker, wxString const& path)
{
    AllowLongPath(picker);
    picker->SetPath(path);
}

wxString FolderOf(wxFilePickerCtrl const* picker)
{
    return wxFileName(picker->GetPath()).GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE);
}
} // namespace zenqo
