#pragma once

class wxRadioBox;
class wxSizer;
class wxWindow;

namespace zenqo
{
/// The radio box "Delimiter" with which the user tells what stands between two fields of a text
/// file, added to `sizer`. The first entry, the comma, is selected.
wxRadioBox* AddDelimiterBox(wxWindow* parent, wxSizer* sizer);

/// The character that the selection stands for: comma, semicolon or tab.
char SelectedDelimiter(wxRadioBox const* box);
} // namespace zenqo
