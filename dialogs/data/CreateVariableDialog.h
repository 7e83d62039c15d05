#pragma once

#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class Calculator;
class DatasetPicker;
class wxButton;
class wxFlexGridSizer;
class wxListBox;
class wxTextCtrl;

/// Asks for the name of a new variable of a dataset and for the expression that makes it.
///
/// The user types the expression, with the help of a list of the dataset's variables and of a keypad.
/// It makes nothing and does not read the expression: after `ShowModal` has returned `wxID_OK` the
/// owner reads the getters and composes the command.
class ZENQO_API CreateVariableDialog : public wxDialog
{
public:
    /// `datasets` belongs to the host, is read again at each change, and outlives the dialog; its first
    /// dataset is picked.
    CreateVariableDialog(wxWindow* parent, DatasetMap* datasets);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The name of the new variable as it was typed; a legal one of the script language once the
    /// dialog was accepted.
    wxString GetVarName() const;

    /// The expression as it was typed; not empty once the dialog was accepted.
    wxString GetExpression() const;

    /// Picks dataset `index` of the map, from 0, and lists its variables. An index that is not there
    /// picks none. What was typed stays.
    void SetDataset(int index);

    /// The user accepts: a name that is missing or not legal, or a missing expression, is answered by a
    /// warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

    /// The user has picked another dataset: its variables are listed. What was typed stays.
    void OnDatasetChanged(wxCommandEvent& event);

    /// The user wants the selected variable in the expression: "DATASET.VARIABLE" is written at the
    /// caret. Nothing happens if none is selected.
    void OnMoveButton(wxCommandEvent& event);

private:
    wxFlexGridSizer* BuildFields(wxWindow* parent);
    void ShowVariables();
    wxString Complaint() const;

    DatasetPicker* m_dataset;
    wxListBox* m_variables;
    wxButton* m_move;
    wxTextCtrl* m_name;
    wxTextCtrl* m_expression;
    Calculator* m_keypad;
    DatasetMap* m_datasets;
};
