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

/// Chooses one dependent variable and two lists of independent ones, Z above X; a variable stands in one
/// of them only.
///
/// Works as VariablePicker_yX, with a third role.
class ZENQO_API VariablePicker_yZX : public wxPanel
{
public:
    /// `datasets` belongs to the host and outlives the panel; `listHeight` is the height in pixels of
    /// the lists Z and X, over which `firstLabel` and `secondLabel` stand.
    VariablePicker_yZX(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                       wxString const& firstLabel, wxString const& secondLabel);
    ~VariablePicker_yZX() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The dependent variable; empty if none is chosen.
    wxString GetDepVar() const;

    /// The variables of Z and of X in the list's order. None is one empty string.
    ///@{
    wxArrayString GetIndVarZ() const;
    wxArrayString GetIndVarX() const;
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
    void OnIndVarZSelected(wxCommandEvent& event);
    void OnIndVarXSelected(wxCommandEvent& event);
    void OnUpperButton(wxCommandEvent& event);
    void OnLowerButton1(wxCommandEvent& event); ///< Beside the list Z.
    void OnLowerButton2(wxCommandEvent& event); ///< Beside the list X.
    void OnDatasetChanged(wxCommandEvent& event);
    ///@}

private:
    DatasetPicker* m_datasetPicker;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
