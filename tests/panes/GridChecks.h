#pragma once

#include <catch2/catch.hpp>

#include <wx/grid.h>
#include <wx/sizer.h>

#include "support/Find.h"

/// What the data grid and the matrix grid have in common.
namespace grid_checks
{
inline wxColour const GREEN(0, 130, 0);

template <class Panel, class Picker>
void Layout(Panel* panel)
{
    auto* const picker = Find<Picker>(panel);
    auto* const grid = panel->GetGrid();
    CHECK(panel->HasFlag(wxTAB_TRAVERSAL));
    CHECK(panel->GetSize() == wxSize(400, 300));
    REQUIRE(picker);
    REQUIRE(panel->GetChildren().size() == 2);
    CHECK(panel->GetChildren()[0] == picker);
    CHECK(panel->GetChildren()[1] == grid);

    auto* const sizer = dynamic_cast<wxBoxSizer*>(panel->GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    CHECK(Item(sizer, 0)->GetWindow() == picker);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND | wxTOP, 5});
    CHECK(Item(sizer, 1)->GetWindow() == grid);
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{1, wxEXPAND, 0});
}

inline void Settings(wxGrid* grid)
{
    CHECK(dynamic_cast<wxGridStringTable*>(grid->GetTable()));
    CHECK(grid->GetSelectionMode() == wxGrid::wxGridSelectCells);
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 0);
    CHECK_FALSE(grid->IsEditable());
    CHECK(grid->CanDragGridSize());
    CHECK_FALSE(grid->CanDragColMove());
    CHECK_FALSE(grid->CanDragRowSize(0));
    CHECK(grid->CanDragColSize(0));
    CHECK(grid->GetColLabelSize() == 20);
    CHECK(grid->GetRowLabelSize() == 50);
    int horizontal = 0;
    int vertical = 0;
    grid->GetColLabelAlignment(&horizontal, &vertical);
    CHECK(horizontal == wxALIGN_CENTRE);
    CHECK(vertical == wxALIGN_CENTRE);
    grid->GetRowLabelAlignment(&horizontal, &vertical);
    CHECK(horizontal == wxALIGN_CENTRE);
    CHECK(vertical == wxALIGN_CENTRE);
    grid->GetDefaultCellAlignment(&horizontal, &vertical);
    CHECK(horizontal == wxALIGN_RIGHT);
    CHECK(vertical == wxALIGN_TOP);
}

/// The texts of one column from the first row on.
inline std::vector<wxString> Column(wxGrid* grid, int col)
{
    std::vector<wxString> texts;
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        texts.push_back(grid->GetCellValue(row, col));
    return texts;
}

using Texts = std::vector<wxString>;
} // namespace grid_checks
