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

/// Chooses the variables of a model with several dependent variables: two lists under captions of the
/// host's, each of any number of variables, none of which stands in both.
///
/// Works as VariablePicker_yX; what differs is that the upper button, too, moves all that is selected.
class ZENQO_API VariablePicker_Y_X : public wxPanel
{
public:
    /// `datasets` belongs to the host and outlives the panel; `listHeight` is the height in pixels of
    /// both role lists, over which `firstLabel` and `secondLabel` stand.
    VariablePicker_Y_X(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                       wxString const& firstLabel, wxString const& secondLabel);
    ~VariablePicker_Y_X() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The variables of the upper and of the lower list in the list's order. None is one empty string.
    ///@{
    wxArrayString GetDepVars() const;
    wxArrayString GetIndVars() const;
    ///@}

    /// True once a button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Fills the left list with those of `names` that no role holds. `names` are all of a dataset's,
    /// of which the first is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// What the user does with the lists, the buttons and the dataset row.
    ///@{
    void OnAllVarSelected(wxCommandEvent& event);
    void OnDepVarSelected(wxCommandEvent& event);
    void OnIndVarSelected(wxCommandEvent& event);
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton(wxCommandEvent& event);
    void OnDatasetChanged(wxCommandEvent& event);
    ///@}

private:
    DatasetPicker* m_datasetPicker;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
