#include "modelspec/PriorGrid.h"

#include <wx/clipbrd.h>
#include <wx/textctrl.h>

#include "modelspec/NumberGridChecks.h"

using namespace number_grid_checks;

namespace
{
Eigen::MatrixXd Ones(int rows) { return Eigen::MatrixXd::Ones(rows, 1); }

/// The text that the user has typed into the open editor.
wxString EditorText(wxGrid* grid)
{
    for (auto* const text : FindAll<wxTextCtrl>(grid))
        if (text->IsShown())
            return text->GetValue();
    return "no editor";
}

void CopyToClipboard(char const* text)
{
    wxClipboardLocker const locker;
    REQUIRE(wxTheClipboard->SetData(new wxTextDataObject(text)));
}

wxString Clipboard()
{
    wxClipboardLocker const locker;
    wxTextDataObject text;
    return wxTheClipboard->GetData(text) ? text.GetText() : wxString("nothing");
}
} // namespace

TEST_CASE("prior grid: layout")
{
    Stage stage;
    Eigen::MatrixXd values(3, 2);
    values << 0.25, 7, 1000000, 8, -1234567, 9;
    auto* const grid = new PriorGrid(stage.Frame(), Names({"beta", "gamma", "tau"}), values);
    stage.Fill(grid);
    CHECK(grid->GetParent() == stage.Frame());
    Settings(grid);
    CHECK(grid->GetNumberRows() == 3);
    CHECK(grid->GetNumberCols() == 1);
    CHECK(grid->GetColLabelSize() == 0);
    CHECK(grid->GetRowLabelSize() == 150);
    ColLabelAlignment(grid, wxALIGN_CENTRE);
    CHECK(RowLabels(grid) == Texts{"beta", "gamma", "tau"});
    CHECK(Column(grid, 0) == Texts{"0.25", "1e+06", "-1.23457e+06"});
    CHECK(HasNumberEditor(grid, 2, 0));
}

TEST_CASE("prior grid: six significant digits come back, unedited too")
{
    Stage stage;
    Eigen::MatrixXd values(4, 1);
    values << 0.1234567, 1234567, 2.0 / 3.0, -0.000012345678;
    auto* const grid = new PriorGrid(stage.Frame(), Names(4), values);
    stage.Fill(grid);
    Eigen::MatrixXd const read = grid->ReadFields();
    REQUIRE(read.rows() == 4);
    REQUIRE(read.cols() == 1);
    CHECK(read(0, 0) == 0.123457);
    CHECK(read(1, 0) == 1234570);
    CHECK(read(2, 0) == 0.666667);
    CHECK(read(3, 0) == -1.23457e-05);
}

TEST_CASE("prior grid: no names, no rows")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), {}, Eigen::MatrixXd(0, 1));
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 1);
    CHECK(grid->ReadFields().rows() == 0);
    CHECK(grid->ReadFields().cols() == 1);

    grid->RedrawGrid(Names(2), Ones(2));
    CHECK(Column(grid, 0) == Texts{"1", "1"});
    grid->RedrawGrid({}, Ones(0));
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 1);
    CHECK(grid->ReadFields().rows() == 0);
    grid->RedrawGrid({}, Ones(0));
    CHECK(grid->GetNumberRows() == 0);
}

TEST_CASE("prior grid: a redraw takes rows from the end and rewrites the rest")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names({"a", "b", "c"}), Ones(3));
    stage.Fill(grid);
    Eigen::MatrixXd values(4, 1);
    values << 0.5, 0.25, 0.125, 0.0625;

    grid->RedrawGrid(Names({"x", "y"}), values);
    CHECK(RowLabels(grid) == Texts{"x", "y"});
    CHECK(Column(grid, 0) == Texts{"0.5", "0.25"});
    grid->RedrawGrid(Names({"p", "q", "r", "s"}), values);
    CHECK(RowLabels(grid) == Texts{"p", "q", "r", "s"});
    CHECK(Column(grid, 0) == Texts{"0.5", "0.25", "0.125", "0.0625"});
    CHECK(grid->GetNumberCols() == 1);
}

