#include "common/CaretText.h"

#include <wx/textctrl.h>

namespace zenqo
{
void TypeAtCaret(wxTextCtrl* target, wxString const& text, long advance)
{
    long const before = target->GetInsertionPoint();
    target->WriteText(text);
    // The focus may move the caret, so this order matters.
    target->SetFocus();
    target->SetInsertionPoint(before + advance);
}
} // namespace zenqo
