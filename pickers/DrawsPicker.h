#pragma once

#include <memory>
#include <string>

#include <wx/panel.h>

#include "engine/Export.h"
#include "engine/Model.h"

class ModelPicker;

namespace zenqo
{
class RoleLists;
}

/// Chooses some of the quantities of which a model holds posterior draws.
///
/// Above stands the row in which the model is picked. The left list offers its draws that are still
/// free, in the model's order, the right list holds the chosen ones in the order in which they came. A
/// press of the button moves what is selected in the direction that its label shows, ">>" or "<<",
/// which follows the list that was touched last. Picking another model empties the right list.
class ZENQO_API DrawsPicker : public wxPanel
{
public:
    /// `models` belongs to the host, is read again at each change, and outlives the panel; names that
    /// the panel shows stay in it. `listHeight` is the height in pixels of the right list, over which
    /// `rightCaption` stands. The room above the button and that below it are as 20 to
    /// `lowerSpacerProportion`.
    DrawsPicker(wxWindow* parent, ModelMap* models, int const& listHeight,
                int const& lowerSpacerProportion, wxString const& rightCaption);
    ~DrawsPicker() override;

    /// The picked model as a key of the map; empty if there is none.
    std::string GetModelName() const;

    /// The chosen draws in the order of their list. None is one empty string.
    wxArrayString GetRhsVars() const;

    /// Fills the left list with those of `names`, all of a model's, that are not chosen.
    void RedrawLhsList(wxArrayString& names);

    /// True once the button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// Picks model `index` of the map, from 0, and offers all its draws: nothing is chosen afterwards,
    /// even if it was picked already. An index that is not there picks none.
    void SetSelection(int index);

    /// What the user does with the lists, the button and the model row.
    ///@{
    void OnLhsVarSelected(wxCommandEvent& event);
    void OnRhsVarSelected(wxCommandEvent& event);
    void OnMoveButton(wxCommandEvent& event);
    void OnModelChanged(wxCommandEvent& event);
    ///@}

private:
    ModelPicker* m_modelPicker;
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
