#include "common/TextLabel.h"

#include <wx/stattext.h>

namespace zenqo
{
wxStaticText* MakeTextLabel(wxWindow* parent, wxString const& label, wxSize const& size, long style)
{
    auto* const text = new wxStaticText(parent, wxID_ANY, label, wxDefaultPosition, size, style);
    text->Wrap(-1);
    return text;
}
} // namespace zenqo
