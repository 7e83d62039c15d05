#include "dialogs/external/InitsNotebook.h"

#include "common/PlusTab.h"
#include "common/Text.h"
#include "dialogs/external/InitsNotebookPage.h"

namespace
{
char const* const TITLE = "chain";
}

InitsNotebook::InitsNotebook(wxWindow* parent)
    : wxAuiNotebook(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, zenqo::PLUS_NOTEBOOK)
{
    zenqo::BeginWithOnePage(this);
}

std::map<std::string, std::string> InitsNotebook::GetInits() const
{
    std::map<std::string, std::string> inits;
    for (int index = 0; index < zenqo::CountRealPages(this); ++index)
    {
        auto const at = static_cast<std::size_t>(index);
        auto const text = dynamic_cast<InitsNotebookPage const*>(GetPage(at))->GetText();
        if (!text.empty())
            inits.emplace(zenqo::ToNarrow(GetPageText(at)), zenqo::ToNarrow(text));
    }
    return inits;
}

void InitsNotebook::OnPageChanging(wxAuiNotebookEvent& event)
{
    if (zenqo::WantsNewPage(this, event))
    {
        zenqo::InsertNewPage(this, event, new InitsNotebookPage(this), TITLE);
        return;
    }
    auto const entered = static_cast<std::size_t>(event.GetSelection());
    if (!GetPageText(entered).empty())
        event.Skip();
    else
        // There is no room, so the last tab comes up itself, which a click on it alone would not do.
        ChangeSelection(entered);
}

void InitsNotebook::OnPageClosing(wxAuiNotebookEvent& event)
{
    // At the most chains the last tab may be on view, with a button to close it. It must not go: no
    // chain could be added any more, and the last one would be taken for it.
    if (event.GetSelection() >= zenqo::CountRealPages(this))
        event.Veto();
    else
        zenqo::ClosePage(this, event, GetNextPage(false), TITLE);
}
