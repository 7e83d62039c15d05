#include "dialogs/data/ClearDatasetDialog.h"

#include "dialogs/data/DialogChecks.h"
#include "pickers/DatasetPicker.h"

using namespace dialog_checks;

TEST_CASE("clear dataset dialog: layout")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CHECK(dialog.GetParent() == stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Clear dataset", 2);
    auto* const item = Item(CheckCell(Item(sizer, 0)), 0);
    CHECK(item->GetWindow() == Find<DatasetPicker>(&dialog));
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxTOP, 10});
    CheckRunAndCancel(Item(sizer, 1), dialog);
}

TEST_CASE("clear dataset dialog: the first dataset is offered, and another can be")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CHECK(Find<wxChoice>(&dialog)->GetStrings() == Names({"macro", "wages"}));
    CHECK(dialog.GetDatasetName() == "macro");
    dialog.SetDataset(1);
    CHECK(dialog.GetDatasetName() == "wages");
    for (int const outside : {2, -1, -2, 1000})
    {
        dialog.SetDataset(outside);
        CHECK(dialog.GetDatasetName().empty());
    }
    dialog.SetDataset(0);
    CHECK(dialog.GetDatasetName() == "macro");
}

TEST_CASE("clear dataset dialog: picked and accepted by hand")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                                     picker_checks::Pick(Find<wxChoice>(&dialog), 1);
                                     Keep(Photograph(&dialog), "ClearDatasetDialog");
                                     Click(dialog.FindWindow(wxID_OK));
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetDatasetName() == "wages");
}

TEST_CASE("clear dataset dialog: Enter accepts")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CHECK(RunDialog(dialog, [] { Press(WXK_RETURN); }) == wxID_OK);
    CHECK(dialog.GetDatasetName() == "macro");
}

TEST_CASE("clear dataset dialog: Escape, Cancel and closing the window cancel")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CheckWaysOut(dialog);
}

TEST_CASE("clear dataset dialog: the Tab key goes from top to bottom")
{
    Stage stage;
    auto datasets = TwoDatasets();
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CheckTabs(dialog, {});
}

TEST_CASE("clear dataset dialog: without datasets it opens, and gives an empty name")
{
    Stage stage;
    DatasetMap datasets;
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_OK)); }) == wxID_OK);
    CHECK(dialog.GetDatasetName().empty());
    dialog.SetDataset(0);
    CHECK(dialog.GetDatasetName().empty());
}

TEST_CASE("clear dataset dialog: odd names and a thousand names")
{
    Stage stage;
    DatasetMap datasets;
    for (int i = 0; i < 1000; ++i)
        datasets["name_" + std::to_string(1000 + i)] = MakeDataset({});
    datasets["a & b"] = MakeDataset({});
    datasets["donn\xc3\xa9" "es"] = MakeDataset({});
    datasets["\xff"] = MakeDataset({});
    ClearDatasetDialog dialog(stage.Frame(), &datasets);
    CHECK(dialog.GetDatasetName() == "a & b");
    dialog.SetDataset(1);
    CHECK(dialog.GetDatasetName() == "donn\xc3\xa9" "es");
    dialog.SetDataset(1001);
    CHECK(dialog.GetDatasetName() == "name_1999");
    // A name that has no wide form can't be told.
    dialog.SetDataset(1002);
    CHECK(dialog.GetDatasetName().empty());
    CHECK(RunDialog(dialog, [] { Press(WXK_RETURN); }) == wxID_OK);
}
