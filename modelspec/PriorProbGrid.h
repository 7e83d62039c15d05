#pragma once

#include <Eigen/Core>
#include <wx/grid.h>

#include "engine/Export.h"

/// Lets the user type one probability for each name: PriorGrid with wider labels.
///
/// Nothing here asks whether the numbers are probabilities; that is for the grid's owner.
class ZENQO_API PriorProbGrid : public wxGrid
{
public:
    /// One row for each of `names`, filled with the first column of `values`, which must have at least
    /// as many rows as there are names.
    PriorProbGrid(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXd const& values);

    /// The numbers as a column, one row for each row of the grid. A number that the user is still
    /// typing counts, and its editor is closed. A cell without a number, as an empty one, repeats the
    /// number above it; the first cell is then zero.
    Eigen::MatrixXd ReadFields();

    /// Shows other names and numbers in the place of the present ones, in the shapes that the
    /// constructor takes.
    void RedrawGrid(wxArrayString const& names, Eigen::MatrixXd const& values);

private:
    wxGridCellFloatEditor* m_editor; ///< Belongs to the grid.
};
