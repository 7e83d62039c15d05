#include "modelspec/PriorGridVecMat.h"

#include "modelspec/NumberGridChecks.h"

using namespace number_grid_checks;

namespace
{
wxColour const GREY(190, 190, 190, 255);

PriorGridVecMat* Make(Stage& stage, wxArrayString const& names)
{
    auto* const grid = new PriorGridVecMat(stage.Frame(), names, Eigen::MatrixXf::Ones(3, 3));
    stage.Fill(grid);
    return grid;
}

bool IsAligned(wxGrid* grid, int row, int col, int horizontal, int vertical)
{
    int h = 0;
    int v = 0;
    grid->GetCellAlignment(row, col, &h, &v);
    return h == horizontal && v == vertical;
}

wxSize Span(wxGrid* grid, int row, int col)
{
    int rows = 0;
    int cols = 0;
    grid->GetCellSize(row, col, &rows, &cols);
    return wxSize(cols, rows);
}

/// Grey and closed are exactly the cells that are told.
void CheckFixedCells(wxGrid* grid, int names)
{
    for (int row = 0; row < names + 2; ++row)
        for (int col = 0; col < names + 4; ++col)
        {
            INFO(row << ", " << col);
            bool const fixed = row == 0 ? col <= 3 : row == 1 || col == 0 || col == 2 || col == 3;
            CHECK((grid->GetCellBackgroundColour(row, col) == GREY) == fixed);
            CHECK(grid->IsReadOnly(row, col) == fixed);
        }
}
} // namespace

TEST_CASE("mean and precision grid: layout")
{
    Stage stage;
    auto* const grid = new PriorGridVecMat(stage.Frame(), Names({"a", "b", "c"}), {});
    CHECK(grid->GetPosition() == wxPoint(100, 100));
    CHECK(grid->GetSize() == wxSize(400, 600));
    stage.Fill(grid);
    Settings(grid);
    CHECK(grid->GetNumberRows() == 5);
    CHECK(grid->GetNumberCols() == 7);
    CHECK(grid->GetColLabelSize() == 0);
    CHECK(grid->GetRowLabelSize() == 0);
    ColLabelAlignment(grid, wxALIGN_RIGHT);
    CHECK_FALSE(HasNumberEditor(grid, 2, 1));
    CheckFixedCells(grid, 3);

    CHECK(grid->GetCellValue(0, 0) == "mean");
    CHECK(Span(grid, 0, 0) == wxSize(2, 1));
    CHECK(IsAligned(grid, 0, 0, wxALIGN_CENTRE, wxALIGN_CENTRE));
    CHECK(grid->GetCellValue(0, 3) == "precision");
    CHECK(Span(grid, 0, 3) == wxSize(4, 1));
    CHECK(IsAligned(grid, 0, 3, wxALIGN_CENTRE, wxALIGN_CENTRE));

    CHECK(Column(grid, 0) == Texts{"mean", "", "a", "b", "c"});
    CHECK(Column(grid, 1) == Texts{"", "", "", "", ""});
    CHECK(Column(grid, 2) == Texts{"", "", "", "", ""});
    CHECK(Column(grid, 3) == Texts{"precision", "", "a", "b", "c"});
    CHECK(Column(grid, 4) == Texts{"", "a", "", "", ""});
    CHECK(Column(grid, 5) == Texts{"", "b", "", "", ""});
    CHECK(Column(grid, 6) == Texts{"", "c", "", "", ""});
    for (int i = 0; i < 3; ++i)
    {
        CHECK(IsAligned(grid, i + 2, 0, wxALIGN_LEFT, wxALIGN_CENTRE));
        CHECK(IsAligned(grid, i + 2, 3, wxALIGN_LEFT, wxALIGN_CENTRE));
        CHECK(IsAligned(grid, 1, i + 4, wxALIGN_LEFT, wxALIGN_CENTRE));
    }
    CHECK(IsAligned(grid, 3, 5, wxALIGN_RIGHT, wxALIGN_TOP));
    Keep(Photograph(stage.Frame()), "PriorGridVecMat");
}

TEST_CASE("mean and precision grid: no names, and one")
{
    Stage stage;
    auto* const none = Make(stage, {});
    CHECK(none->GetNumberRows() == 2);
    CHECK(none->GetNumberCols() == 4);
    CHECK(Span(none, 0, 3) == wxSize(1, 1));
    CHECK(none->GetCellValue(0, 3) == "precision");
    CheckFixedCells(none, 0);

    auto* const one = Make(stage, Names({"beta"}));
    CHECK(one->GetNumberRows() == 3);
    CHECK(one->GetNumberCols() == 5);
    CHECK(Span(one, 0, 3) == wxSize(2, 1));
    CheckFixedCells(one, 1);
}

TEST_CASE("mean and precision grid: names of more than twelve characters are cut")
{
    Stage stage;
    wxArrayString names = Names({"twelve_chars", "thirteen_char"});
    names.Add(wxString::FromUTF8("\xC3\xA4\xC3\xB6\xC3\xBC_zw\xC3\xB6lf_12"));
    names.Add(wxString::FromUTF8("\xC3\xA4\xC3\xB6\xC3\xBC_zw\xC3\xB6lf_123"));
    auto* const grid = Make(stage, names);
    wxString const umlauts = wxString::FromUTF8("\xC3\xA4\xC3\xB6\xC3\xBC_zw\xC3\xB6lf_1");
    Texts const shown{"twelve_chars", "thirteen_ch+", umlauts + "2", umlauts + "+"};
    for (int i = 0; i < 4; ++i)
    {
        auto const& text = shown[static_cast<std::size_t>(i)];
        CHECK(grid->GetCellValue(i + 2, 0) == text);
        CHECK(grid->GetCellValue(i + 2, 3) == text);
        CHECK(grid->GetCellValue(1, i + 4) == text);
    }
}

TEST_CASE("mean and precision grid: grey cells take no key, white ones any text")
{
    Stage stage;
    auto* const grid = Make(stage, Names({"a", "b"}));
    for (auto const cell : {wxPoint(0, 0), wxPoint(3, 0), wxPoint(5, 1), wxPoint(2, 2), wxPoint(3, 3)})
    {
        GoTo(grid, cell.y, cell.x);
        TypeText("1");
        CHECK_FALSE(IsEditing(grid));
    }
    GoTo(grid, 2, 1);
    TypeText("1");
    REQUIRE(IsEditing(grid));
    Press(WXK_RETURN);
    TypeText("two");
    Press(WXK_RETURN);
    CHECK(Column(grid, 1) == Texts{"", "", "1", "two"});
    GoTo(grid, 2, 4);
    TypeText("3");
    Press(WXK_TAB);
    CHECK(CursorAt(grid, 2, 5));
    CHECK(Column(grid, 4) == Texts{"", "a", "3", ""});
    CHECK(Column(grid, 5) == Texts{"", "b", "", ""});
}
