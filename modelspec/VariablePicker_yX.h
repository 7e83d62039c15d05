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

/// Chooses the variables of a model with one dependent variable and one list of independent ones.
///
/// Above stands the row in which the dataset is picked; the left list offers its variables that are
/// still free, in the dataset's order. A press of a role's button moves what is selected in the
/// direction that its label shows, ">>" or "<<", which follows the list that was touched last.
/// Picking another dataset empties the roles.
class ZENQO_API VariablePicker_yX : public wxPanel
{
public:
    /// `datasets` belongs to the host, is read again at each change, and outlives the panel; names
    /// that the panel shows stay in it. `listHeight` is the height in pixels of the list of
    /// independent variables.
    VariablePicker_yX(wxWindow* parent, DatasetMap* datasets, int const& listHeight);
    ~VariablePicker_yX() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The dependent variable; empty if none is chosen.
    wxString GetDepVar() const;

    /// The independent variables in the order of their list. None is one empty string.
    wxArrayString GetIndVar() const;

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
