#include "panes/MatrixGrid.h"

#include <limits>

#include <wx/choice.h>

#include "panes/GridChecks.h"
#include "pickers/MatrixPicker.h"
#include "support/Stage.h"

using namespace grid_checks;

namespace
{
double const NAN_PLUS = std::numeric_limits<double>::quiet_NaN();
}

TEST_CASE("matrix grid: a picker over a read-only grid")
{
    Stage stage;
    auto* const panel = new MatrixGrid(stage.Frame());
    Layout<MatrixGrid, MatrixPicker>(panel);
    Settings(panel->GetGrid());
    CHECK(panel->GetSelection() == wxNOT_FOUND);
}

TEST_CASE("matrix grid: all columns show, numbered from 1, and a negative NaN stays")
{
    Stage stage;
    auto* const panel = new MatrixGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    Eigen::MatrixXd matrix(2, 3);
    matrix << 1.0 / 3.0, NAN_PLUS, -1e300, //
        0, -NAN_PLUS, -std::numeric_limits<double>::infinity();
    panel->ShowData(matrix);
    REQUIRE(grid->GetNumberCols() == 3);
    REQUIRE(grid->GetNumberRows() == 2);
    CHECK(grid->GetColLabelValue(0) == "1");
    CHECK(grid->GetColLabelValue(2) == "3");
    CHECK(grid->GetRowLabelValue(1) == "2");
    CHECK(Column(grid, 0) == Texts{"0.333333", "0"});
    CHECK(Column(grid, 1) == Texts{".", "-nan"});
    CHECK(Column(grid, 2) == Texts{"-1e+300", "-inf"});
    CHECK(grid->GetCellTextColour(0, 0) == grid->GetDefaultCellTextColour());

    SECTION("a smaller one takes its place")
    {
        Eigen::MatrixXd small = Eigen::MatrixXd::Ones(1, 1);
        panel->ShowData(small);
        CHECK(grid->GetNumberCols() == 1);
        CHECK(Column(grid, 0) == Texts{"1"});
    }
    SECTION("no rows or no columns leave the grid empty")
    {
        Eigen::MatrixXd none(GENERATE(0, 0, 4), GENERATE(0, 3));
        if (none.size() == 0)
        {
            panel->ShowData(none);
            CHECK(grid->GetNumberRows() == 0);
            CHECK(grid->GetNumberCols() == 0);
        }
    }
}

TEST_CASE("matrix grid: an update offers the map and shows its first matrix")
{
    Stage stage;
    auto* const panel = new MatrixGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    MatrixMap map;
    map["sigma"] = std::make_shared<Eigen::MatrixXd>(Eigen::MatrixXd::Identity(3, 3) * 0.25);
    map["beta"] = std::make_shared<Eigen::MatrixXd>(Eigen::MatrixXd::Constant(2, 1, -1.5));
    panel->Update(&map);
    CHECK(Find<wxChoice>(panel)->GetStrings().size() == 2);
    CHECK(Find<wxChoice>(panel)->GetString(0) == "beta");
    CHECK(panel->GetSelection() == 0);
    CHECK(Column(grid, 0) == Texts{"-1.5", "-1.5"});

    wxString name = "sigma";
    panel->SetChoice(name);
    CHECK(panel->GetSelection() == 1);
    CHECK(grid->GetNumberCols() == 1);

    MatrixMap empty;
    panel->Hide();
    panel->Update(&empty);
    CHECK(Find<wxChoice>(panel)->GetCount() == 2);
    CHECK(grid->GetNumberRows() == 2);
    panel->Show();
    panel->Update(&empty);
    CHECK(Find<wxChoice>(panel)->GetCount() == 0);
    CHECK(grid->GetNumberRows() == 0);
    panel->UpdateChoices(&map);
    CHECK(panel->GetSelection() == 0);
    panel->Clear();
    panel->ClearGrid();
    CHECK(panel->GetSelection() == wxNOT_FOUND);
    panel->Update();
}

TEST_CASE("matrix grid: a real choice reaches the host")
{
    Stage stage;
    auto* const panel = new MatrixGrid(stage.Frame());
    stage.Fill(panel);
    MatrixMap map;
    map["beta"] = std::make_shared<Eigen::MatrixXd>(Eigen::MatrixXd::Constant(2, 1, -1.5));
    map["sigma"] = std::make_shared<Eigen::MatrixXd>(Eigen::MatrixXd::Identity(3, 3) * 0.25);
    int events = 0;
    stage.Frame()->Bind(wxEVT_CHOICE,
                        [&](wxCommandEvent& event)
                        {
                            ++events;
                            CHECK(event.GetId() == 6081);
                            panel->ShowData(*map["sigma"]);
                        });
    panel->Update(&map);
    Pump();
    Click(Find<wxChoice>(panel));
    Pump(150);
    Press(WXK_END);
    Press(WXK_RETURN);
    Pump(150);
    CHECK(events == 1);
    CHECK(Column(panel->GetGrid(), 1) == Texts{"0", "0.25", "0"});
    Keep(Photograph(stage.Frame()), "MatrixGrid");

    wxCommandEvent event(wxEVT_CHOICE);
    event.Skip(false);
    panel->OnMatrixChanged(event);
    CHECK(event.GetSkipped());
}
