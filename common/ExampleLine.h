#pragma once

class wxFont;
class wxSizer;
class wxString;
class wxWindow;

namespace zenqo
{
/// Adds to `sizer` a line that shows the user what may be typed above it: "Example:", in bold, and
/// `text`, which stands in it with `textFlags`.
void AddExampleLine(wxWindow* parent, wxSizer* sizer, wxString const& text, wxFont const& font,
                    int textFlags);
} // namespace zenqo
