#include "modelspec/PriorGridSym.h"

#include "modelspec/NumberGridChecks.h"

using namespace number_grid_checks;

namespace
{
Eigen::MatrixXd Identity(int size) { return Eigen::MatrixXd::Identity(size, size); }
} // namespace

TEST_CASE("symmetric prior grid: layout")
{
    Stage stage;
    Eigen::MatrixXd values(3, 3);
    values << 1, 0.5, 1e6, //
        0.5, 2, 1e-7,      //
        3, 1e-7, 0.1234567;
    auto* const grid = new PriorGridSym(stage.Frame(), Names({"a", "b", "c"}), values);
    CHECK(grid->GetPosition() == wxPoint(100, 100));
    stage.Fill(grid);
    Settings(grid);
    CHECK(grid->GetColLabelSize() == 20);
    CHECK(grid->GetRowLabelSize() == 100);
    ColLabelAlignment(grid, wxALIGN_RIGHT);
    CHECK(RowLabels(grid) == Texts{"a", "b", "c"});
    CHECK(ColLabels(grid) == Texts{"a", "b", "c"});
    CHECK(HasNumberEditor(grid, 2, 1));

    // An asymmetric matrix stays as it is.
    CHECK(Column(grid, 0) == Texts{"1", "0.5", "3"});
    CHECK(Column(grid, 2) == Texts{"1e+06", "1e-07", "0.123457"});
    values(2, 2) = 0.123457;
    CHECK(grid->ReadFields() == values);
}

TEST_CASE("symmetric prior grid: redraws keep it square")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), Names({"a", "b", "c"}), Identity(3));
    stage.Fill(grid);
    Eigen::MatrixXd values(4, 4);
    values << 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16;

    grid->RedrawGrid(Names({"x", "y"}), values);
    CHECK(RowLabels(grid) == Texts{"x", "y"});
    CHECK(ColLabels(grid) == Texts{"x", "y"});
    CHECK(grid->ReadFields() == values.topLeftCorner(2, 2));
    grid->RedrawGrid(Names({"p", "q", "r", "s"}), values);
    CHECK(RowLabels(grid) == Texts{"p", "q", "r", "s"});
    CHECK(ColLabels(grid) == Texts{"p", "q", "r", "s"});
    CHECK(grid->ReadFields() == values);
    grid->RedrawGrid({}, values);
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 0);
    CHECK(grid->ReadFields().size() == 0);
    grid->RedrawGrid({}, values);
    grid->RedrawGrid(Names({"z"}), values);
    CHECK(ColLabels(grid) == Texts{"z"});
    CHECK(grid->ReadFields() == values.topLeftCorner(1, 1));
}

TEST_CASE("symmetric prior grid: no names, no cells")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), {}, Eigen::MatrixXd());
    stage.Fill(grid);
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 0);
    CHECK(grid->ReadFields().rows() == 0);
    CHECK(grid->ReadFields().cols() == 0);
}

TEST_CASE("symmetric prior grid: what is typed stands in the mirror image at once")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), Names({"a", "b", "c"}), Identity(3));
    stage.Fill(grid);
    int heard = 0;
    stage.Frame()->Bind(wxEVT_GRID_CELL_CHANGED, [&](wxGridEvent&) { ++heard; });
    GoTo(grid, 2, 0);
    TypeText("1.5");
    CHECK(grid->GetCellValue(0, 2) == "0");
    Press(WXK_TAB);
    CHECK(CursorAt(grid, 2, 1));
    CHECK(grid->GetCellValue(2, 0) == "1.5");
    CHECK(grid->GetCellValue(0, 2) == "1.5");

    // The text is copied as it was typed.
    TypeText("-.25");
    Press(WXK_TAB);
    CHECK(Column(grid, 1) == Texts{"0", "1", grid->GetCellValue(2, 1)});
    CHECK(grid->GetCellValue(1, 2) == grid->GetCellValue(2, 1));
    TypeText("4");
    Press(WXK_TAB);
    CHECK(CursorAt(grid, 2, 2));
    Press(WXK_TAB, wxMOD_SHIFT);
    CHECK(CursorAt(grid, 2, 1));
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(3, 3) << 1, 0, 1.5, 0, 1, -0.25, 1.5, -0.25, 4).finished());
    CHECK(grid->ReadFields().transpose() == grid->ReadFields());
    CHECK(heard == 0);
    Keep(Photograph(stage.Frame()), "PriorGridSym");
}

TEST_CASE("symmetric prior grid: a number that is still being typed is read in both its places")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), Names(3), Identity(3));
    stage.Fill(grid);
    GoTo(grid, 0, 1);
    TypeText("0.75");
    REQUIRE(IsEditing(grid));
    Eigen::MatrixXd const read = grid->ReadFields();
    CHECK(read(0, 1) == 0.75);
    CHECK(read(1, 0) == 0.75);
    CHECK_FALSE(IsEditing(grid));
}

TEST_CASE("symmetric prior grid: a change copies the text, whatever it is, and goes no further")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), Names(3), Identity(3));
    stage.Fill(grid);
    grid->SetCellValue(1, 2, " 2.50x");
    wxGridEvent event(wxID_ANY, wxEVT_GRID_CELL_CHANGED, grid, 1, 2);
    event.Skip(false);
    grid->OnNumberChange(event);
    CHECK(grid->GetCellValue(2, 1) == " 2.50x");
    CHECK_FALSE(event.GetSkipped());

    wxGridEvent onDiagonal(wxID_ANY, wxEVT_GRID_CELL_CHANGED, grid, 1, 1);
    grid->OnNumberChange(onDiagonal);
    CHECK(Column(grid, 1) == Texts{"0", "1", " 2.50x"});
}

TEST_CASE("symmetric prior grid: an unreadable cell repeats the one before it, across the rows")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), Names(2), Identity(2));
    stage.Fill(grid);
    grid->SetCellValue(0, 0, "");
    grid->SetCellValue(0, 1, "3");
    grid->SetCellValue(1, 0, "");
    grid->SetCellValue(1, 1, "");
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(2, 2) << 0, 3, 3, 3).finished());
}

TEST_CASE("symmetric prior grid: what comes back is what the shown texts say")
{
    Stage stage;
    auto* const grid = new PriorGridSym(stage.Frame(), {}, Eigen::MatrixXd());
    stage.Fill(grid);
    CheckRoundTrips(
        grid, true, 200,
        [&](int rows, int, Eigen::MatrixXd const& values) { grid->RedrawGrid(Names(rows), values); },
        [&] { return grid->ReadFields(); });
}
