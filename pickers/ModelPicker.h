#pragma once

#include <string>

#include <wx/panel.h>

#include "engine/Export.h"

class wxChoice;

/// A labelled drop-down row in which the user names one model of the workspace.
///
/// The owner fills it with names, reads the chosen one back and binds `wxEVT_CHOICE` on the picker:
/// one event comes for each real change, none when the entry chosen already is picked again.
class ZENQO_API ModelPicker : public wxPanel
{
public:
    explicit ModelPicker(wxWindow* parent);

    /// The index of the selected entry, from 0; `wxNOT_FOUND` if there is none.
    int GetSelection() const;

    /// Selects entry `index`, or nothing if there is no such entry. Raises no event and leaves the
    /// change filter where it was: owners call SetCurrentSelection as well to have it follow.
    void SetSelection(int index);

    /// Tells the change filter that entry `index` is the one last reported.
    void SetCurrentSelection(int index);

    /// Puts `names` in the place of all entries, in their order. Nothing is selected afterwards.
    void SetChoices(wxArrayString& names);

    /// Removes all entries.
    void ClearChoices();

    /// The selected name as the key of the map of models; empty if nothing is selected or
    /// the name has no narrow form.
    std::string GetSelectionString() const;

    /// The user has picked an entry: a real change travels on to the owner, any other ends here.
    void OnModelChanged(wxCommandEvent& event);

private:
    wxChoice* m_choice;
    int m_currentSelection = 0; ///< The index last reported as changed.
};