TEST_CASE("prior grid: a cell without a number repeats the number above it")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(7), Ones(7));
    stage.Fill(grid);
    char const* const texts[] = {"", "", "2.5", "", "two", "1e999", "3"};
    for (int row = 0; row < 7; ++row)
        grid->SetCellValue(row, 0, texts[row]);
    Eigen::VectorXd const expected = (Eigen::VectorXd(7) << 0, 0, 2.5, 2.5, 2.5, 2.5, 3).finished();
    CHECK(grid->ReadFields() == expected);

    // What begins like a number is read as far as it is one.
    grid->SetCellValue(1, 0, "4.5abc");
    CHECK(grid->ReadFields()(1, 0) == 4.5);
}

TEST_CASE("prior grid: what comes back is what the shown texts say")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), {}, Eigen::MatrixXd(0, 1));
    stage.Fill(grid);
    CheckRoundTrips(
        grid, false, 1,
        [&](int rows, int, Eigen::MatrixXd const& values) { grid->RedrawGrid(Names(rows), values); },
        [&] { return grid->ReadFields(); });
}

TEST_CASE("prior grid: numbers are typed, letters are refused")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(3), Ones(3));
    stage.Fill(grid);
    GoTo(grid, 0, 0);

    TypeText("q");
    CHECK_FALSE(IsEditing(grid));
    TypeText("-1q2.5z");
    CHECK(IsEditing(grid));
    CHECK(EditorText(grid) == "-12.5");
    Press(WXK_RETURN);
    CHECK_FALSE(IsEditing(grid));
    CHECK(CursorAt(grid, 1, 0));
    CHECK(Column(grid, 0) == Texts{"-12.5", "1", "1"});

    // The letter of an exponent opens the editor but is no part of what can be typed.
    TypeText("2e3");
    CHECK(EditorText(grid) == "23");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(3, 1) << -12.5, 23, 1).finished());
}

TEST_CASE("prior grid: Enter goes down, Tab stays in the one column, Escape restores")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(3), Ones(3));
    stage.Fill(grid);
    GoTo(grid, 0, 0);
    TypeText("5");
    Press(WXK_RETURN);
    TypeText("6");
    Press(WXK_TAB);
    CHECK(CursorAt(grid, 1, 0));
    CHECK_FALSE(IsEditing(grid));
    CHECK(Column(grid, 0) == Texts{"5", "6", "1"});
    TypeText("7");
    Press(WXK_ESCAPE);
    CHECK_FALSE(IsEditing(grid));
    CHECK(Column(grid, 0) == Texts{"5", "6", "1"});
    Press(WXK_DOWN);
    TypeText("8");
    Press(WXK_RETURN);
    CHECK(CursorAt(grid, 2, 0));
    CHECK(Column(grid, 0) == Texts{"5", "6", "8"});
    Press(WXK_UP);
    TypeText("9");
    Press(WXK_RETURN);
    CHECK(CursorAt(grid, 2, 0));
    CHECK(Column(grid, 0) == Texts{"5", "9", "8"});
    Keep(Photograph(stage.Frame()), "PriorGrid");
}

TEST_CASE("prior grid: a number that is still being typed is read")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(2), Ones(2));
    stage.Fill(grid);
    GoTo(grid, 1, 0);
    TypeText("42");
    REQUIRE(IsEditing(grid));
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(2, 1) << 1, 42).finished());
    CHECK_FALSE(IsEditing(grid));
    CHECK(grid->GetCellValue(1, 0) == "42");

    SECTION("a mere beginning of one leaves an empty cell")
    {
        TypeText("-");
        REQUIRE(IsEditing(grid));
        CHECK(grid->ReadFields() == Ones(2));
        CHECK(Column(grid, 0) == Texts{"1", ""});
    }
    SECTION("it does not come back over a redraw")
    {
        TypeText("43");
        REQUIRE(IsEditing(grid));
        grid->RedrawGrid(Names(3), Eigen::MatrixXd::Zero(3, 1));
        CHECK_FALSE(IsEditing(grid));
        CHECK(Column(grid, 0) == Texts{"0", "0", "0"});
        CHECK(grid->ReadFields() == Eigen::MatrixXd::Zero(3, 1));
    }
    SECTION("nor when the redraw takes its row")
    {
        TypeText("43");
        REQUIRE(IsEditing(grid));
        grid->RedrawGrid(Names(1), Eigen::MatrixXd::Zero(1, 1));
        CHECK(grid->ReadFields() == Eigen::MatrixXd::Zero(1, 1));
        grid->RedrawGrid({}, Eigen::MatrixXd(0, 1));
        CHECK(grid->ReadFields().rows() == 0);
    }
}

