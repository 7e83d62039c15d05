#pragma once

#include <memory>

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
} // namespace zenqo
