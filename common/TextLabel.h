#pragma once

class wxSize;
class wxStaticText;
class wxString;
class wxWindow;

namespace zenqo
{
/// A text of the stated size and window style, which keeps the line breaks that `label` has.
wxStaticText* MakeTextLabel(wxWindow* parent, wxString const& label, wxSize const& size, long style = 0);
} // namespace zenqo
