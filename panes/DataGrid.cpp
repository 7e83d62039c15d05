#include "panes/DataGrid.h"

#include <wx/grid.h>

#include "common/DisplayGrid.h"
#include "common/MapKeys.h"
#include "common/Records.h"
#include "pickers/DatasetPicker.h"

namespace
{
constexpr int ID_PICKED = 6079;

std::vector<zenqo::GridColumn> ShownColumns(Dataset const& dataset)
{
    std::vector<zenqo::GridColumn> columns;
    for (int j = 1; j < dataset.data.cols(); ++j)
    {
        auto const index = static_cast<std::size_t>(j);
        auto const labelled = dataset.labelledColumns.find(j);
        columns.push_back({index < dataset.varNames.size() ? dataset.varNames[index] : wxString(),
                           dataset.data.col(j).data(),
                           labelled == dataset.labelledColumns.end() ? nullptr
                                                                     : &labelled->second.labels});
    }
    return columns;
}
} // namespace

DataGrid::DataGrid(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxSize(400, 300), wxTAB_TRAVERSAL),
      m_picker(new DatasetPicker(this)), m_grid(zenqo::BuildDisplayGrid(this, m_picker))
{
    m_picker->Bind(wxEVT_CHOICE, &DataGrid::OnDatasetChanged, this, ID_PICKED);
}

wxGrid* DataGrid::GetGrid() const { return m_grid; }

int DataGrid::GetSelection() const { return m_picker->GetSelection(); }

void DataGrid::SetChoice(wxString& name)
{
    m_picker->SetChoice(name);
    // The user's next pick is a change against this one.
    m_picker->SetCurrentSelection(m_picker->GetSelection());
}

void DataGrid::GoToCell(int row, int col)
{
    // The grid itself takes a cell that it lacks, and stumbles over it later.
    if (row >= 0 && row < m_grid->GetNumberRows() && col >= 0 && col < m_grid->GetNumberCols())
        m_grid->GoToCell(row, col);
}

void DataGrid::ClearGrid() { zenqo::EmptyGrid(m_grid); }

void DataGrid::Clear()
{
    ClearGrid();
    m_picker->ClearChoices();
}

void DataGrid::UpdateChoices(DatasetMap* datasets)
{
    auto names = zenqo::KeysOf(*datasets);
    m_picker->SetChoices(names);
    m_picker->SetSelection(0);
    m_picker->SetCurrentSelection(0);
}

void DataGrid::ShowData(Dataset& dataset)
{
    ClearGrid();
    if (!zenqo::HasVariables(dataset))
        return;
    // Part of the display: beside labels only a plain "nan" counts as missing.
    zenqo::FillGrid(m_grid, static_cast<int>(dataset.data.rows()), ShownColumns(dataset),
                    dataset.labelledColumns.empty() ? zenqo::Missing::ANY_NAN
                                                    : zenqo::Missing::POSITIVE_NAN);
}

void DataGrid::Update(DatasetMap* datasets)
{
    if (!IsShown())
        return;
    Clear();
    if (datasets->empty())
        return;
    UpdateChoices(datasets);
    ShowData(*datasets->begin()->second);
}

void DataGrid::OnDatasetChanged(wxCommandEvent& event) { event.Skip(); }
