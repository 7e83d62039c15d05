#pragma once

#include <string>

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

    /// Draws the lists again. The selected model stays selected while there is one of its name.
    void Update(Workspace& workspace);
    using wxPanel::Update;

    DatasetsPane& Datasets() const { return *m_datasets; }
    MatricesPane& Matrices() const { return *m_matrices; }

    /// The name of the selected model, the first if none is selected; empty if there is no model.
    std::string SelectedModel() const;

    void SelectModel(std::string const& name);

private:
    DatasetsPane* m_datasets;
    MatricesPane* m_matrices;
    ModelsPane* m_models;
};
} // namespace workbench
