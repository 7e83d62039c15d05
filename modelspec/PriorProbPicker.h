#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxButton;
class wxRadioButton;

/// Chooses between the default prior model probabilities and the user's own.
///
/// "&Define" leads to the dialog in which the owner lets the user define it: its presses travel up as
/// `wxEVT_BUTTON` with the id 6022, and the owner binds them. It is enabled while "Custom" is chosen. The
/// panel opens on the default and keeps no prior.
class ZENQO_API PriorProbPicker : public wxPanel
{
public:
    explicit PriorProbPicker(wxWindow* parent);

    /// True if the default is chosen.
    bool GetDefaultOption() const;

    /// The user has chosen "Default" or "Custom".
    ///@{
    void OnDefaultButton(wxCommandEvent& event);
    void OnCustomButton(wxCommandEvent& event);
    ///@}

private:
    wxRadioButton* m_default;
    wxRadioButton* m_custom;
    wxButton* m_define;
};
