#pragma once

#include <wx/string.h>

class wxDialog;
class wxFilePickerCtrl;
class wxSizer;
class wxWindow;

namespace zenqo
{
/// Adds to `sizer` the box "File name and location" with the picker of a file to write, which asks
/// before it lets the user replace a file. `path` is what it shows first.
wxFilePickerCtrl* AddSaveFileBox(wxWindow* parent, wxSizer* sizer, wxString const& path);

/// The text file that is proposed for something called `name`.
wxString ProposedFile(wxString const& name);

/// Adds to `sizer` the row of "&Export" (`wxID_OK`) and "&Cancel" that ends the dialog.
void AddExportButtons(wxDialog* dialog, wxSizer* sizer);
} // namespace zenqo
