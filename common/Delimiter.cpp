#include "common/Delimiter.h"

#include <wx/radiobox.h>

namespace zenqo
{
wxRadioBox* MakeDelimiterBox(wxWindow* parent)
{
    wxString const items[] = {"Comma", "Semicolon", "Tab"};
    auto* const box = new wxRadioBox(parent, wxID_ANY, "Delimiter", wxDefaultPosition, wxDefaultSize,
                                     WXSIZEOF(items), items, 1, wxRA_SPECIFY_COLS);
    box->SetSelection(0);
    return box;
}

char SelectedDelimiter(wxRadioBox const* box)
{
    switch (box->GetSelection())
    {
        case 0:
            return ',';
        case 1:
            return ';';
        default:
            return '\t';
    }
}
} // namespace zenqo
