#pragma once

#include <Eigen/Core>
#include <wx/grid.h>

#include "engine/Export.h"

/// A form for a mean vector beside a precision matrix, with headings and names in cells of its own.
///
/// Input goes into column 1 (the means) and the columns from 4 on (the precision matrix) of the rows
/// from 2 on; all else is grey and can't be edited. The host reads the cells itself.
class ZENQO_API PriorGridVecMat : public wxGrid
{
public:
    /// One row for each of `names`; names longer than 12 characters are cut. The cells are empty: the
    /// numbers handed in are not read.
    PriorGridVecMat(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXf const& values);
    ~PriorGridVecMat() override;

private:
    void MarkAsFixed(int row, int col);
    void WriteHeading(int col, int width, wxString const& text);
    void WriteName(int row, int col, wxString const& name);

    wxGridCellFloatEditor* m_editor; ///< Made, and given to no cell: they keep the editor of texts.
    Eigen::MatrixXf m_matrix;
};
