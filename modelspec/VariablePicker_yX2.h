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

/// Chooses one dependent variable and one list of independent ones, as VariablePicker_yX does in every
/// respect; the two differ in their name alone.
class ZENQO_API VariablePicker_yX2 : public wxPanel
{
public:
    /// `datasets` belongs to the host and outlives the panel; `listHeight` is the height in pixels of
    /// the list of independent variables.
    VariablePicker_yX2(wxWindow* parent, DatasetMap* datasets, int const& listHeight);
    ~VariablePicker_yX2() override;

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
