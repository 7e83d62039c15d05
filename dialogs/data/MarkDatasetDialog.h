#pragma once

#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class VariablePickerMark;

/// Asks for the structure of a dataset: which variable holds time, how it counts time, and which
/// variable identifies groups.
///
/// It marks nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and composes
/// the command. Nothing is checked, for every answer means something: no group is a time series,
/// neither time nor group takes the structure away.
class ZENQO_API MarkDatasetDialog : public wxDialog
{
public:
    /// `datasets` belongs to the host and outlives the dialog; its first dataset is picked.
    MarkDatasetDialog(wxWindow* parent, DatasetMap* datasets);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The variable that holds time; empty if none is chosen.
    wxString GetTimeVar() const;

    /// The variable that identifies groups; empty if none is chosen.
    wxString GetGroupVar() const;

    /// How the time variable counts: 0 by integers, 1 by quarters, 2 by months, 3 by days.
    int GetTimeFormat() const;

    /// Picks dataset `index` of the map, from 0; both variables are empty afterwards. An index that is
    /// not there picks none.
    void SetDataset(int index);

    /// The user accepts: the dialog ends.
    void OnButtonOk(wxCommandEvent& event);

private:
    VariablePickerMark* m_structure;
};
