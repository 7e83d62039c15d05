#pragma once

#include <wx/panel.h>

#include "engine/Export.h"
#include "engine/Model.h"

class MatrixPicker;
class wxGrid;

/// Shows one matrix in a read-only grid, below a picker of matrices: DataGrid with a matrix in the
/// place of a dataset.
class ZENQO_API MatrixGrid : public wxPanel
{
public:
    explicit MatrixGrid(wxWindow* parent);

    /// The grid, for the host's own bindings and questions.
    wxGrid* GetGrid() const;

    /// The index of the chosen matrix in the map's order; `wxNOT_FOUND` if there is none.
    int GetSelection() const;

    /// Selects the matrix `name` in the picker, and leaves the grid as it is. A name that is not in
    /// the list selects nothing.
    void SetChoice(wxString& name);

    /// Takes all rows and columns from the grid.
    void ClearGrid();

    /// Empties the grid and the picker.
    void Clear();

    /// Offers the matrices of the map in the picker and selects the first; the grid stays.
    void UpdateChoices(MatrixMap* matrices);

    /// Fills the grid with the whole matrix, columns numbered from 1: six significant digits, NaN as
    /// "." unless it is negative. A matrix without rows or columns leaves the grid empty.
    void ShowData(Eigen::MatrixXd& matrix);

    /// The workspace has changed: offers its matrices and shows the first. Does nothing while the
    /// panel is hidden; the host calls it again when it shows the panel.
    void Update(MatrixMap* matrices);
    using wxPanel::Update;

    /// The user has chosen another matrix: the event travels on to the host.
    void OnMatrixChanged(wxCommandEvent& event);

private:
    MatrixPicker* m_picker;
    wxGrid* m_grid;
};
