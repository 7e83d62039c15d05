#pragma once

class wxRadioBox;
class wxWindow;

namespace zenqo
{
/// The radio box "Delimiter" with which the user tells what stands between two fields of a text
/// file. The first entry, the comma, is selected.
wxRadioBox* MakeDelimiterBox(wxWindow* parent);

/// The character that the selection stands for: comma, semicolon or tab.
char SelectedDelimiter(wxRadioBox const* box);
} // namespace zenqo
