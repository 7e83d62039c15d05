#pragma once

class wxString;
class wxTextCtrl;

namespace zenqo
{
/// Writes `text` at the caret of `target`, as `WriteText` does, gives it the keyboard and puts the
/// caret `advance` characters behind where it was.
void TypeAtCaret(wxTextCtrl* target, wxString const& text, long advance);
} // namespace zenqo
