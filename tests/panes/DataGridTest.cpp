#include "panes/DataGrid.h"

#include <limits>

#include <wx/choice.h>

#include "engine/Sentinels.h"
#include "panes/GridChecks.h"
#include "pickers/DatasetPicker.h"
#include "support/Stage.h"

using namespace grid_checks;

namespace
{
double const NAN_PLUS = std::numeric_limits<double>::quiet_NaN();
double const NAN_MINUS = -NAN_PLUS;

Dataset Make(std::initializer_list<char const*> names, Eigen::MatrixXd data)
{
    Dataset dataset;
    dataset.name = "made";
    for (auto const* name : names)
        dataset.varNames.Add(wxString::FromUTF8(name));
    dataset.data = std::move(data);
    return dataset;
}

/// Four observations: the hidden column, growth, inflation, country.
Dataset Macro()
{
    Eigen::MatrixXd data(4, 4);
    data << 1, 2.125, 1234567, 0, //
        1, NAN_PLUS, NAN_MINUS, 1, //
        1, -0.0, 1e-7, 0, //
        1, std::numeric_limits<double>::infinity(), 100000, 1;
    auto dataset = Make({"const", "growth", "inflation", "country"}, data);
    dataset.labelledColumns[3].labels = {"France", "Österreich"};
    return dataset;
}

template <class... Datasets>
DatasetMap Workspace(std::pair<char const*, Dataset> first, Datasets... rest)
{
    DatasetMap map;
    for (auto& [key, dataset] : {first, rest...})
        map[key] = std::make_shared<Dataset>(dataset);
    return map;
}

using Entry = std::pair<char const*, Dataset>;
} // namespace

TEST_CASE("data grid: a picker over a read-only grid")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    Layout<DataGrid, DatasetPicker>(panel);
    Settings(panel->GetGrid());
    CHECK(panel->GetSelection() == wxNOT_FOUND);
}

TEST_CASE("data grid: numbers, labels and missing values")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    auto macro = Macro();

    SECTION("beside labels only a positive NaN is missing")
    {
        panel->ShowData(macro);
        REQUIRE(grid->GetNumberCols() == 3);
        REQUIRE(grid->GetNumberRows() == 4);
        CHECK(grid->GetColLabelValue(0) == "growth");
        CHECK(grid->GetColLabelValue(1) == "inflation");
        CHECK(grid->GetColLabelValue(2) == "country");
        CHECK(grid->GetRowLabelValue(0) == "1");
        CHECK(Column(grid, 0) == Texts{"2.125", ".", "-0", "inf"});
        CHECK(Column(grid, 1) == Texts{"1.23457e+06", "-nan", "1e-07", "100000"});
        CHECK(Column(grid, 2) == Texts{"France", wxString::FromUTF8("Österreich"), "", ""});
    }
    SECTION("without labels both kinds of NaN are")
    {
        macro.labelledColumns.clear();
        panel->ShowData(macro);
        CHECK(Column(grid, 1) == Texts{"1.23457e+06", ".", "1e-07", "100000"});
        CHECK(Column(grid, 2) == Texts{"0", "1", "0", "1"});
    }
    SECTION("a label that reads nan is a label")
    {
        macro.labelledColumns[3].labels = {"nan", "-nan", ".", ""};
        panel->ShowData(macro);
        CHECK(Column(grid, 2) == Texts{"nan", "-nan", ".", ""});
    }
    SECTION("labels are green, and nothing else is")
    {
        panel->ShowData(macro);
        wxColour const plain = grid->GetDefaultCellTextColour();
        REQUIRE(plain != GREEN);
        for (int pass = 0; pass < 2; ++pass)
        {
            CHECK(grid->GetCellTextColour(0, 2) == GREEN);
            CHECK(grid->GetCellTextColour(1, 2) == GREEN);
            CHECK(grid->GetCellTextColour(2, 2) == plain);
            CHECK(grid->GetCellTextColour(0, 1) == plain);
        }
        // Another dataset on the same cells, and the first again.
        auto numbers = Make({"const", "a", "b", "c"}, Eigen::MatrixXd::Ones(4, 4));
        panel->ShowData(numbers);
        CHECK(grid->GetCellTextColour(0, 2) == plain);
        CHECK(grid->GetCellTextColour(1, 2) == plain);
        panel->ShowData(macro);
        CHECK(grid->GetCellTextColour(1, 2) == GREEN);
    }
    SECTION("a host's colour on one cell is its own")
    {
        panel->ShowData(macro);
        grid->SetCellTextColour(0, 2, *wxRED);
        CHECK(grid->GetCellTextColour(0, 2) == *wxRED);
        CHECK(grid->GetCellTextColour(1, 2) == GREEN);
        grid->SetCellBackgroundColour(1, 2, *wxBLACK);
        CHECK(grid->GetCellTextColour(1, 2) == GREEN);
    }
    SECTION("a label in another encoding is shown byte by byte")
    {
        macro.labelledColumns[3].labels = {"Z\xfcrich"};
        panel->ShowData(macro);
        CHECK(grid->GetCellValue(0, 2) == wxString::FromUTF8("Zürich"));
    }
}

