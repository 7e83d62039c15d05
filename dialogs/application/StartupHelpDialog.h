#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

class wxCheckBox;
class wxHtmlLinkEvent;

/// Welcomes the user with links to tutorials and documentation, which open in the default browser.
///
/// The owner shows it at start and, once `ShowModal` has returned, asks whether to show it again.
class ZENQO_API StartupHelpDialog : public wxDialog
{
public:
    explicit StartupHelpDialog(wxWindow* parent);

    /// Whether the user wants to see the page no more. The box is not ticked at first; the owner keeps
    /// the choice, however the dialog was closed.
    bool GetCheckBoxState() const;

    /// The user has clicked on a link: opens it in the default browser. The page stays.
    void OnLink(wxHtmlLinkEvent& event);

private:
    wxCheckBox* m_doNotShow;
};
