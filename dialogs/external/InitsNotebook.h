#pragma once

#include <map>
#include <string>

#include <wx/aui/auibook.h>

#include "engine/Export.h"

/// Takes the initial values of the chains of an outside sampler: a tab for each chain, and a last tab
/// with a plus icon that adds one.
///
/// There is always at least one chain, and there are at most 98. A chain that is closed loses its text
/// at once, the later ones move down one number and keep theirs; closing the only one empties it.
class ZENQO_API InitsNotebook : public wxAuiNotebook
{
public:
    explicit InitsNotebook(wxWindow* parent);

    /// The texts by the titles of their tabs, "chain1", "chain2" and so on, as they were typed. A chain
    /// without a text has no entry; a text that has no narrow form is empty. The order is that of
    /// strings, in which "chain10" stands before "chain2".
    std::map<std::string, std::string> GetInits() const;

    /// Another tab is about to be shown. The one with the plus icon adds a chain instead, if there is
    /// room for one.
    void OnPageChanging(wxAuiNotebookEvent& event);

    /// The user closes a tab: deletes its chain and numbers the others anew. The last tab stays.
    void OnPageClosing(wxAuiNotebookEvent& event);
};
