#include "common/FittedDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "common/SizerItem.h"

namespace zenqo
{
wxButton* AddCloseRow(wxDialog* dialog, wxSizer* sizer, int id)
{
    auto* const close = new wxButton(dialog, id, "&Close");
    auto* const row = new wxStdDialogButtonSizer;
    row->AddButton(close);
    row->Realize();
    AddWithFlags(sizer, row, 0, wxALIGN_RIGHT | wxALIGN_BOTTOM | wxLEFT | wxTOP | wxBOTTOM, 5);
    close->SetDefault();
    close->SetFocus();
    return close;
}

void FitDialog(wxDialog* dialog, wxSizer* sizer)
{
    dialog->SetSizer(sizer);
    dialog->Layout();
    // The fit of the sizer, not of the window, is made once more when the dialog is shown: what the
    // frame takes and how large the fonts are is known only then.
    sizer->Fit(dialog);
    dialog->Centre(wxBOTH);
}
} // namespace zenqo
