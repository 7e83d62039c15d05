#pragma once

#include <string>

#include <wx/panel.h>

#include "engine/Export.h"

class wxFilePickerCtrl;

/// A labelled field in which the user names an existing file, by typing or by browsing.
class ZENQO_API ScriptPicker : public wxPanel
{
public:
    /// `width` is that of the field with its button, in pixels.
    ScriptPicker(wxWindow* parent, wxString& label, int width);

    /// The path of the file; empty if none was named or the path has no narrow form. Browsing offers
    /// existing files alone, but a path that was typed is returned as it stands: the owner checks it.
    std::string GetText() const;

private:
    wxFilePickerCtrl* m_file;
};
