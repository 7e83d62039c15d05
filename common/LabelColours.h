#pragma once

#include <vector>

#include <wx/grid.h>

namespace zenqo
{
/// Colours the cells of a grid's labelled columns.
///
/// The toolkit keeps an attribute for each coloured cell, and making a hundred thousand of them
/// takes longer than writing their texts. This provider remembers how far each column is filled and
/// makes a cell's attribute when somebody asks for it: to paint it, to read it or to change it.
class LabelColours : public wxGridCellAttrProvider
{
public:
    /// The provider of the grid's table, which gets one if it has none of this kind.
    static LabelColours& Of(wxGrid* grid);

    /// The first `rows` cells of column `col` hold labels.
    void Mark(int col, int rows);

    /// No cell holds a label any more.
    void Forget();

    wxGridCellAttr* GetAttr(int row, int col, wxGridCellAttr::wxAttrKind kind) const override;

private:
    bool IsLabel(int row, int col) const;

    std::vector<int> m_rows; ///< The number of labels in each column.
};
} // namespace zenqo
