#pragma once

#include <string>
#include <utility>
#include <vector>

#include <wx/string.h>

class wxButton;
class wxDialog;
class wxRadioButton;
class wxSizer;
class wxSpinCtrl;
class wxStaticBoxSizer;
class wxTextCtrl;

/// Controls that the dialogs about an action on an estimated model have in common.
namespace zenqo
{
/// Adds to a row of boxes another, empty one.
wxStaticBoxSizer* AddBoxToRow(wxDialog* dialog, wxSizer* row, wxString const& label);

/// Adds to a row of boxes one in which the user sets for how many periods, 1 to 999.
wxSpinCtrl* AddHorizonBox(wxDialog* dialog, wxSizer* row, wxString const& label, int periods);

/// Adds to the box a group of two buttons, laid out in `grid`, which is the box's from then on. The
/// first is selected.
std::pair<wxRadioButton*, wxRadioButton*> AddRadioPair(wxStaticBoxSizer* box, wxSizer* grid,
                                                       wxString const& first, wxString const& second);

/// Adds to `grid`, which lies in the box, a button for what the user defines, with "&Define" at its
/// right, which is disabled. `flags` say where beside the two the grid leaves a gap.
std::pair<wxRadioButton*, wxButton*> AddDefineRow(wxStaticBoxSizer* box, wxSizer* grid,
                                                  wxString const& label, int flags = 0);

/// Adds to `sizer` a box with the group of the first `count` labels, two in a row. The first is
/// selected.
std::vector<wxRadioButton*> AddTypeBox(wxDialog* dialog, wxSizer* sizer, wxString const& caption,
                                       std::vector<std::string> const& labels, std::size_t count);

/// Adds to `sizer` a field with a label at its left, in which the user names what is to be stored.
wxTextCtrl* AddNameRow(wxDialog* dialog, wxSizer* sizer, std::string const& label,
                       std::string const& value);
} // namespace zenqo
