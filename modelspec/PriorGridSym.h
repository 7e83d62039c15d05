#pragma once

#include <Eigen/Core>
#include <wx/grid.h>

#include "engine/Export.h"

/// Lets the user type a symmetric matrix, as the precision or the scale of a prior: what is typed in
/// one cell stands in its mirror image at once.
///
/// The text in the cells is the only store of the numbers. They are written with six significant
/// digits, so what comes back has no more, edited or not.
class ZENQO_API PriorGridSym : public wxGrid
{
public:
    /// A row and a column for each of `names`, filled from `values`, which must have at least as many
    /// of both. A matrix that is not symmetric is shown as it is.
    PriorGridSym(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXd const& values);

    /// The numbers as a square matrix, as asymmetric as they are shown. A number that the user is
    /// still typing counts, in both its places, and its editor is closed. A cell without a number, as
    /// an empty one, repeats the number before it, row by row; the first cell is then zero.
    Eigen::MatrixXd ReadFields();

    /// Shows other names and numbers in the place of the present ones, in the shapes that the
    /// constructor takes.
    void RedrawGrid(wxArrayString const& names, Eigen::MatrixXd const& values);

    /// The user has changed a cell: copies its text to the mirror image.
    void OnNumberChange(wxGridEvent& event);

private:
    wxGridCellFloatEditor* m_editor; ///< Belongs to the grid.
};
