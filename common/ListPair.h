#pragma once

#include "common/RoleGrid.h"

namespace zenqo
{
/// One of the two lists. Of the column in which it stands under its caption `growingRow` takes all
/// extra height; none does if it is negative.
struct ListSpec
{
    wxString caption;
    wxSize size; ///< In pixels; -1 is left to the toolkit.
    int rows = 2;
    int growingRow = 1;
};

/// The list of what is free, that of what is chosen, and the button that moves names between them.
struct ListPair
{
    wxFlexGridSizer* leftColumn;
    wxFlexGridSizer* rightColumn;
    wxListBox* left;
    Role right;
};

/// Makes the lists and the button. Nothing is laid out but the inside of the two columns.
ListPair BuildListPair(wxPanel* panel, ListSpec const& left, ListSpec const& right);

/// The two columns with a column for the button between them, which takes all extra width in the
/// proportion `growth`. The room above and below the button is shared as 20 to `below`.
wxFlexGridSizer* LayOutWithButtonColumn(ListPair const& lists, int growth, int below);
} // namespace zenqo
