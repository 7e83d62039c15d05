#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxTextCtrl;

/// The initial values of one chain in an InitsNotebook, as free text.
class ZENQO_API InitsNotebookPage : public wxPanel
{
public:
    explicit InitsNotebookPage(wxWindow* parent);

    /// The text as it was typed, with its line breaks. It is not looked at.
    wxString GetText() const;

private:
    wxTextCtrl* m_text;
};
