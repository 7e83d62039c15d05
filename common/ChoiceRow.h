#pragma once

#include <string>

#include <wx/arrstr.h>

class wxChoice;
class wxCommandEvent;
class wxPanel;

namespace zenqo
{
/// Lays out `panel` as a choice picker, a label and a drop-down list over a thin line, and returns
/// the list, whose window id is `id`.
wxChoice* BuildChoiceRow(wxPanel* panel, wxString const& label, int id);

/// Selects entry `index`; an index that is not in the list selects nothing. Raises no event.
void SelectEntry(wxChoice* choice, int index);

/// Puts `names` in the place of the list's entries. Nothing is selected afterwards.
void FillChoice(wxChoice* choice, wxArrayString const& names);

/// Selects the entry that reads exactly `name`, or nothing if there is none. Raises no event.
void SelectName(wxChoice* choice, wxString const& name);

/// The selected entry as narrow text, the key of a workspace map; empty if nothing is selected.
std::string SelectedKey(wxChoice const* choice);

/// The change filter of a choice picker: lets `event` travel on only if the list's selection is
/// another than `current`, which then becomes the selection.
void PassRealChange(wxCommandEvent& event, wxChoice const* choice, int& current);
} // namespace zenqo
