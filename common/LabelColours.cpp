#include "common/LabelColours.h"

namespace zenqo
{
namespace
{
wxColour const LABEL_COLOUR(0, 130, 0);
}

LabelColours& LabelColours::Of(wxGrid* grid)
{
    auto* const table = grid->GetTable();
    auto* colours = dynamic_cast<LabelColours*>(table->GetAttrProvider());
    if (!colours)
    {
        colours = new LabelColours;
        table->SetAttrProvider(colours);
    }
    return *colours;
}

void LabelColours::Mark(int col, int rows)
{
    if (m_rows.size() <= static_cast<std::size_t>(col))
        m_rows.resize(static_cast<std::size_t>(col) + 1);
    m_rows[static_cast<std::size_t>(col)] = rows;
}

void LabelColours::Forget() { m_rows.clear(); }

wxGridCellAttr* LabelColours::GetAttr(int row, int col, wxGridCellAttr::wxAttrKind kind) const
{
    bool const ofCell = kind == wxGridCellAttr::Any || kind == wxGridCellAttr::Cell;
    if (ofCell && IsLabel(row, col))
    {
        wxGridCellAttrPtr const cell(wxGridCellAttrProvider::GetAttr(row, col, wxGridCellAttr::Cell));
        if (!cell)
        {
            auto* const attr = new wxGridCellAttr;
            attr->SetTextColour(LABEL_COLOUR);
            // To whoever asks, the attribute has been there all the time.
            const_cast<LabelColours*>(this)->SetAttr(attr, row, col);
        }
    }
    return wxGridCellAttrProvider::GetAttr(row, col, kind);
}

bool LabelColours::IsLabel(int row, int col) const
{
    return row >= 0 && col >= 0 && static_cast<std::size_t>(col) < m_rows.size()
           && row < m_rows[static_cast<std::size_t>(col)];
}
} // namespace zenqo
