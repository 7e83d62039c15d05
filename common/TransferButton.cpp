#include "common/TransferButton.h"

#include <wx/button.h>
#include <wx/listbox.h>

#include "common/Text.h"
#include "common/TypewriterFont.h"

namespace zenqo
{
int OneRow(wxListBox const* list) { return list->GetFont().GetPixelSize().GetHeight() + 12; }

wxButton* MakeTransferButton(wxWindow* parent, wxListBox const* list, int width)
{
    auto* const button
        = new wxButton(parent, wxID_ANY, MOVE_IN, wxDefaultPosition, wxSize(width, OneRow(list)), 0);
    button->SetFont(TypewriterFont(12));
    return button;
}

bool MovesIn(wxButton const* button) { return ToNarrow(button->GetLabel()) == MOVE_IN; }
} // namespace zenqo
