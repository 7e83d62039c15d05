#include "common/DialogFrame.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>

#include "common/SizerItem.h"

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

void LayOutDialog(wxDialog* dialog, wxSizer* sizer)
{
    dialog->SetSizer(sizer);
    dialog->Layout();
    for (int round = 0; round < 2; ++round)
    {
        dialog->Centre(wxBOTH);
        sizer->SetSizeHints(dialog);
    }
}
} // namespace zenqo
