#include "common/TextLabel.h"

#include <wx/stattext.h>

namespace zenqo
{
wxStaticText* MakeTextLabel(wxWindow* parent, wxString const& label, wxSize const& size)
{
    auto* const text = new wxStaticText(parent, wxID_ANY, label, wxDefaultPosition, size);
    text->Wrap(-1);
    return text;
}
} // namespace zenqo
