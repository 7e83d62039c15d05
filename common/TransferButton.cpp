#include "common/TransferButton.h"

#include <wx/button.h>
#include <wx/font.h>
#include <wx/listbox.h>

#include "common/Text.h"

namespace zenqo
{
int OneRow(wxListBox const* list) { return list->GetFont().GetPixelSize().GetHeight() + 12; }

wxButton* MakeTransferButton(wxWindow* parent, wxListBox const* list, int width)
{
    auto* const button
        = new wxButton(parent, wxID_ANY, MOVE_IN, wxDefaultPosition, wxSize(width, OneRow(list)), 0);
    button->SetFont(wxFont(wxFontInfo(12).Family(wxFONTFAMILY_MODERN).FaceName("Courier 10 Pitch")));
    return button;
}

bool MovesIn(wxButton const* button) { return ToNarrow(button->GetLabel()) == MOVE_IN; }
} // namespace zenqo
