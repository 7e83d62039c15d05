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

/// Chooses one dependent variable, a list Z of numbered families of variables, and a list X of single
/// ones.
///
/// A name that ends in an underscore and digits, as "income_3", is a member of the family of its stem,
/// "income". Z takes families as a whole: one press on any member takes all free members from the left
/// list and adds the stem to Z; a variable that is in no family stays at the left. The upper list and X
/// know nothing of families. In all else the panel works as VariablePicker_yZX.
class ZENQO_API VariablePicker_yZX2 : public wxPanel
{
public:
    /// `datasets` belongs to the host and outlives the panel; `listHeight` is the height in pixels of
    /// the lists Z and X, over which `firstLabel` and `secondLabel` stand.
    VariablePicker_yZX2(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                        wxString const& firstLabel, wxString const& secondLabel);
    ~VariablePicker_yZX2() override;

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The dependent variable; empty if none is chosen.
    wxString GetDepVar() const;

    /// The stems in Z, without underscore and number, in the list's order. None is one empty string.
    wxArrayString GetIndVarZ() const;

    /// The variables of X in the list's order. None is one empty string.
    wxArrayString GetIndVarX() const;

    /// True once a button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Fills the left list with those of `names` that are neither in a role nor in a family that Z
    /// holds. `names` are all of a dataset's, of which the first is never shown.
    void RedrawLhsVarList(wxArrayString& names);

    /// Splits a variable's name at its last underscore into what stands before and what stands behind
    /// it. Without an underscore all of the name is the stem and the suffix is empty.
    static void splitName(std::string const& full, std::string& stem, std::string& suffix);

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
