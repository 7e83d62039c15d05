#include "common/GridSize.h"

#include <algorithm>

#include <wx/grid.h>

namespace zenqo
{
// The toolkit asserts when it is told to delete where nothing is.
void SetRowCount(wxGrid* grid, int count)
{
    int const wanted = std::max(count, 0);
    int const present = grid->GetNumberRows();
    if (wanted < present)
        grid->DeleteRows(wanted, present - wanted);
    else if (wanted > present)
        grid->AppendRows(wanted - present);
}

void SetColCount(wxGrid* grid, int count)
{
    int const wanted = std::max(count, 0);
    int const present = grid->GetNumberCols();
    if (wanted < present)
        grid->DeleteCols(wanted, present - wanted);
    else if (wanted > present)
        grid->AppendCols(wanted - present);
}
} // namespace zenqo
