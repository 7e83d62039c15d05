#pragma once

#include <vector>

#include <wx/arrstr.h>

class wxListBox;

namespace zenqo
{
/// All entries of the list, from top to bottom.
wxArrayString ItemsOf(wxListBox const* list);

/// The same as the getters of chosen names give it: an empty list is one empty string.
wxArrayString ItemsOrEmpty(wxListBox const* list);

/// The entry of a list that holds exactly one; otherwise an empty string.
wxString OnlyItem(wxListBox const* list);

/// The indices of the selected entries, ascending.
std::vector<int> SelectionsOf(wxListBox const* list);

/// The entries at `indices`, in their order.
wxArrayString ItemsAt(wxListBox const* list, std::vector<int> const& indices);

/// Deselects every entry. Raises no event.
void DeselectAll(wxListBox* list);

/// Selects exactly the entries at `indices`, which may be many. Raises no event.
void SelectItems(wxListBox* list, std::vector<int> const& indices);

/// Puts `names` in the place of all entries. Nothing is selected afterwards; what was at the top of
/// the window stays there as far as possible.
void ShowItems(wxListBox* list, wxArrayString const& names);

/// Adds `names` at the end of the list.
void AppendItems(wxListBox* list, wxArrayString const& names);

/// Removes the entries at `indices`, which ascend. Of the others those stay selected that were, and
/// none becomes so; what was at the top of the window stays there as far as possible.
void DeleteItems(wxListBox* list, std::vector<int> const& indices);
} // namespace zenqo
