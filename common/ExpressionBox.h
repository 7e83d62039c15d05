#pragma once

#include <string>

#include <wx/sizer.h>

class wxButton;
class wxListBox;
class wxTextCtrl;
class wxWindow;

namespace zenqo
{
/// A list of one for names, and the column in which it stands under its caption.
struct NameColumn
{
    wxFlexGridSizer* sizer;
    wxListBox* list;
};

/// Makes both. The names are what an expression may be made of.
NameColumn BuildNameColumn(wxWindow* parent, wxString const& caption);

/// Lays out `box`: the row in which the owner of the names is picked, and below it the names beside the
/// fields for the expressions. Gives the grid of `rows` rows in which they stand, two of them taken.
wxFlexGridSizer* LayOutExpressionBox(wxSizer* box, int rows, wxWindow* picker, wxSizer* names,
                                     wxSizer* fields);

/// Adds `field` under its caption to `fields`, a grid of two columns. `move` stands at its left, if there
/// is one.
void AddExpressionField(wxFlexGridSizer* fields, wxString const& caption, wxButton* move,
                        wxTextCtrl* field, int proportion);

/// Writes "OWNER.NAME" at the caret of `field`, with the selected name, gives the field the keyboard
/// and puts the caret behind it. Nothing happens if no name is selected.
void TypeSelectedName(wxTextCtrl* field, std::string const& owner, wxListBox const* names);
} // namespace zenqo
