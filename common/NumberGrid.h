#pragma once

#include <optional>

#include <Eigen/Core>
#include <wx/arrstr.h>

class wxGrid;
class wxGridCellFloatEditor;

namespace zenqo
{
/// In what the grids differ in which the user types numbers.
struct NumberGridLook
{
    int colLabelHeight;                   ///< 0 hides the labels.
    std::optional<int> colLabelAlignment; ///< From left to right; the toolkit's own if there is none.
    int rowLabelWidth;                    ///< 0 hides the labels.
};

/// Makes the editor of a cell that holds a number. It belongs to the grid that is given it by
/// `SetDefaultEditor`.
wxGridCellFloatEditor* MakeNumberEditor();

/// Gives a new grid its table of empty cells, `rows` by `cols`, and its settings.
void SetUpNumberGrid(wxGrid* grid, int rows, int cols, NumberGridLook const& look);

/// Numbers stand at the right. The last of the settings, for when the first numbers are written.
void AlignNumbers(wxGrid* grid);

/// Labels the first rows or columns, one with each name. Rather within a `wxGridUpdateLocker`: the
/// labels and numbers go past the grid into its table.
///@{
void LabelRows(wxGrid* grid, wxArrayString const& names);
void LabelColumns(wxGrid* grid, wxArrayString const& names);
///@}

/// Writes the number at the same place of `values` into each cell, as FormatNumber does.
void WriteNumbers(wxGrid* grid, Eigen::MatrixXd const& values);

/// Takes `names` and the first column of `values` for what a grid of one column shows.
void RedrawColumn(wxGrid* grid, wxArrayString const& names, Eigen::MatrixXd const& values);

/// The numbers in the cells, with the number that the user is typing at the moment, whose editor is
/// closed. A text that is no number repeats the number before it, row by row; the first is then zero.
Eigen::MatrixXd ReadNumbers(wxGrid* grid);
} // namespace zenqo
