#pragma once

#include <memory>
#include <string>

#include <wx/panel.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;
class wxChoice;

namespace zenqo
{
class RoleLists;
}

/// Declares the structure of a dataset: which variable holds time, how it counts time, and which
/// variable identifies groups.
///
/// Above stands the row in which the dataset is picked; the left list offers its variables that are
/// still free, in the dataset's order. A press of a role's button moves what is selected in the
/// direction that its label shows, ">>" or "<<". The button of an empty role points into it when the
/// left list is touched, the one of a filled role goes on pointing out. Picking another dataset empties
/// both roles and leaves the format.
class ZENQO_API VariablePickerMark : public wxPanel
{
public:
    /// `datasets` belongs to the host, is read again at each change, and outlives the panel; names
    /// that the panel shows stay in it.
    VariablePickerMark(wxWindow* parent, DatasetMap* datasets);
    ~VariablePickerMark() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The variable that holds time; empty if none is chosen.
    wxString GetTimeVar() const;

    /// The variable that identifies groups; empty if none is chosen.
    wxString GetGroupVar() const;

    /// How the time variable counts: 0 by integers, 1 by quarters, 2 by months, 3 by days.
    int GetTSFormat() const;

    /// Picks dataset `index` of the map, from 0, and offers all its variables: both roles are empty
    /// afterwards, even if it was picked already. An index that is not there picks none.
    void SetDataset(int index);

    /// Fills the left list with those of `names` that no role holds. `names` are all of a dataset's,
    /// of which the first is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// True once a button was pressed, whether or not anything moved, until SetChanged(false). Another
    /// format is no change.
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// What the user does with the lists, the buttons and the dataset row.
    ///@{
    void OnAllVarSelected(wxCommandEvent& event);
    void OnTimeVarSelected(wxCommandEvent& event);
    void OnGroupVarSelected(wxCommandEvent& event);
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton(wxCommandEvent& event);
    void OnDatasetChanged(wxCommandEvent& event);
    ///@}

private:
    DatasetPicker* m_datasetPicker;
    wxChoice* m_format;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