TEST_CASE("data grid: labelled columns that do not fit their data")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    auto dataset = Make({"const", "x", "y"}, Eigen::MatrixXd::Constant(2, 3, NAN_MINUS));

    dataset.labelledColumns[2].labels = {"a", "b", "one too many", "and another"};
    panel->ShowData(dataset);
    CHECK(Column(grid, 1) == Texts{"a", "b"});

    // No such column, or the hidden one: they show nowhere, and count as labels all the same.
    dataset.labelledColumns.clear();
    dataset.labelledColumns[3].labels = {"a", "b"};
    dataset.labelledColumns[0].labels = {"a", "b"};
    dataset.labelledColumns[-1].labels = {"a", "b"};
    panel->ShowData(dataset);
    CHECK(Column(grid, 0) == Texts{"-nan", "-nan"});
    CHECK(Column(grid, 1) == Texts{"-nan", "-nan"});

    dataset.labelledColumns.clear();
    dataset.labelledColumns[1];
    panel->ShowData(dataset);
    CHECK(Column(grid, 0) == Texts{"", ""});
}

TEST_CASE("data grid: datasets that show little or nothing")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    auto macro = Macro();
    panel->ShowData(macro);

    SECTION("the placeholder")
    {
        macro.name = "__ZenqoEmptyDataset__";
        panel->ShowData(macro);
        CHECK(grid->GetNumberRows() == 0);
        CHECK(grid->GetNumberCols() == 0);
    }
    SECTION("an empty first name")
    {
        macro.varNames[0].clear();
        panel->ShowData(macro);
        CHECK(grid->GetNumberRows() == 0);
        CHECK(grid->GetNumberCols() == 0);
    }
    SECTION("no names at all")
    {
        macro.varNames.clear();
        panel->ShowData(macro);
        CHECK(grid->GetNumberCols() == 0);
    }
    SECTION("the hidden column alone gives rows and no columns")
    {
        auto lonely = Make({"const"}, Eigen::MatrixXd::Ones(7, 1));
        panel->ShowData(lonely);
        CHECK(grid->GetNumberRows() == 7);
        CHECK(grid->GetNumberCols() == 0);
        panel->ClearGrid();
        CHECK(grid->GetNumberRows() == 0);
    }
    SECTION("names without data, data without rows")
    {
        auto nothing = Make({"const", "x"}, Eigen::MatrixXd());
        panel->ShowData(nothing);
        CHECK(grid->GetNumberRows() == 0);
        CHECK(grid->GetNumberCols() == 0);
        auto noRows = Make({"const", "x"}, Eigen::MatrixXd(0, 2));
        panel->ShowData(noRows);
        CHECK(grid->GetNumberRows() == 0);
        CHECK(grid->GetNumberCols() == 1);
        CHECK(grid->GetColLabelValue(0) == "x");
    }
    SECTION("fewer names than columns")
    {
        auto unnamed = Make({"const", "x"}, Eigen::MatrixXd::Ones(1, 3));
        panel->ShowData(unnamed);
        CHECK(grid->GetNumberCols() == 2);
        CHECK(grid->GetColLabelValue(0) == "x");
    }
    panel->ClearGrid();
    panel->ClearGrid();
    Pump();
}

