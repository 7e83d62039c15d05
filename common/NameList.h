#pragma once

class wxArrayString;
class wxFont;
class wxListBox;
class wxPanel;

namespace zenqo
{
/// Fills `panel` with an empty list box of single selection and returns the list box.
wxListBox* BuildNameList(wxPanel* panel);

/// The font of the lists and trees that show the workspace.
wxFont WorkspaceFont();

/// Puts `names` in the place of the list's entries and gives it `font`. The selection is lost.
void ShowNames(wxListBox* list, wxArrayString const& names, wxFont const& font);
} // namespace zenqo
