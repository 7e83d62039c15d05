#include "common/ActionFrame.h"

#include <wx/statline.h>
#include <wx/stattext.h>

namespace zenqo
{
wxSizer* BeginAction(wxDialog* dialog, wxString const& sentence, SentenceWidth width)
{
    auto* const text = new wxStaticText(dialog, wxID_ANY, sentence);
    text->Wrap(static_cast<int>(width));
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(text, 0, wxEXPAND | wxALL, 7);
    return sizer;
}

void FinishAction(wxDialog* dialog, wxSizer* sizer)
{
    AddFocusedButtonRow(dialog, sizer, "&OK");
    LayOutDialog(dialog, sizer, 1);
    sizer->SetSizeHints(dialog);
}

wxStaticLine* MakeNoteLine(wxDialog* dialog) { return new wxStaticLine(dialog, wxID_ANY); }

void AddNote(wxSizer* sizer, wxStaticLine* line, wxWindow* note)
{
    sizer->Add(line, 0, wxEXPAND | wxLEFT | wxRIGHT, 7);
    sizer->Add(note, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 7);
}
} // namespace zenqo
