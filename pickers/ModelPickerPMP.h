#pragma once

#include <memory>
#include <string>
#include <vector>

#include <wx/panel.h>

#include "engine/Export.h"

namespace zenqo
{
class RoleLists;
}

/// Chooses the models that are compared by their posterior probabilities.
///
/// The left list offers the models that are still free, the right list holds the chosen ones in the
/// order in which they came. A press of the button moves what is selected in the direction that its
/// label shows, ">>" or "<<", which follows the list that was touched last. A model that comes back
/// goes to the end of the left list.
class ZENQO_API ModelPickerPMP : public wxPanel
{
public:
    /// `models` are the names to choose from, in the order in which they are offered.
    ModelPickerPMP(wxWindow* parent, std::vector<std::string> models);
    ~ModelPickerPMP() override;

    /// The chosen models in the order of their list. None is one empty string.
    wxArrayString GetRhsModels() const;

    /// True once the button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// What the user does with the lists and the button.
    ///@{
    void OnLhsModelsSelected(wxCommandEvent& event);
    void OnRhsModelsSelected(wxCommandEvent& event);
    void OnMoveButton(wxCommandEvent& event);
    ///@}

private:
    std::unique_ptr<zenqo::RoleLists> m_roles;
};
