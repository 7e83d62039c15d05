#pragma once

#include <string>
#include <vector>

#include <wx/string.h>

class wxGrid;
class wxPanel;

namespace zenqo
{
/// Makes the read-only grid of `panel`, without rows and columns, and lays it out below `picker`.
wxGrid* BuildDisplayGrid(wxPanel* panel, wxPanel* picker);

/// Takes all cells, columns and rows from the grid.
void EmptyGrid(wxGrid* grid);

/// One column of what a grid is to show: labels or numbers, whichever is set.
struct GridColumn
{
    wxString title;
    double const* numbers;                  ///< As many as the grid has rows.
    std::vector<std::string> const* labels; ///< Shown in green, from the first row on.
};

/// Which numbers count as missing and stand as ".".
enum class Missing
{
    POSITIVE_NAN, ///< What a stream writes as "nan"; "-nan" stays as it is.
    ANY_NAN
};

/// Gives an empty grid `rows` rows and the columns told, and fills it.
///
/// Numbers stand as FormatNumber writes them. Labels past the last row are left out, cells past
/// the last label stay empty.
void FillGrid(wxGrid* grid, int rows, std::vector<GridColumn> const& columns, Missing missing);
} // namespace zenqo
