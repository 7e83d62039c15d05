#pragma once

class wxFileName;
class wxString;
class wxWindow;

namespace workbench
{
/// Whether a file may be written: where there is one of that path the user is asked, in a box with
/// `caption`. A path may have been typed or proposed, and then nobody has asked yet.
bool MayWrite(wxFileName const& path, wxString const& caption, wxWindow* parent);
} // namespace workbench
