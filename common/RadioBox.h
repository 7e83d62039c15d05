#pragma once

#include <vector>

#include <wx/string.h>

class wxRadioBox;
class wxSizer;
class wxWindow;

namespace zenqo
{
/// A box of `items` in so many columns, of which the user chooses one. The first is chosen.
wxRadioBox* MakeRadioBox(wxWindow* parent, wxString const& label, std::vector<wxString> const& items,
                         int columns = 1);

/// Makes the box and adds it to `sizer`, below a box with a picker.
wxRadioBox* AddRadioBox(wxWindow* parent, wxSizer* sizer, wxString const& label,
                        std::vector<wxString> const& items, int columns = 1);
} // namespace zenqo
