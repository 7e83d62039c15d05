#pragma once

#include <vector>

#include <wx/panel.h>
#include <wx/sizer.h>

#include "common/RoleLists.h"

namespace zenqo
{
/// The window style of a list from which several names are picked, and of one that holds one name.
///@{
extern long const LIST_OF_MANY;
extern long const LIST_OF_ONE;
///@}

/// An empty list box; the style is one of the two above.
wxListBox* MakeList(wxWindow* parent, wxSize const& size, long style);

/// The cells of which the pickers with role lists are laid out.
///@{
void AddCaption(wxSizer* sizer, wxWindow* parent, wxString const& text);
void AddList(wxSizer* sizer, wxWindow* list);
void AddTransferButton(wxSizer* sizer, wxButton* button);
void AddGap(wxSizer* sizer);
///@}

/// The width in pixels of most lists.
inline constexpr int LIST_WIDTH = 180;

/// An empty list of many and the column in which it stands under its caption.
struct CaptionedList
{
    wxFlexGridSizer* sizer;
    wxListBox* list;
};

/// Makes both. The caption is row 0 of the column's `rows` and the list row 1; `growingRow` takes all
/// extra height, none does if it is negative.
CaptionedList BuildCaptionedList(wxPanel* panel, wxString const& caption, wxSize const& size,
                                 int rows = 2, int growingRow = 1);

/// A role list with its caption above and its button beside it, one pair of rows in a grid of two
/// columns. `rows` is the height of a list of many; a list of one is as high as one row.
struct RoleSpec
{
    wxString caption;
    RoleKind kind;
};
Role AddRole(wxFlexGridSizer* grid, wxPanel* panel, RoleSpec const& spec, wxListBox const* left,
             int listHeight);

/// What the variable pickers say of their lists.
struct RoleGridSpec
{
    wxString leftCaption;
    std::vector<RoleSpec> roles; ///< From top to bottom.
    int listHeight;              ///< In pixels, of the role lists of many.
    int growingRow;              ///< The row of the right grid that takes all extra height.
    int columns;                 ///< Of the grid around both sides; a third one stays empty.
};

/// The left list with the role lists at its right, laid out in `sizer`.
struct RoleGrid
{
    wxFlexGridSizer* sizer;
    wxListBox* left;
    std::vector<Role> roles;
};
RoleGrid BuildRoleGrid(wxPanel* panel, RoleGridSpec const& spec);

/// Gives `panel` its sizer: the choice picker `row` on top, and the sizer or window `below` under it.
template <class Below>
void LayOutUnderPicker(wxPanel* panel, wxWindow* row, Below* below, int proportion, int flags)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(row, 0, wxEXPAND | wxTOP, 10);
    sizer->Add(below, proportion, flags, 0);
    panel->SetSizer(sizer, true);
    panel->Layout();
    sizer->SetSizeHints(panel);
}
} // namespace zenqo
