#include "common/NotebookDialog.h"

#include <wx/button.h>
#include <wx/notebook.h>

#include "common/DialogFrame.h"
#include "common/SizerItem.h"

namespace zenqo
{
wxNotebook* AddNotebook(wxDialog* dialog, wxSizer* sizer)
{
    auto* const notebook = new wxNotebook(dialog, wxID_ANY, wxDefaultPosition, wxSize(500, 300));
    sizer->Add(notebook, 6, wxEXPAND | wxALL, 5);
    return notebook;
}

wxButton* AddClosingButtons(wxDialog* dialog, wxSizer* sizer, wxButton* first, int columns)
{
    int const flags = wxRIGHT | wxALIGN_RIGHT | wxALIGN_BOTTOM;
    auto* const accept = new wxButton(dialog, wxID_OK, "&OK");
    auto* const row = new wxFlexGridSizer(1, columns, 0, 0);
    AddWithFlags(row, first, 1, flags, 5);
    AddWithFlags(row, accept, 1, flags, 6);
    AddWithFlags(sizer, row, 0, wxALIGN_RIGHT | wxALL, 5);
    return accept;
}

ValuesFrame BuildValuesFrame(wxDialog* dialog)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const notebook = AddNotebook(dialog, sizer);
    auto* const cancel = new wxButton(dialog, wxID_CANCEL, "&Cancel");
    return {notebook, sizer, AddClosingButtons(dialog, sizer, cancel, 3)};
}

void FinishValuesFrame(wxDialog* dialog, ValuesFrame const& frame, wxWindow* grid, wxString const& page)
{
    frame.notebook->AddPage(grid, page, true);
    frame.notebook->SetSize(400, 100);
    LayOutDialog(dialog, frame.sizer, 1);
    dialog->SetSize(600, 100);
    // After the page was added, for it takes the focus.
    frame.accept->SetFocus();
}
} // namespace zenqo
