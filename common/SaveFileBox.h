#pragma once

class wxFilePickerCtrl;
class wxSizer;
class wxString;
class wxWindow;

namespace zenqo
{
/// Adds to `sizer` the box "File name and location" with the picker of a file to write, which asks
/// before it lets the user replace a file. `path` is what it shows first.
wxFilePickerCtrl* AddSaveFileBox(wxWindow* parent, wxSizer* sizer, wxString const& path);
} // namespace zenqo
