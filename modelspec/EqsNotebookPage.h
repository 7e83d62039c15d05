#pragma once

#include <memory>

#include <wx/arrstr.h>
#include <wx/panel.h>

#include "engine/Export.h"

namespace zenqo
{
class RoleLists;
}

/// One equation of an EqsNotebook: its dependent variable and its independent ones.
///
/// It works as VariablePicker_yX does, but has no row for the dataset: the notebook tells it which
/// variables it may offer.
class ZENQO_API EqsNotebookPage : public wxPanel
{
public:
    /// `names` are the variables to offer, the hidden first one included. `listHeight` is not used:
    /// the list of independent variables is 350 pixels high.
    EqsNotebookPage(wxWindow* parent, wxArrayString& names, int const& listHeight);
    ~EqsNotebookPage() override;

    /// The dependent variable; empty if none is chosen.
    wxString GetDepVar() const;

    /// The independent variables in the order of their list. None is one empty string.
    wxArrayString GetIndVar() const;

    /// True once a button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Tells which variables the page may offer from now on, the hidden first one included. The left
    /// list shows them at its next redraw.
    void SetAvailableVarNames(wxArrayString& names);

    /// Fills the left list with those of `names` that no role of this page holds; the first of
    /// `names` is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// What the user does with the lists and the buttons.
    ///@{
    void OnAllVarSelected(wxCommandEvent& event);
    void OnDepVarSelected(wxCommandEvent& event);
    void OnIndVarSelected(wxCommandEvent& event);
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton(wxCommandEvent& event);
    ///@}

private:
    wxArrayString m_names; ///< What a variable that comes back is put among.
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
