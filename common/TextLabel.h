#pragma once

class wxSize;
class wxStaticText;
class wxString;
class wxWindow;

namespace zenqo
{
/// A line of text of the stated size, which keeps the line breaks that `label` has.
wxStaticText* MakeTextLabel(wxWindow* parent, wxString const& label, wxSize const& size);
} // namespace zenqo
