#pragma once

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class VariablePickerSingle;
class wxRadioBox;

/// Asks which variables of a dataset are to be summarized, and which observations count where values
/// are missing.
///
/// It computes nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and
/// composes the command.
class ZENQO_API SummarizeDataDialog : public wxDialog
{
public:
    /// `datasets` belongs to the host and outlives the dialog; its first dataset is picked.
    SummarizeDataDialog(wxWindow* parent, DatasetMap* datasets);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The chosen variables in the order of their list. None is one empty string.
    wxArrayString GetVarNames() const;

    /// True if only those observations count that have a value for all chosen variables; false if each
    /// variable is summarized over all that it has. The name says the opposite, and hosts know it so.
    bool GetSummarizeAll() const;

    /// Picks dataset `index` of the map, from 0, and chooses `names`, which must be variables of it.
    /// An index that is not there picks none.
    void SetVariables(int index, wxArrayString& names);

    /// The user accepts: an empty choice is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    VariablePickerSingle* m_variables;
    wxRadioBox* m_options;
};
