#include "workbench/app/SidePanes.h"

#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "panes/DatasetsPane.h"
#include "panes/MatricesPane.h"
#include "panes/ModelsPane.h"
#include "workbench/app/CallText.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
SidePanes::SidePanes(wxWindow* parent)
    : wxPanel(parent), m_datasets(new DatasetsPane(this)), m_matrices(new MatricesPane(this)),
      m_models(new ModelsPane(this))
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto const add = [&](wxString const& heading, wxWindow* pane, int proportion)
    {
        auto* const label = new wxStaticText(this, wxID_ANY, heading);
        label->SetFont(label->GetFont().Bold());
        sizer->Add(label, 0, wxLEFT | wxTOP | wxBOTTOM, 5);
        // The panes ask for more height than a small window has for three of them.
        pane->SetMinSize(wxSize(160, 60));
        sizer->Add(pane, proportion, wxEXPAND);
    };
    add("Datasets", m_datasets, 3);
    add("Matrices", m_matrices, 1);
    add("Models", m_models, 1);
    SetSizer(sizer);
}

void SidePanes::Update(Workspace& workspace)
{
    m_datasets->Update(&workspace.datasets);
    m_matrices->Update(&workspace.matrices);
    auto const selected = SelectedModel();
    m_models->Update(&workspace.models);
    SelectModel(selected);
}

std::string SidePanes::SelectedModel() const
{
    wxListBox const& list = *m_models->GetList();
    int const selected = list.GetSelection();
    if (selected != wxNOT_FOUND)
        return Narrow(list.GetString(static_cast<unsigned>(selected)));
    return list.IsEmpty() ? std::string() : Narrow(list.GetString(0));
}

void SidePanes::SelectModel(std::string const& name)
{
    int const index = m_models->GetList()->FindString(Wide(name), true);
    if (index != wxNOT_FOUND)
        m_models->GetList()->SetSelection(index);
}
} // namespace workbench
