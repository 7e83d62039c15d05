#include "modelspec/EqsNotebook.h"

#include <algorithm>

#include "common/NameBag.h"
#include "common/PlusTab.h"
#include "modelspec/EqsNotebookPage.h"

namespace
{
char const* const TITLE = "Equation ";
}

EqsNotebook::EqsNotebook(wxWindow* parent, wxArrayString& names, int const& listHeight)
    : wxAuiNotebook(parent, wxID_ANY, wxDefaultPosition, wxSize(450, -1), zenqo::PLUS_NOTEBOOK),
      m_availableNames(names), m_names(names), m_listHeight(listHeight)
{
    zenqo::BeginWithOnePage(this);
}

void EqsNotebook::OnDatasetChanged(wxArrayString& names)
{
    m_availableNames = names;
    m_names = names;
    // Nothing is lost by showing the first page: the toolkit would else turn from each page that goes
    // to the plus page behind it, which adds one. When the last one goes, that is what is wanted.
    int const last = zenqo::CountRealPages(this) - 1;
    ChangeSelection(0);
    for (int page = last; page >= 0; --page)
        DeletePage(static_cast<std::size_t>(page));
    SetPageText(0, "Equation 1");
    Page(0)->SetChanged(false);
}

bool EqsNotebook::GetChanged() const
{
    auto const pages = Pages();
    return std::any_of(pages.begin(), pages.end(), [](auto const* page) { return page->GetChanged(); });
}

void EqsNotebook::SetChanged(bool changed)
{
    for (EqsNotebookPage* const page : Pages())
        page->SetChanged(changed);
}

wxArrayString EqsNotebook::GetDepVars() const
{
    wxArrayString names;
    for (EqsNotebookPage const* const page : Pages())
        names.Add(page->GetDepVar());
    return names;
}

std::vector<wxArrayString> EqsNotebook::GetIndVars() const
{
    std::vector<wxArrayString> names;
    for (EqsNotebookPage const* const page : Pages())
        names.push_back(page->GetIndVar());
    return names;
}

void EqsNotebook::OnPageChanging(wxAuiNotebookEvent& event)
{
    FindAvailableNames();
    if (zenqo::WantsNewPage(this, event))
    {
        zenqo::InsertNewPage(this, event, new EqsNotebookPage(this, m_availableNames, m_listHeight), TITLE);
        return;
    }
    // Turned here and now, the page needs no second event, which a click on a tab would not raise.
    int const entered = event.GetSelection();
    if (entered < zenqo::CountRealPages(this))
    {
        Page(entered)->SetAvailableVarNames(m_availableNames);
        Page(entered)->RedrawLhsVarList(m_availableNames);
        event.Veto();
    }
    ChangeSelection(static_cast<std::size_t>(entered));
}

void EqsNotebook::OnPageClosing(wxAuiNotebookEvent& event)
{
    zenqo::ClosePage(this, event, GetNextPage(false), TITLE);
}

EqsNotebookPage* EqsNotebook::Page(int index) const
{
    return dynamic_cast<EqsNotebookPage*>(GetPage(static_cast<std::size_t>(index)));
}

std::vector<EqsNotebookPage*> EqsNotebook::Pages() const
{
    std::vector<EqsNotebookPage*> pages;
    for (int index = 0; index < zenqo::CountRealPages(this); ++index)
        pages.push_back(Page(index));
    return pages;
}

void EqsNotebook::FindAvailableNames()
{
    zenqo::NameBag taken;
    for (EqsNotebookPage const* const page : Pages())
        if (wxString const name = page->GetDepVar(); !name.empty())
            taken.Add(name);
    m_availableNames.clear();
    // The first name is hidden; it stays where it is even if a variable is called the same.
    for (std::size_t i = 0; i < m_names.size(); ++i)
        if (i == 0 || !taken.Take(m_names[i]))
            m_availableNames.Add(m_names[i]);
}
