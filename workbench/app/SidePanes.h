#pragma once

#include <wx/panel.h>

class DatasetsPane;
class MatricesPane;
class ModelsPane;

namespace workbench
{
struct Workspace;

/// The left side of the window: the library's three lists of what is in the workspace, each under
/// its heading.
class SidePanes : public wxPanel
{
public:
    explicit SidePanes(wxWindow* parent);

    /// Draws the lists again.
    void Update(Workspace& workspace);
    using wxPanel::Update;

    DatasetsPane& Datasets() const { return *m_datasets; }
    MatricesPane& Matrices() const { return *m_matrices; }

private:
    DatasetsPane* m_datasets;
    MatricesPane* m_matrices;
    ModelsPane* m_models;
};
} // namespace workbench
