#include "modelspec/PriorProbGrid.h"

#include "modelspec/NumberGridChecks.h"

using namespace number_grid_checks;

TEST_CASE("prior probability grid: layout")
{
    Stage stage;
    Eigen::MatrixXd const values = Eigen::MatrixXd::Constant(3, 1, 1.0 / 3.0);
    auto* const grid = new PriorProbGrid(stage.Frame(), Names({"ols", "probit", "logit"}), values);
    CHECK(grid->GetPosition() == wxPoint(100, 100));
    stage.Fill(grid);
    Settings(grid);
    CHECK(grid->GetNumberRows() == 3);
    CHECK(grid->GetNumberCols() == 1);
    CHECK(grid->GetColLabelSize() == 0);
    CHECK(grid->GetRowLabelSize() == 200);
    ColLabelAlignment(grid, wxALIGN_CENTRE);
    CHECK(RowLabels(grid) == Texts{"ols", "probit", "logit"});
    CHECK(Column(grid, 0) == Texts{"0.333333", "0.333333", "0.333333"});
    CHECK(HasNumberEditor(grid, 0, 0));
    CHECK(grid->ReadFields() == Eigen::MatrixXd::Constant(3, 1, 0.333333));
}

TEST_CASE("prior probability grid: redraws")
{
    Stage stage;
    auto* const grid = new PriorProbGrid(stage.Frame(), {}, Eigen::MatrixXd(0, 1));
    stage.Fill(grid);
    CHECK(grid->ReadFields().rows() == 0);
    CHECK(grid->ReadFields().cols() == 1);
    grid->RedrawGrid(Names(4), Eigen::MatrixXd::Constant(4, 2, 0.25));
    CHECK(Column(grid, 0) == Texts{"0.25", "0.25", "0.25", "0.25"});
    grid->RedrawGrid(Names({"a", "b"}), Eigen::MatrixXd::Constant(2, 1, 0.5));
    CHECK(RowLabels(grid) == Texts{"a", "b"});
    CHECK(Column(grid, 0) == Texts{"0.5", "0.5"});
    grid->RedrawGrid({}, Eigen::MatrixXd(0, 1));
    CHECK(grid->GetNumberRows() == 0);
    CHECK(grid->GetNumberCols() == 1);
}

TEST_CASE("prior probability grid: typed probabilities are read, the one in the making too")
{
    Stage stage;
    auto* const grid = new PriorProbGrid(stage.Frame(), Names(3), Eigen::MatrixXd::Zero(3, 1));
    stage.Fill(grid);
    GoTo(grid, 0, 0);
    TypeText("0.6");
    Press(WXK_RETURN);
    TypeText(".3");
    Press(WXK_RETURN);
    TypeText("0.1");
    REQUIRE(IsEditing(grid));
    CHECK(grid->ReadFields() == (Eigen::MatrixXd(3, 1) << 0.6, 0.3, 0.1).finished());
    Keep(Photograph(stage.Frame()), "PriorProbGrid");
}

TEST_CASE("prior probability grid: what comes back is what the shown texts say")
{
    Stage stage;
    auto* const grid = new PriorProbGrid(stage.Frame(), {}, Eigen::MatrixXd(0, 1));
    stage.Fill(grid);
    CheckRoundTrips(
        grid, false, 1,
        [&](int rows, int, Eigen::MatrixXd const& values) { grid->RedrawGrid(Names(rows), values); },
        [&] { return grid->ReadFields(); });
}