TEST_CASE("data grid: an update offers the map and shows its first dataset")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    auto map = Workspace(Entry{"wages", Make({"const", "w"}, Eigen::MatrixXd::Constant(3, 2, 9))},
                         Entry{"macro", Macro()}, Entry{"Z", Make({"const", "z"}, Eigen::MatrixXd::Ones(1, 2))});
    panel->Update(&map);
    auto const offered = Find<wxChoice>(panel)->GetStrings();
    REQUIRE(offered.size() == 3);
    CHECK(offered[0] == "Z");
    CHECK(offered[1] == "macro");
    CHECK(offered[2] == "wages");
    CHECK(panel->GetSelection() == 0);
    CHECK(grid->GetColLabelValue(0) == "z");
    CHECK(grid->GetNumberRows() == 1);

    // The host restores another choice; the next update goes back to the first.
    wxString wages = "wages";
    panel->SetChoice(wages);
    CHECK(panel->GetSelection() == 2);
    CHECK(grid->GetColLabelValue(0) == "z");
    panel->ShowData(*map["wages"]);
    CHECK(Column(grid, 0) == Texts{"9", "9", "9"});
    wxString absent = "Wages";
    panel->SetChoice(absent);
    CHECK(panel->GetSelection() == wxNOT_FOUND);
    panel->Update(&map);
    CHECK(panel->GetSelection() == 0);
    CHECK(grid->GetColLabelValue(0) == "z");

    panel->Hide();
    DatasetMap empty;
    panel->Update(&empty);
    CHECK(Find<wxChoice>(panel)->GetCount() == 3);
    CHECK(grid->GetNumberRows() == 1);
    panel->Show();
    panel->Update(&empty);
    CHECK(Find<wxChoice>(panel)->GetCount() == 0);
    CHECK(panel->GetSelection() == wxNOT_FOUND);
    CHECK(grid->GetNumberRows() == 0);

    panel->UpdateChoices(&empty);
    CHECK(panel->GetSelection() == wxNOT_FOUND);
    panel->UpdateChoices(&map);
    CHECK(panel->GetSelection() == 0);
    CHECK(grid->GetNumberRows() == 0);
    panel->Clear();
    CHECK(Find<wxChoice>(panel)->GetCount() == 0);
    static_cast<wxWindow*>(panel)->Update();
    panel->Update();
}

TEST_CASE("data grid: the copy does not follow the record")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto macro = Macro();
    panel->ShowData(macro);
    macro.data(0, 1) = 77;
    macro.labelledColumns.clear();
    macro.varNames[1] = "other";
    Pump();
    CHECK(panel->GetGrid()->GetCellValue(0, 0) == "2.125");
    CHECK(panel->GetGrid()->GetCellTextColour(0, 2) == GREEN);
    CHECK(panel->GetGrid()->GetColLabelValue(0) == "growth");
}

TEST_CASE("data grid: going to a cell, and to one that is not there")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto* const grid = panel->GetGrid();
    panel->GoToCell(0, 0); // Nothing there yet.
    auto tall = Make({"const", "a", "b"}, Eigen::MatrixXd::Ones(500, 3));
    panel->ShowData(tall);
    panel->GoToCell(450, 1);
    CHECK(grid->GetGridCursorRow() == 450);
    CHECK(grid->GetGridCursorCol() == 1);
    CHECK(grid->IsVisible(450, 1));
    auto const outside = GENERATE(std::make_pair(500, 0), std::make_pair(-1, 0), std::make_pair(0, 2),
                                  std::make_pair(0, -1), std::make_pair(-7, -7));
    panel->GoToCell(outside.first, outside.second);
    Pump();
    CHECK(grid->GetGridCursorRow() == 450);
    CHECK(grid->GetGridCursorCol() == 1);
}

TEST_CASE("data grid: a real choice reaches the host, which answers with the data")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto map = Workspace(Entry{"macro", Macro()},
                         Entry{"wages", Make({"const", "w"}, Eigen::MatrixXd::Constant(3, 2, 9))});
    int events = 0;
    stage.Frame()->Bind(wxEVT_CHOICE,
                        [&](wxCommandEvent& event)
                        {
                            ++events;
                            CHECK(event.GetId() == 6079);
                            panel->ShowData(*std::next(map.begin(), panel->GetSelection())->second);
                        });
    panel->Update(&map);
    Pump();
    Keep(Photograph(stage.Frame()), "DataGrid");

    auto* const choice = Find<wxChoice>(panel);
    for (int const expected : {1, 1})
    {
        Click(choice);
        Pump(150);
        Press(WXK_END);
        Press(WXK_RETURN);
        Pump(150);
        CHECK(events == expected);
        CHECK(panel->GetSelection() == 1);
    }
    CHECK(panel->GetGrid()->GetColLabelValue(0) == "w");

    wxCommandEvent event(wxEVT_CHOICE);
    event.Skip(false);
    panel->OnDatasetChanged(event);
    CHECK(event.GetSkipped());
}

TEST_CASE("data grid: the user cannot type into it")
{
    Stage stage;
    auto* const panel = new DataGrid(stage.Frame());
    stage.Fill(panel);
    auto macro = Macro();
    panel->ShowData(macro);
    auto* const grid = panel->GetGrid();
    auto const cell = grid->CellToRect(0, 0);
    ClickAt(grid->GetGridWindow(), wxPoint(cell.x + 10, cell.y + 5));
    TypeText("77");
    Press(WXK_RETURN);
    CHECK(grid->GetCellValue(0, 0) == "2.125");
    CHECK_FALSE(grid->IsCellEditControlShown());
}
