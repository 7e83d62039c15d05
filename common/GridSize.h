#pragma once

class wxGrid;

namespace zenqo
{
/// Gives the grid `count` rows, which come and go at the end. None are left if `count` is negative.
void SetRowCount(wxGrid* grid, int count);

/// The same for the columns.
void SetColCount(wxGrid* grid, int count);
} // namespace zenqo
