#pragma once

#include <wx/string.h>

class wxFilePickerCtrl;

namespace zenqo
{
/// Lets the picker's field hold a path of any length.
void AllowLongPath(wxFilePickerCtrl* picker);

/// Shows `path` in the picker's field, however long it is, and lets the user type as long a one.
void ShowPath(wxFilePickerCtrl* picker, wxString const& path);

/// The folder of the path that the picker shows, without a separator at its end.
wxString FolderOf(wxFilePickerCtrl const* picker);
} // namespace zenqo
