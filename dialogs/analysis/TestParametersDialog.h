#pragma once

#include <string>

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Export.h"
#include "engine/Model.h"

class Calculator;
class ModelPicker;
class wxButton;
class wxChoice;
class wxFlexGridSizer;
class wxListBox;
class wxSizer;
class wxStaticBoxSizer;
class wxTextCtrl;

/// Asks which restrictions on the parameters of a model are to be tested by its posterior draws.
///
/// A restriction is a text, "LEFT OPERATOR RIGHT". The user types both sides, with the help of a list
/// of the model's draws and of a keypad, and collects the conditions in another list. The dialog reads
/// and tests none of them: after `ShowModal` has returned `wxID_OK` the owner reads the getters and
/// composes the command.
class ZENQO_API TestParametersDialog : public wxDialog
{
public:
    /// `models` belongs to the host, is read again at each change, and outlives the dialog; its first
    /// model is picked.
    TestParametersDialog(wxWindow* parent, ModelMap* models);

    /// The picked model as a key of the map; empty if there is none.
    std::string GetModelName() const;

    /// The conditions in the order of their list, as "beta1 >= 2*beta2"; the operator is one of ">",
    /// ">=", "==", "<=", "<" and "~=". None is one empty string, which an accepted dialog does not give.
    wxArrayString GetConditions() const;

    /// The user accepts: an empty list is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

    /// The user has picked another model: its draws are listed. The conditions and what was typed stay.
    void OnModelChanged(wxCommandEvent& event);

    /// The user wants the selected draw in the left-hand or the right-hand side: "MODEL.DRAW" is written
    /// at the caret there. Nothing happens if none is selected.
    ///@{
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton(wxCommandEvent& event);
    ///@}

    /// The user is about to type on one of the sides: the keypad types there too, from now on.
    ///@{
    void OnLhsCtrlFocus(wxFocusEvent& event);
    void OnRhsCtrlFocus(wxFocusEvent& event);
    ///@}

    /// A side has changed: a condition can be added while there is text on both.
    ///@{
    void OnLhsCtrlTextChanged(wxCommandEvent& event);
    void OnRhsCtrlTextChanged(wxCommandEvent& event);
    ///@}

    /// Makes a condition of both sides, as they were typed, at the end of the list, and empties the
    /// sides. It is selected, and so is what was selected before.
    void OnAddButton(wxCommandEvent& event);

    /// Removes the selected conditions.
    void OnRemoveButton(wxCommandEvent& event);

    /// The user has selected conditions, which can be removed now.
    void OnConditionsListSelected(wxCommandEvent& event);

private:
    wxFlexGridSizer* BuildFields(wxWindow* parent);
    wxButton* AddListButton(wxSizer* sizer, wxWindow* parent, wxString const& label);
    void BuildConditions(wxStaticBoxSizer* box);
    void ShowDraws();
    void ShowWhetherComplete();

    ModelPicker* m_model;
    wxListBox* m_draws;
    wxButton* m_upperMove;
    wxButton* m_lowerMove;
    wxTextCtrl* m_lhs;
    wxTextCtrl* m_rhs;
    Calculator* m_keypad;
    wxChoice* m_operator;
    wxListBox* m_conditions;
    wxButton* m_add;
    wxButton* m_remove;
    ModelMap* m_models;
};
