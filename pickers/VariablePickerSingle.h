#pragma once

#include <memory>
#include <string>

#include <wx/panel.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;

namespace zenqo
{
class RoleLists;
}

/// Chooses some of a dataset's variables, in an order of the user's own.
///
/// Above stands the row in which the dataset is picked. The left list offers its variables that are
/// still free, in the dataset's order, the right list holds the chosen ones in the order in which they
/// came. A press of the button moves what is selected in the direction that its label shows, ">>" or
/// "<<", which follows the list that was touched last. Picking another dataset empties the right list.
class ZENQO_API VariablePickerSingle : public wxPanel
{
public:
    /// `datasets` belongs to the host, is read again at each change, and outlives the panel; names
    /// that the panel shows stay in it. `listHeight` is the height in pixels of the right list, over
    /// which `rightCaption` stands.
    VariablePickerSingle(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                         wxString const& rightCaption);
    ~VariablePickerSingle() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The chosen variables in the order of their list. None is one empty string.
    wxArrayString GetRhsVars() const;

    /// Fills the left list with those of `names` that are not chosen. `names` are all of a dataset's,
    /// of which the first is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// True once the button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Picks dataset `index` of the map, from 0, and offers all its variables: nothing is chosen
    /// afterwards, even if it was picked already. An index that is not there picks none.
    void SetSelection(int index);

    /// Picks dataset `index` and chooses `names`, in their order; they must be variables of it. What
    /// GetRhsVars gives for none chooses none. For owners that restore an earlier choice; the changed
    /// flag is not set.
    void SetVariables(int index, wxArrayString& names);

    /// What the user does with the lists, the button and the dataset row.
    ///@{
    void OnLhsVarSelected(wxCommandEvent& event);
    void OnRhsVarSelected(wxCommandEvent& event);
    void OnMoveButton(wxCommandEvent& event);
    void OnDatasetChanged(wxCommandEvent& event);
    ///@}

private:
    DatasetPicker* m_datasetPicker;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
