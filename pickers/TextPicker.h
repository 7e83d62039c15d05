#pragma once

#include <string>

#include <wx/panel.h>

#include "engine/Export.h"

class wxTextCtrl;

/// A field for free text of several lines, with an example of one line under it.
class ZENQO_API TextPicker : public wxPanel
{
public:
    /// `width` and `height` are the field's, in pixels; -1 leaves the height to the field itself.
    /// All extra height goes to the field.
    TextPicker(wxWindow* parent, wxString& example, int width, int height);

    /// The whole text with its line ends as they stand; empty if it has no narrow form.
    std::string GetText() const;

private:
    wxTextCtrl* m_text;
};
