#include "common/RadioBox.h"

#include <wx/radiobox.h>
#include <wx/sizer.h>

namespace zenqo
{
wxRadioBox* MakeRadioBox(wxWindow* parent, wxString const& label, std::vector<wxString> const& items,
                         int columns)
{
    auto* const box = new wxRadioBox(parent, wxID_ANY, label, wxDefaultPosition, wxDefaultSize,
                                     static_cast<int>(items.size()), items.data(), columns,
                                     wxRA_SPECIFY_COLS);
    box->SetSelection(0);
    return box;
}

wxRadioBox* AddRadioBox(wxWindow* parent, wxSizer* sizer, wxString const& label,
                        std::vector<wxString> const& items, int columns)
{
    auto* const box = MakeRadioBox(parent, label, items, columns);
    sizer->Add(box, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);
    return box;
}
} // namespace zenqo
