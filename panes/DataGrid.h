#pragma once

#include <wx/panel.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;
class wxGrid;

/// Shows the observations of one dataset in a read-only grid, below a picker of datasets.
///
/// The grid holds a copy of the data as text, taken when the host calls ShowData. The host binds
/// `wxEVT_CHOICE` and answers a change of the picker with ShowData of the record chosen.
class ZENQO_API DataGrid : public wxPanel
{
public:
    explicit DataGrid(wxWindow* parent);

    /// The grid, for the host's own bindings and questions.
    wxGrid* GetGrid() const;

    /// The index of the chosen dataset in the map's order; `wxNOT_FOUND` if there is none.
    int GetSelection() const;

    /// Selects the dataset `name` in the picker, and leaves the grid as it is. A name that is not in
    /// the list selects nothing.
    void SetChoice(wxString& name);

    /// Makes the cell the current one and scrolls to it. A cell that the grid lacks is ignored.
    void GoToCell(int row, int col);

    /// Takes all rows and columns from the grid.
    void ClearGrid();

    /// Empties the grid and the picker.
    void Clear();

    /// Offers the datasets of the map in the picker and selects the first; the grid stays.
    void UpdateChoices(DatasetMap* datasets);

    /// Fills the grid with all variables of `dataset` but the hidden first one: numbers with six
    /// significant digits, labels in green, missing values as ".". A placeholder or a dataset
    /// without usable variables leaves the grid empty.
    void ShowData(Dataset& dataset);

    /// The workspace has changed: offers its datasets and shows the first. Does nothing while the
    /// panel is hidden; the host calls it again when it shows the panel.
    void Update(DatasetMap* datasets);
    using wxPanel::Update;

    /// The user has chosen another dataset: the event travels on to the host.
    void OnDatasetChanged(wxCommandEvent& event);

private:
    DatasetPicker* m_picker;
    wxGrid* m_grid;
};
