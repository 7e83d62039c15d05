#pragma once

#include <memory>
#include <vector>

#include <wx/button.h>
#include <wx/listbox.h>

#include "common/MapKeys.h"
#include "common/Records.h"
#include "common/RoleGrid.h"
#include "common/RoleLists.h"

namespace zenqo
{
/// Selects entry `index` of a choice picker by program and tells its change filter, so that the
/// user's next pick of another entry is heard.
template <class Picker>
void SelectInPicker(Picker* picker, int index)
{
    picker->SetSelection(index);
    picker->SetCurrentSelection(index);
}

/// Fills a choice picker with the keys of a workspace map and selects the first. An empty map leaves
/// the picker as it is.
template <class Picker, class Map>
void OfferKeys(Picker* picker, Map const& map)
{
    if (map.empty())
        return;
    wxArrayString keys = KeysOf(map);
    picker->SetChoices(keys);
    SelectInPicker(picker, 0);
}

/// Offers the datasets in the picker and the variables of the first one in the left list. The map is
/// asked again each time the variables of the picked dataset are needed.
template <class Picker>
std::unique_ptr<RoleLists> OfferVariables(Picker* picker, DatasetMap const* datasets, wxListBox* left,
                                          std::vector<Role> const& roles)
{
    OfferKeys(picker, *datasets);
    return std::make_unique<RoleLists>(
        left, roles, 1, [=] { return VariableNames(*datasets, picker->GetSelectionString()); });
}

/// Connects a role's list and button with the handlers of `panel`.
template <class Panel>
void BindRole(Role const& role, Panel* panel, void (Panel::*onSelected)(wxCommandEvent&),
              void (Panel::*onPressed)(wxCommandEvent&))
{
    role.list->Bind(wxEVT_LISTBOX, onSelected, panel);
    role.button->Bind(wxEVT_BUTTON, onPressed, panel);
}

/// What a variable picker does when the user touches its controls.
template <class Panel>
struct VariableHandlers
{
    using Handler = void (Panel::*)(wxCommandEvent&);

    /// A role's list and the button beside it.
    struct OfRole
    {
        Handler onSelected;
        Handler onPressed;
    };

    Handler onLeftSelected;
    std::vector<OfRole> roles; ///< From top to bottom.
    Handler onDatasetChanged;
};

/// Makes all of a variable picker below its dataset row: lists and buttons, the layout, the variables
/// of the first dataset, the events.
template <class Panel, class Picker>
std::unique_ptr<RoleLists> BuildVariablePicker(Panel* panel, Picker* picker, DatasetMap const* datasets,
                                               RoleGridSpec const& spec,
                                               VariableHandlers<Panel> const& handlers)
{
    RoleGrid const grid = BuildRoleGrid(panel, spec);
    LayOutUnderPicker(panel, picker, grid.sizer, 0, wxALL);
    auto roles = OfferVariables(picker, datasets, grid.left, grid.roles);

    grid.left->Bind(wxEVT_LISTBOX, handlers.onLeftSelected, panel);
    for (std::size_t i = 0; i < grid.roles.size(); ++i)
        BindRole(grid.roles[i], panel, handlers.roles[i].onSelected, handlers.roles[i].onPressed);
    picker->Bind(wxEVT_CHOICE, handlers.onDatasetChanged, panel);
    return roles;
}
} // namespace zenqo
