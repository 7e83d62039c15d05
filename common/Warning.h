#pragma once

#include <wx/defs.h>

class wxString;
class wxWindow;

namespace zenqo
{
/// The one box in which the library warns: caption "Warning", an OK button.
void ShowWarning(wxWindow* parent, wxString const& text, long icon = wxICON_EXCLAMATION);
} // namespace zenqo
