#include "common/RoleGrid.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/stattext.h>

#include "common/SizerItem.h"
#include "common/TransferButton.h"

namespace zenqo
{
long const LIST_OF_MANY = wxLB_EXTENDED | wxHSCROLL;
long const LIST_OF_ONE = wxHSCROLL;

wxListBox* MakeList(wxWindow* parent, wxSize const& size, long style)
{
    return new wxListBox(parent, wxID_ANY, wxDefaultPosition, size, 0, nullptr, style);
}

void AddCaption(wxSizer* sizer, wxWindow* parent, wxString const& text)
{
    auto* const caption = new wxStaticText(parent, wxID_ANY, text);
    caption->Wrap(-1);
    sizer->Add(caption, 0, wxTOP | wxRIGHT | wxLEFT, 5);
}

void AddList(wxSizer* sizer, wxWindow* list) { sizer->Add(list, 0, wxEXPAND | wxALL, 5); }

void AddTransferButton(wxSizer* sizer, wxButton* button)
{
    AddWithFlags(sizer, button, 0, wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
}

void AddGap(wxSizer* sizer) { sizer->Add(0, 0, 1, wxEXPAND); }

CaptionedList BuildCaptionedList(wxPanel* panel, wxString const& caption, wxSize const& size,
                                 int rows, int growingRow)
{
    auto* const column = new wxFlexGridSizer(rows, 1, 0, 0);
    if (growingRow >= 0)
        column->AddGrowableRow(static_cast<std::size_t>(growingRow), 20);
    AddCaption(column, panel, caption);
    auto* const list = MakeList(panel, size, LIST_OF_MANY);
    AddList(column, list);
    return {column, list};
}

Role AddRole(wxFlexGridSizer* grid, wxPanel* panel, RoleSpec const& spec, wxListBox const* left,
             int listHeight)
{
    AddGap(grid);
    AddCaption(grid, panel, spec.caption);
    // The button is made first: the keyboard goes from control to control in this order, but for what
    // RoleLists changes.
    auto* const button = MakeTransferButton(panel, left);
    bool const one = spec.kind == RoleKind::SINGLE;
    auto* const list = MakeList(panel, wxSize(LIST_WIDTH, one ? OneRow(left) : listHeight),
                                one ? LIST_OF_ONE : LIST_OF_MANY);
    AddTransferButton(grid, button);
    AddList(grid, list);
    return {button, list, spec.kind};
}

RoleGrid BuildRoleGrid(wxPanel* panel, RoleGridSpec const& spec)
{
    auto const left = BuildCaptionedList(panel, spec.leftCaption, wxSize(LIST_WIDTH, -1));
    auto* const right = new wxFlexGridSizer(2 * static_cast<int>(spec.roles.size()), 2, 0, 0);
    right->AddGrowableRow(static_cast<std::size_t>(spec.growingRow), 10);
    RoleGrid grid{new wxFlexGridSizer(1, spec.columns, 0, 0), left.list, {}};
    for (RoleSpec const& role : spec.roles)
        grid.roles.push_back(AddRole(right, panel, role, left.list, spec.listHeight));
    grid.sizer->Add(left.sizer, 1, wxEXPAND, 5);
    grid.sizer->Add(right, 1, wxEXPAND, 5);
    return grid;
}
} // namespace zenqo
