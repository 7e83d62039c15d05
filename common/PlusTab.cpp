#include "common/PlusTab.h"

#include <wx/panel.h>

#include "common/SystemIcon.h"

namespace zenqo
{
namespace
{
/// With the plus page.
constexpr std::size_t MOST_PAGES = 99;

wxString Numbered(wxString const& title, std::size_t number)
{
    return title + wxString::Format("%zu", number);
}
} // namespace

long const PLUS_NOTEBOOK = wxAUI_NB_TOP | wxAUI_NB_SCROLL_BUTTONS | wxAUI_NB_CLOSE_ON_ACTIVE_TAB;

void AddPlusPage(wxAuiNotebook* notebook)
{
    notebook->SetTabCtrlHeight(30);
    auto* const panel = new wxPanel(notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                    wxTAB_TRAVERSAL | wxNO_BORDER);
    notebook->AddPage(panel, wxEmptyString, true, SystemIcon("i_plus.png"));
}

int CountRealPages(wxAuiNotebook const* notebook)
{
    return notebook->GetPageCount() == 0 ? 0 : static_cast<int>(notebook->GetPageCount()) - 1;
}

bool WantsNewPage(wxAuiNotebook const* notebook, wxAuiNotebookEvent const& event)
{
    if (notebook->GetPageCount() == 1)
        return true;
    return notebook->GetPageCount() < MOST_PAGES
           && notebook->GetPageText(static_cast<std::size_t>(event.GetSelection())).empty();
}

void InsertNewPage(wxAuiNotebook* notebook, wxAuiNotebookEvent& event, wxWindow* page,
                   wxString const& title)
{
    std::size_t const count = notebook->GetPageCount();
    notebook->InsertPage(count - 1, page, Numbered(title, count), false, wxNullBitmap);
    event.Veto();
    notebook->ChangeSelection(count - 1);
}

void ClosePage(wxAuiNotebook* notebook, wxAuiNotebookEvent& event, int previous, wxString const& title)
{
    int const closed = event.GetSelection();
    event.Veto();
    if (closed != 0 && previous != wxNOT_FOUND)
        notebook->SetSelection(static_cast<std::size_t>(previous));
    notebook->DeletePage(static_cast<std::size_t>(closed));
    for (int page = CountRealPages(notebook) - 1; page >= 0; --page)
        notebook->SetPageText(static_cast<std::size_t>(page),
                              Numbered(title, static_cast<std::size_t>(page) + 1));
}
} // namespace zenqo
