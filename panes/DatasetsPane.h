#pragma once

#include <wx/panel.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class wxDropFilesEvent;
class wxTreeCtrl;

/// Shows the workspace's datasets as a tree, a branch for each dataset and a leaf for each variable,
/// and takes text files dropped on the tree: the import dialog asks for the rest, and an import
/// command goes to the host.
class ZENQO_API DatasetsPane : public wxPanel
{
public:
    explicit DatasetsPane(wxWindow* parent);

    /// The tree, for the host's own bindings and questions. Its root is hidden.
    wxTreeCtrl* GetTreeCrtl() const;

    /// The workspace has changed: draws the whole tree anew, all branches expanded. Each record's
    /// name is set to its key in the map on the way.
    void Update(DatasetMap* datasets);
    using wxPanel::Update;

    /// Appends one dataset and expands the tree. The placeholder and a dataset without usable
    /// variables are skipped.
    void DrawTree(Dataset& dataset);

    /// Files were dropped on the tree: one text file is taken, all else answered by a warning.
    void OnDropFiles(wxDropFilesEvent& event);

private:
    /// Appends a dataset that has variables, and makes the root if there is none yet.
    void AppendDataset(Dataset const& dataset);

    /// Shows the import dialog for the file and sends what the user makes of it.
    void AskForImport(wxString const& path);

    wxTreeCtrl* m_tree;
};
