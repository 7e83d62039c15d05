#pragma once

#include <wx/aui/auibook.h>

namespace zenqo
{
/// What the notebooks share in which the user adds a page by a click on the last tab: that tab shows
/// a plus icon, has no text and no content, and is never entered while there is room for a page.
///@{

/// The style of such a notebook.
extern long const PLUS_NOTEBOOK;

/// Gives the empty notebook its plus page.
void AddPlusPage(wxAuiNotebook* notebook);

/// Gives the empty notebook its plus page and its handlers, which make the first page at once: they
/// are told that a page changes, and the plus page is alone.
template <class Notebook>
void BeginWithOnePage(Notebook* notebook)
{
    AddPlusPage(notebook);
    notebook->Bind(wxEVT_AUINOTEBOOK_PAGE_CHANGING, &Notebook::OnPageChanging, notebook);
    notebook->Bind(wxEVT_AUINOTEBOOK_PAGE_CLOSE, &Notebook::OnPageClosing, notebook);
    wxAuiNotebookEvent event;
    notebook->OnPageChanging(event);
}

/// The number of pages before the plus page.
int CountRealPages(wxAuiNotebook const* notebook);

/// True if the page that is about to be entered must be made first: the plus page stands alone, or
/// the user has asked for it and there is room.
bool WantsNewPage(wxAuiNotebook const* notebook, wxAuiNotebookEvent const& event);

/// Puts `page` before the plus page, with `title` and its number for a text, and enters it in the
/// place of the page of `event`.
void InsertNewPage(wxAuiNotebook* notebook, wxAuiNotebookEvent& event, wxWindow* page,
                   wxString const& title);

/// Closes the page of `event` and numbers the others anew. `previous` is the page before the current
/// one, `wxNOT_FOUND` if there is none. When no page is left, the toolkit turns to the plus page.
void ClosePage(wxAuiNotebook* notebook, wxAuiNotebookEvent& event, int previous, wxString const& title);
///@}
} // namespace zenqo
