#pragma once

#include <Eigen/Core>
#include <wx/grid.h>

#include "engine/Export.h"

/// Lets the user type the future values of exogenous variables, a row for each period ("T+1", "T+2",
/// ...) and a column for each variable.
///
/// The text in the cells is the only store of the numbers. They are written with six significant
/// digits, so what comes back has no more, edited or not.
class ZENQO_API ExogValuesGrid : public wxGrid
{
public:
    /// `values` must have at least `periods` rows and as many columns as there are names. There are no
    /// rows if `periods` is below 1.
    ExogValuesGrid(wxWindow* parent, int periods, wxArrayString const& names,
                   Eigen::MatrixXd const& values);

    /// The numbers, periods in rows and variables in columns. A number that the user is still typing
    /// counts, and its editor is closed. A cell without a number, as an empty one, repeats the number
    /// before it, row by row; the first cell is then zero.
    Eigen::MatrixXd ReadFields();

    /// Shows other periods, names and numbers in the place of the present ones, of which nothing is
    /// left.
    void RedrawGrid(int periods, wxArrayString const& names, Eigen::MatrixXd const& values);

private:
    void Write(wxArrayString const& names, Eigen::MatrixXd const& values);

    wxGridCellFloatEditor* m_editor; ///< Belongs to the grid.
};
