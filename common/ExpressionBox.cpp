#include "common/ExpressionBox.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include "common/CaretText.h"
#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "common/Text.h"

namespace zenqo
{
NameColumn BuildNameColumn(wxWindow* parent, wxString const& caption)
{
    auto* const column = new wxFlexGridSizer(2, 1, 0, 0);
    column->AddGrowableRow(1, 100);
    AddCaption(column, parent, caption);
    auto* const list = MakeList(parent, wxSize(LIST_WIDTH, -1), LIST_OF_ONE);
    column->Add(list, 1, wxEXPAND | wxALL, 5);
    return {column, list};
}

wxFlexGridSizer* LayOutExpressionBox(wxSizer* box, int rows, wxWindow* picker, wxSizer* names,
                                     wxSizer* fields)
{
    auto* const grid = new wxFlexGridSizer(rows, 1, 0, 0);
    box->Add(grid, 0, wxEXPAND, 5);
    auto* const row = new wxBoxSizer(wxVERTICAL);
    row->Add(picker, 0, wxEXPAND | wxTOP, 10);
    grid->Add(row, 0, wxEXPAND);
    auto* const columns = new wxFlexGridSizer(1, 2, 0, 0);
    columns->Add(names, 1, wxEXPAND, 5);
    columns->Add(fields, 1, wxEXPAND, 5);
    grid->Add(columns, 1, wxEXPAND, 5);
    return grid;
}

void AddExpressionField(wxFlexGridSizer* fields, wxString const& caption, wxButton* move,
                        wxTextCtrl* field, int proportion)
{
    AddGap(fields);
    AddCaption(fields, field->GetParent(), caption);
    if (move)
        fields->Add(move, 0, wxALL, 5);
    else
        AddGap(fields);
    fields->Add(field, proportion, wxEXPAND | wxALL, 5);
}

void TypeSelectedName(wxTextCtrl* field, std::string const& owner, wxListBox const* names)
{
    auto const selected = SelectionsOf(names);
    if (selected.empty())
        return;
    wxString const name
        = ToWide(owner) + "." + names->GetString(static_cast<unsigned>(selected.front()));
    TypeAtCaret(field, name, static_cast<long>(name.length()));
}
} // namespace zenqo
