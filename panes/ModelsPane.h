#pragma once

#include <wx/font.h>
#include <wx/panel.h>

#include "engine/Export.h"
#include "engine/Model.h"

class wxListBox;

/// Lists the names of the workspace's estimated models in the side pane.
class ZENQO_API ModelsPane : public wxPanel
{
public:
    explicit ModelsPane(wxWindow* parent);

    /// The list, for the host's own bindings and questions.
    wxListBox* GetList() const;

    /// The workspace has changed: lists the names in the map's order. The selection is lost.
    void Update(ModelMap* models);
    using wxPanel::Update;

private:
    wxListBox* m_list;
    wxFont m_listFont; ///< The list gets it at the first update.
};
