#include "common/Delimiter.h"

#include <wx/radiobox.h>

#include "common/RadioBox.h"

namespace zenqo
{
wxRadioBox* MakeDelimiterBox(wxWindow* parent)
{
    return MakeRadioBox(parent, "Delimiter", {"Comma", "Semicolon", "Tab"});
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