TEST_CASE("prior grid: an owner may read it whenever a cell changes")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(2), Ones(2));
    stage.Fill(grid);
    grid->SetCellValue(0, 0, "nan");
    int changes = 0;
    Eigen::MatrixXd seen;
    grid->Bind(wxEVT_GRID_CELL_CHANGED,
               [&](wxGridEvent&)
               {
                   ++changes;
                   seen = grid->ReadFields();
               });
    GoTo(grid, 1, 0);
    TypeText("3");
    grid->ReadFields();
    CHECK(changes == 1);
    CHECK(seen(1, 0) == 3);

    // Opened and left as it was.
    GoTo(grid, 0, 0);
    Press(WXK_F2);
    CHECK(EditorText(grid) == "nan");
    Press(WXK_RETURN);
    CHECK(changes == 1);
    CHECK(grid->GetCellValue(0, 0) == "nan");
}

TEST_CASE("prior grid: a number too small to be read can be looked at and replaced")
{
    Stage stage;
    Eigen::MatrixXd values(2, 1);
    values << 3, 1e-310;
    auto* const grid = new PriorGrid(stage.Frame(), Names(2), values);
    stage.Fill(grid);
    CHECK(grid->ReadFields()(1, 0) == 3);
    GoTo(grid, 1, 0);
    Press(WXK_F2);
    CHECK(EditorText(grid) == "0");
    Press(WXK_ESCAPE);
    CHECK(grid->GetCellValue(1, 0) == "1e-310");
    TypeText("4");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields()(1, 0) == 4);
}

TEST_CASE("prior grid: an emptied cell")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(2), Ones(2) * 5);
    stage.Fill(grid);
    grid->SetCellValue(1, 0, "6");
    GoTo(grid, 1, 0);
    Press(WXK_F2);
    Press(WXK_BACK);
    Press(WXK_RETURN);
    CHECK(grid->GetCellValue(1, 0) == "");
    CHECK(grid->ReadFields() == Ones(2) * 5);
    Press(WXK_F2);
    CHECK(IsEditing(grid));
    TypeText("7");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields()(1, 0) == 7);
}

TEST_CASE("prior grid: the clipboard, as the toolkit's grid has it")
{
    Stage stage;
    auto* const grid = new PriorGrid(stage.Frame(), Names(3), Ones(3));
    stage.Fill(grid);
    grid->SetCellValue(1, 0, "2.5");
    GoTo(grid, 0, 0);
    grid->SelectBlock(0, 0, 1, 0);
    Press('C', wxMOD_CONTROL);
    CHECK(Clipboard() == "1\n2.5\n");

    // A block can't be pasted into the grid: nothing happens.
    CopyToClipboard("8\n9\n");
    grid->ClearSelection();
    Press('V', wxMOD_CONTROL);
    CHECK_FALSE(IsEditing(grid));
    CHECK(Column(grid, 0) == Texts{"1", "2.5", "1"});

    // Into one cell a number is pasted, exponent and all.
    CopyToClipboard("1e-7");
    Press(WXK_F2);
    Press('V', wxMOD_CONTROL);
    CHECK(EditorText(grid) == "1e-7");
    Press(WXK_RETURN);
    CHECK(grid->ReadFields()(0, 0) == 1e-7);

    // What is no number leaves an empty cell.
    CopyToClipboard("two");
    Press(WXK_F2);
    Press('V', wxMOD_CONTROL);
    Press(WXK_RETURN);
    CHECK(grid->GetCellValue(1, 0) == "");
}
