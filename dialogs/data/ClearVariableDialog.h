#pragma once

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class VariablePickerSingle;

/// Asks which variables of a dataset are to be deleted.
///
/// It deletes nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and
/// composes the command.
class ZENQO_API ClearVariableDialog : public wxDialog
{
public:
    /// `datasets` belongs to the host and outlives the dialog; its first dataset is picked.
    ClearVariableDialog(wxWindow* parent, DatasetMap* datasets);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The chosen variables in the order of their list. None is one empty string.
    wxArrayString GetVarNames() const;

    /// Picks dataset `index` of the map, from 0, and chooses `names`, which must be variables of it.
    /// An index that is not there picks none.
    void SetVariables(int index, wxArrayString& names);

    /// The user accepts: an empty choice is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    VariablePickerSingle* m_variables;
};
