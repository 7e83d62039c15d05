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

/// Chooses one dependent variable and two lists X and Z of independent ones which may share variables,
/// as regressors and instruments do.
///
/// Works as VariablePicker_yX; what differs is that a variable that was moved into X or Z stays at the
/// left until it stands in both. Moved into the upper list, it leaves them.
class ZENQO_API VariablePicker_yXZ : public wxPanel
{
public:
    /// `datasets` belongs to the host and outlives the panel; `listHeight` is the height in pixels of
    /// the lists X and Z, over which `firstLabel` and `secondLabel` stand.
    VariablePicker_yXZ(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                       wxString const& firstLabel, wxString const& secondLabel);
    ~VariablePicker_yXZ() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The dependent variable; empty if none is chosen. It stands in neither of the lists.
    wxString GetDepVar() const;

    /// The variables of X and of Z in the list's order, each once. None is one empty string.
    ///@{
    wxArrayString GetIndVarX() const;
    wxArrayString GetIndVarZ() const;
    ///@}

    /// True once a button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Fills the left list with `names` but for the dependent variable and what stands in both X and Z.
    /// `names` are all of a dataset's, of which the first is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// What the user does with the lists, the buttons and the dataset row.
    ///@{
    void OnAllVarSelected(wxCommandEvent& event);
    void OnDepVarSelected(wxCommandEvent& event);
    void OnIndVarXSelected(wxCommandEvent& event);
    void OnIndVarZSelected(wxCommandEvent& event);
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton1(wxCommandEvent& event); ///< Beside the list X.
    void OnLowerButton2(wxCommandEvent& event); ///< Beside the list Z.
    void OnDatasetChanged(wxCommandEvent& event);
    ///@}

private:
    DatasetPicker* m_datasetPicker;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
