#include "common/ChoiceRow.h"

#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "common/SizerItem.h"
#include "common/Text.h"

namespace zenqo
{
wxChoice* BuildChoiceRow(wxPanel* panel, wxString const& label, int id)
{
    auto* const text = new wxStaticText(panel, wxID_ANY, label);
    text->Wrap(-1);
    auto* const choice = new wxChoice(panel, id);
    choice->SetSelection(0);

    auto* const row = new wxFlexGridSizer(1, 3, 0, 0);
    row->SetFlexibleDirection(wxHORIZONTAL);
    row->AddGrowableCol(1, 100);
    AddWithFlags(row, text, 1, wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL | wxLEFT, 5);
    row->Add(10, 1, 100, 0, 0);
    AddWithFlags(row, choice, 1, wxEXPAND | wxALIGN_BOTTOM | wxBOTTOM | wxRIGHT, 5);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    AddWithFlags(sizer, row, 1, wxEXPAND | wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL, 5);
    sizer->Add(new wxStaticLine(panel), 0, wxEXPAND | wxTOP | wxBOTTOM, 5);
    panel->SetSizer(sizer, true);
    panel->Layout();
    sizer->SetSizeHints(panel);
    return choice;
}

void SelectEntry(wxChoice* choice, int index)
{
    // GTK complains of an index below its "none"; one past the end it takes for "none" by itself.
    choice->SetSelection(index < 0 ? wxNOT_FOUND : index);
}

void FillChoice(wxChoice* choice, wxArrayString const& names)
{
    choice->Clear();
    // One call for all: the toolkit walks the whole list at each call to find its end.
    if (!names.empty())
        choice->Append(names);
}

void SelectName(wxChoice* choice, wxString const& name)
{
    choice->SetSelection(choice->FindString(name, true));
}

std::string SelectedKey(wxChoice const* choice) { return ToNarrow(choice->GetStringSelection()); }

void PassRealChange(wxCommandEvent& event, wxChoice const* choice, int& current)
{
    if (choice->GetSelection() == current)
        return;
    current = choice->GetSelection();
    event.Skip();
}
} // namespace zenqo
