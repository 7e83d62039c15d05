#include <catch2/catch.hpp>

#include <wx/grid.h>

#include "common/GridSize.h"
#include "support/Stage.h"

TEST_CASE("a grid grows and shrinks at its end, down to nothing and up again")
{
    Stage stage;
    auto* const grid = new wxGrid(stage.Frame(), wxID_ANY);
    grid->CreateGrid(2, 3);
    stage.Fill(grid);
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < 3; ++col)
            grid->SetCellValue(row, col, wxString::Format("%d%d", row, col));

    zenqo::SetColCount(grid, 2);
    zenqo::SetRowCount(grid, 3);
    CHECK(grid->GetNumberRows() == 3);
    CHECK(grid->GetNumberCols() == 2);
    CHECK(grid->GetCellValue(1, 1) == "11");
    CHECK(grid->GetCellValue(2, 1) == "");

    // As it is, then twice to nothing: the toolkit would assert.
    zenqo::SetRowCount(grid, 3);
    zenqo::SetColCount(grid, 2);
    for (int const none : {0, 0, -5})
    {
        zenqo::SetRowCount(grid, none);
        zenqo::SetColCount(grid, none);
        CHECK(grid->GetNumberRows() == 0);
        CHECK(grid->GetNumberCols() == 0);
    }
    zenqo::SetRowCount(grid, 1);
    zenqo::SetColCount(grid, 2);
    CHECK(grid->GetNumberRows() == 1);
    CHECK(grid->GetNumberCols() == 2);
    CHECK(grid->GetCellValue(0, 0) == "");
}
