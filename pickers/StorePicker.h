#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxCheckBox;
class wxTextCtrl;

/// Lets the user decide whether a result is kept, and under which model name.
///
/// The name's field can be used while the box "Store results" is ticked. A name that stands in it
/// stays there while the box is not.
class ZENQO_API StorePicker : public wxPanel
{
public:
    /// The box starts unticked.
    explicit StorePicker(wxWindow* parent);

    /// True if the user wants the result to be kept.
    bool GetStoreState() const;

    /// The name as it was typed if the box is ticked, and it may be empty; otherwise "NoStore", which
    /// means that nothing is kept. The owner checks the name.
    wxString GetModelName() const;

    /// The user has ticked or unticked the box: the name's field follows.
    void OnStoreClicked(wxCommandEvent& event);

private:
    wxCheckBox* m_store;
    wxTextCtrl* m_name;
};
