#include "common/DialogFrame.h"

#include <wx/button.h>

#include "common/SizerItem.h"
#include "common/Text.h"
#include "common/Warning.h"
#include "engine/Functions.h"

namespace zenqo
{
wxButton* AddButtonRow(wxDialog* dialog, wxSizer* sizer, wxString const& acceptLabel, int proportion,
                       int flags)
{
    auto* const accept = new wxButton(dialog, wxID_OK, acceptLabel);
    auto* const row = new wxStdDialogButtonSizer;
    row->AddButton(accept);
    row->AddButton(new wxButton(dialog, wxID_CANCEL, "&Cancel"));
    row->Realize();
    AddWithFlags(sizer, row, proportion, flags, 5);
    return accept;
}

wxButton* AddFocusedButtonRow(wxDialog* dialog, wxSizer* sizer, wxString const& acceptLabel)
{
    auto* const accept = AddButtonRow(dialog, sizer, acceptLabel, 0,
                                      wxLEFT | wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM);
    accept->SetDefault();
    accept->SetFocus();
    return accept;
}

wxFlexGridSizer* AddGrowingCell(wxSizer* sizer)
{
    auto* const cell = new wxFlexGridSizer(1, 1, 0, 0);
    cell->AddGrowableRow(0, 1);
    cell->AddGrowableCol(0, 1);
    sizer->Add(cell, 0, wxEXPAND, 5);
    return cell;
}

wxStaticBoxSizer* AddLabelledBox(wxWindow* parent, wxSizer* sizer, wxString const& label,
                                 int proportion, int flags, int border)
{
    auto* const box = new wxStaticBoxSizer(wxVERTICAL, parent, label);
    // The toolkit cuts a caption that is wider than what stands in the box.
    auto const* const frame = box->GetStaticBox();
    box->SetMinSize(wxSize(frame->GetTextExtent(frame->GetLabelText()).x + 10, -1));
    sizer->Add(box, proportion, flags, border);
    return box;
}

void LayOutDialog(wxDialog* dialog, wxSizer* sizer, int rounds)
{
    dialog->SetSizer(sizer);
    dialog->Layout();
    for (int round = 0; round < rounds; ++round)
    {
        dialog->Centre(wxBOTH);
        sizer->SetSizeHints(dialog);
    }
}

void DeleteInOrder(std::initializer_list<wxWindow*> windows)
{
    for (wxWindow* const window : windows)
        delete window;
}

wxString ComplainOfNone(wxArrayString const& names, wxString const& what)
{
    return names[0].empty() ? "No " + what + " have been selected." : wxString();
}

wxString ComplainOfName(wxString const& name, wxString const& missing, wxString const& illegal)
{
    if (name.empty())
        return missing;
    return CheckID(ToNarrow(name)) ? wxString() : illegal;
}

void AcceptUnless(wxString const& complaint, wxDialog* dialog, wxCommandEvent& event)
{
    if (complaint.empty())
        event.Skip();
    else
        ShowWarning(dialog, complaint);
}
} // namespace zenqo
