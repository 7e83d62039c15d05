#include "common/Delimiter.h"

#include <wx/radiobox.h>
#include <wx/sizer.h>

#include "common/RadioBox.h"

namespace zenqo
{
wxRadioBox* AddDelimiterBox(wxWindow* parent, wxSizer* sizer)
{
    auto* const box = MakeRadioBox(parent, "Delimiter", {"Comma", "Semicolon", "Tab"});
    sizer->Add(box, 0, wxEXPAND | wxALL, 5);
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
