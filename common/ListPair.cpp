#include "common/ListPair.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include "common/TransferButton.h"

namespace zenqo
{
ListPair BuildListPair(wxPanel* panel, ListSpec const& left, ListSpec const& right)
{
    auto const free = BuildCaptionedList(panel, left.caption, left.size, left.rows, left.growingRow);
    // The button is made before the right list: the keyboard goes from control to control in this order.
    auto* const button = MakeTransferButton(panel, free.list);
    auto const chosen
        = BuildCaptionedList(panel, right.caption, right.size, right.rows, right.growingRow);
    return {free.sizer, chosen.sizer, free.list, {button, chosen.list, RoleKind::LIST}};
}

wxFlexGridSizer* LayOutWithButtonColumn(ListPair const& lists, int growth, int below)
{
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(1, 1, 20, wxEXPAND, 5);
    AddTransferButton(column, lists.right.button);
    column->Add(1, 1, below, wxEXPAND, 5);

    auto* const sizer = new wxFlexGridSizer(1, 3, 0, 0);
    sizer->AddGrowableCol(1, growth);
    sizer->Add(lists.leftColumn, 1, wxEXPAND, 5);
    sizer->Add(column, 1, wxEXPAND, 5);
    sizer->Add(lists.rightColumn, 1, wxEXPAND, 5);
    return sizer;
}
} // namespace zenqo
