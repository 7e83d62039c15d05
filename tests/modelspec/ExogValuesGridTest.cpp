#include "modelspec/ExogValuesGrid.h"

#include "modelspec/NumberGridChecks.h"

using namespace number_grid_checks;

TEST_CASE("exogenous values grid: layout")
{
    Stage stage;
    Eigen::MatrixXd values(3, 3);
    values << 1, 0.25, -2e9, //
        4, 5, 1e-5,          //
        6, 7, 8;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 2, Names({"gdp", "cpi", "rate"}), values);
    CHECK(grid->GetPosition() == wxPoint(100, 100));
    stage.Fill(grid);
    Settings(grid);
    CHECK(grid->GetColLabelSize() == 20);
    CHECK(grid->GetRowLabelSize() == 50);
    ColLabelAlignment(grid, wxALIGN_CENTRE);
    CHECK(RowLabels(grid) == Texts{"T+1", "T+2"});
    CHECK(ColLabels(grid) == Texts{"gdp", "cpi", "rate"});
    CHECK(Column(grid, 0) == Texts{"1", "4"});
    CHECK(Column(grid, 1) == Texts{"0.25", "5"});
    CHECK(Column(grid, 2) == Texts{"-2e+09", "1e-05"});
    CHECK(HasNumberEditor(grid, 1, 2));
    CHECK(grid->ReadFields() == values.topRows(2));
}

TEST_CASE("exogenous values grid: the periods count up without padding or end")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 1200, Names(1), Eigen::MatrixXd::Zero(1200, 1));
    stage.Fill(grid);
    CHECK(grid->GetRowLabelValue(0) == "T+1");
    CHECK(grid->GetRowLabelValue(8) == "T+9");
    CHECK(grid->GetRowLabelValue(9) == "T+10");
    CHECK(grid->GetRowLabelValue(999) == "T+1000");
    CHECK(grid->GetRowLabelValue(1199) == "T+1200");
}

TEST_CASE("exogenous values grid: a redraw leaves no trace of what was there")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 4, Names({"a", "b", "c"}),
                                          Eigen::MatrixXd::Constant(4, 3, 7));
    stage.Fill(grid);
    grid->RedrawGrid(2, Names({"x"}), Eigen::MatrixXd::Constant(2, 1, 0.5));
    CHECK(RowLabels(grid) == Texts{"T+1", "T+2"});
    CHECK(ColLabels(grid) == Texts{"x"});
    CHECK(Column(grid, 0) == Texts{"0.5", "0.5"});
    // What the host adds is labelled as by the toolkit, and empty.
    grid->AppendCols(1);
    CHECK(ColLabels(grid) == Texts{"x", "B"});
    CHECK(Column(grid, 1) == Texts{"", ""});

    grid->RedrawGrid(3, Names({"p", "q"}), Eigen::MatrixXd::Constant(5, 5, -1));
    CHECK(RowLabels(grid) == Texts{"T+1", "T+2", "T+3"});
    CHECK(ColLabels(grid) == Texts{"p", "q"});
    CHECK(grid->ReadFields() == Eigen::MatrixXd::Constant(3, 2, -1));
}

TEST_CASE("exogenous values grid: no periods or no names")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 0, {}, Eigen::MatrixXd());
    stage.Fill(grid);
    CHECK(grid->ReadFields().rows() == 0);
    CHECK(grid->ReadFields().cols() == 0);

    int const periods = GENERATE(0, -1);
    grid->RedrawGrid(periods, Names({"a", "b"}), Eigen::MatrixXd());
    CHECK(grid->GetNumberRows() == 0);
    CHECK(ColLabels(grid) == Texts{"a", "b"});
    CHECK(grid->ReadFields().rows() == 0);
    CHECK(grid->ReadFields().cols() == 2);

    grid->RedrawGrid(3, {}, Eigen::MatrixXd());
    CHECK(RowLabels(grid) == Texts{"T+1", "T+2", "T+3"});
    CHECK(grid->GetNumberCols() == 0);
    CHECK(grid->ReadFields().rows() == 3);
    CHECK(grid->ReadFields().cols() == 0);

    grid->RedrawGrid(0, {}, Eigen::MatrixXd());
    grid->RedrawGrid(1, Names({"a"}), Eigen::MatrixXd::Ones(1, 1));
    CHECK(grid->ReadFields() == Eigen::MatrixXd::Ones(1, 1));

    auto* const negative = new ExogValuesGrid(stage.Frame(), periods, Names({"a"}), Eigen::MatrixXd());
    CHECK(negative->GetNumberRows() == 0);
    stage.Fill(negative);
}

TEST_CASE("exogenous values grid: an unreadable cell repeats the one before it, across the rows")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 2, Names(2), Eigen::MatrixXd::Ones(2, 2));
    stage.Fill(grid);
    grid->SetCellValue(0, 0, "");
    grid->SetCellValue(0, 1, "8");
    grid->SetCellValue(1, 0, ".");
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(2, 2) << 0, 8, 8, 1).finished());
}

TEST_CASE("exogenous values grid: Tab goes along a period, Enter down a variable")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 2, Names(3), Eigen::MatrixXd::Zero(2, 3));
    stage.Fill(grid);
    GoTo(grid, 0, 0);
    TypeText("1");
    Press(WXK_TAB);
    TypeText("2");
    Press(WXK_TAB);
    TypeText("x-3");
    Press(WXK_RETURN);
    CHECK(CursorAt(grid, 1, 2));
    TypeText("6");
    Press(WXK_TAB);
    CHECK(CursorAt(grid, 1, 2));
    CHECK_FALSE(IsEditing(grid));
    Press(WXK_LEFT);
    TypeText("5");
    REQUIRE(IsEditing(grid));
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(2, 3) << 1, 2, -3, 0, 5, 6).finished());
    Keep(Photograph(stage.Frame()), "ExogValuesGrid");

    TypeText("9");
    REQUIRE(IsEditing(grid));
    grid->RedrawGrid(2, Names(3), Eigen::MatrixXd::Zero(2, 3));
    CHECK_FALSE(IsEditing(grid));
    CHECK(grid->ReadFields() == Eigen::MatrixXd::Zero(2, 3));
}

TEST_CASE("exogenous values grid: what comes back is what the shown texts say")
{
    Stage stage;
    auto* const grid = new ExogValuesGrid(stage.Frame(), 0, {}, Eigen::MatrixXd());
    stage.Fill(grid);
    CheckRoundTrips(
        grid, false, 200, [&](int rows, int cols, Eigen::MatrixXd const& values)
        { grid->RedrawGrid(rows, Names(cols), values); },
        [&] { return grid->ReadFields(); });
}
