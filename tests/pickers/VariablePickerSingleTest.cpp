#include "pickers/VariablePickerSingle.h"

#include "pickers/ListPairChecks.h"

using namespace pair_checks;

namespace
{
Subject<VariablePickerSingle> const SUBJECT{{&VariablePickerSingle::OnLhsVarSelected,
                                             {&VariablePickerSingle::OnRhsVarSelected},
                                             {&VariablePickerSingle::OnMoveButton},
                                             &VariablePickerSingle::OnDatasetChanged},
                                            &VariablePickerSingle::GetRhsVars};

VariablePickerSingle* Make(Stage const& stage, DatasetMap& datasets)
{
    auto* const picker = new VariablePickerSingle(stage.Frame(), &datasets, 235, "Variables to Plot");
    picker->SetName("VariablePickerSingle");
    return picker;
}
} // namespace

TEST_CASE("single variable picker: two columns and a button between them")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Controls const controls(picker);
    auto* const below = BelowRow(picker);
    CHECK(PlacementOf(below) == Placement{0, wxEXPAND | wxALL, 0});
    auto* const grid = CheckGrid(below->GetSizer(), 1, 5, {}, {{1, 20}, {3, 20}});
    REQUIRE(grid->GetItemCount() == 5);
    CheckColumn(Item(grid, 0), controls.Left(), {"Variables in dataset", wxSize(180, -1)});
    CheckGap(Item(grid, 1));
    CheckButton(Item(grid, 2), controls.Button(0), controls.Left());
    CheckGap(Item(grid, 3));
    CheckColumn(Item(grid, 4), controls.Role(0), {"Variables to Plot", wxSize(180, 235), 2, {}});
}

TEST_CASE("single variable picker: offers the first dataset's variables and not its first name")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Controls const controls(picker);
    CHECK(controls.choice->GetStrings() == Names({"macro", "wages"}));
    CHECK(picker->GetDatasetName() == "macro");
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(controls.Role(0)->IsEmpty());
    CHECK(picker->GetRhsVars() == Names({""}));
    CHECK(!picker->GetChanged());
}

TEST_CASE("single variable picker: without datasets it is empty, and everything may be called")
{
    Stage stage;
    DatasetMap datasets;
    auto* const picker = Make(stage, datasets);
    stage.Fill(picker);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    auto const isEmpty = [&]
    {
        return driver.controls.choice->IsEmpty() && driver.controls.Left()->IsEmpty()
               && driver.controls.Role(0)->IsEmpty() && picker->GetDatasetName().empty()
               && picker->GetRhsVars() == Names({""});
    };
    CHECK(isEmpty());
    Click(driver.controls.Button(0));
    CHECK(picker->GetChanged());
    driver.SelectRole(0, {});
    driver.Press(0);
    driver.PickSource(0);
    for (int const index : {0, 1, -1})
        picker->SetSelection(index);
    auto none = Names({""});
    picker->SetVariables(0, none);
    none.clear();
    picker->SetVariables(0, none);
    picker->RedrawLhsVarList(none);
    CHECK(isEmpty());
}

TEST_CASE("single variable picker: a dataset with only its first name, and one with none")
{
    Stage stage;
    DatasetMap datasets{{"a", MakeDataset({})}, {"b", std::make_shared<Dataset>()}};
    auto* const picker = Make(stage, datasets);
    Controls const controls(picker);
    CHECK(picker->GetDatasetName() == "a");
    CHECK(controls.Left()->IsEmpty());
    picker->SetSelection(1);
    CHECK(picker->GetDatasetName() == "b");
    CHECK(controls.Left()->IsEmpty());
}

TEST_CASE("single variable picker: a variable comes back to its own place")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    MovesBothWays(Make(stage, datasets), SUBJECT);
}

TEST_CASE("single variable picker: presses that move nothing count as a change")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    PressesThatMoveNothing(Make(stage, datasets), SUBJECT);
}

TEST_CASE("single variable picker: real clicks with Shift and Ctrl")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    RealClicks(stage, Make(stage, datasets), SUBJECT);
}

TEST_CASE("single variable picker: the keyboard alone")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    KeyboardAlone(stage, Make(stage, datasets), SUBJECT);
}

TEST_CASE("single variable picker: another dataset empties the right list and leaves label and flag")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {0, 1});
    driver.SelectRole(0, {0});
    picker->SetChanged(false);
    driver.PickSource(1);
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    CHECK(driver.controls.Role(0)->IsEmpty());
    CHECK(driver.controls.Button(0)->GetLabel() == "<<");
    CHECK(!picker->GetChanged());
    driver.Press(0);
    CHECK(driver.controls.Left()->GetCount() == 4);

    // The map is asked again each time.
    datasets.at("macro")->varNames.Add("oil");
    driver.PickSource(0);
    CHECK(driver.controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx", "oil"}));
}

TEST_CASE("single variable picker: the shown dataset picked again loses nothing, another is not told on")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    stage.Fill(picker);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    auto* const choice = driver.controls.choice;
    int atFrame = 0;
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++atFrame; });
    driver.MoveIn(0, {1});

    picker_checks::Pick(choice, 0);
    CHECK(picker->GetRhsVars() == Names({"cpi"}));
    picker_checks::Pick(choice, 1);
    CHECK(picker->GetDatasetName() == "wages");
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    CHECK(picker->GetRhsVars() == Names({""}));

    // After a selection by program the user's next pick is heard, whichever way it goes.
    picker->SetSelection(0);
    picker_checks::Pick(choice, 1);
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    auto names = Names({"gdp"});
    picker->SetVariables(0, names);
    picker_checks::Pick(choice, 1);
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    CHECK(picker->GetRhsVars() == Names({""}));
    CHECK(atFrame == 0);
}

TEST_CASE("single variable picker: SetSelection empties the right list even for the dataset shown")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {0, 4});
    picker->SetChanged(false);
    picker->SetSelection(0);
    CHECK(picker->GetRhsVars() == Names({""}));
    CHECK(driver.controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(!picker->GetChanged());
    picker->SetSelection(1);
    CHECK(picker->GetDatasetName() == "wages");
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    for (int const outside : {2, -1, -2})
    {
        picker->SetSelection(outside);
        CHECK(picker->GetDatasetName().empty());
        CHECK(driver.controls.Left()->IsEmpty());
    }
}

TEST_CASE("single variable picker: SetVariables restores an earlier choice in its order")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    auto names = Names({"tenure", "wage", "educ"});
    picker->SetVariables(1, names);
    CHECK(picker->GetDatasetName() == "wages");
    CHECK(picker->GetRhsVars() == Names({"tenure", "wage", "educ"}));
    CHECK(driver.controls.Left()->GetStrings() == Names({"age"}));
    CHECK(!picker->GetChanged());
    CHECK(names == Names({"tenure", "wage", "educ"}));

    driver.MoveOut(0, {2});
    CHECK(picker->GetRhsVars() == Names({"tenure", "wage"}));
    CHECK(driver.controls.Left()->GetStrings() == Names({"age", "educ"}));

    // What the getter gives for none goes back in as none.
    picker->SetSelection(0);
    auto none = picker->GetRhsVars();
    picker->SetVariables(1, none);
    CHECK(driver.controls.Role(0)->IsEmpty());
    CHECK(driver.controls.Left()->GetCount() == 4);
}

TEST_CASE("single variable picker: RedrawLhsVarList leaves out what is chosen, and the first name")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    auto* const picker = Make(stage, datasets);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {1, 3});
    auto names = Names({"hidden", "fx", "m2", "cpi", "gdp", "new"});
    picker->RedrawLhsVarList(names);
    CHECK(driver.controls.Left()->GetStrings() == Names({"fx", "gdp", "new"}));
    CHECK(names.size() == 6);
    CHECK(picker->GetRhsVars() == Names({"cpi", "m2"}));
}

TEST_CASE("single variable picker: a random walk agrees with a model of it")
{
    Stage stage;
    DatasetMap datasets = TwoDatasets();
    datasets["x"] = MakeDataset(Wide(HostileNames()));
    auto* const picker = Make(stage, datasets);
    std::vector<wxArrayString> shown;
    for (auto const& entry : datasets)
        shown.push_back(ShownNames(*entry.second));
    Walk<VariablePickerSingle>(
        picker, SUBJECT, shown,
        [&](std::mt19937& random, RoleModel& model)
        {
            model.Pick(static_cast<int>(random() % shown.size()));
            if (random() % 2 == 0)
                return picker->SetSelection(model.picked);
            NameVector some;
            for (int const index : SomeOf(static_cast<unsigned>(model.left.names.size()), random))
                some.push_back(model.left.names[static_cast<std::size_t>(index)]);
            std::shuffle(some.begin(), some.end(), random);
            if (some == NameVector{""})
                some.clear(); // One empty name is no choice.
            model.Restore(0, some);
            auto names = ArrayOf(some);
            picker->SetVariables(model.picked, names);
        });
}

TEST_CASE("single variable picker: names that no one should give")
{
    Stage stage;
    DatasetMap datasets{{"", MakeDataset(Names({"none"}))},
                        {"\xff\xfe", MakeDataset(Names({"unseen"}))},
                        {"donn\xc3\xa9" "es", MakeDataset(Wide(HostileNames()))}};
    auto* const picker = Make(stage, datasets);
    Driver<VariablePickerSingle> driver(picker, SUBJECT.handlers);
    CHECK(picker->GetDatasetName().empty());
    CHECK(driver.controls.Left()->GetStrings() == Names({"none"}));
    CHECK(driver.controls.choice->GetStrings() == Names({"", "données", ""}));

    picker->SetSelection(1);
    CHECK(picker->GetDatasetName() == "donn\xc3\xa9" "es");
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"a", "A", "a", "", "données", "日本", "", "a", "a_1", "x && y"}));
    driver.MoveIn(0, {1, 2, 3, 5});
    CHECK(picker->GetRhsVars() == Names({"A", "a", "", "日本"}));
    CHECK(driver.controls.Left()->GetStrings() == Names({"a", "données", "", "a", "a_1", "x && y"}));
    driver.MoveOut(0, {0, 3});
    CHECK(picker->GetRhsVars() == Names({"a", ""}));
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"A", "a", "données", "日本", "", "a", "a_1", "x && y"}));
    // The key without a wide form reads as the empty one, so its variables can't be reached.
    picker->SetSelection(2);
    CHECK(picker->GetDatasetName().empty());
    CHECK(driver.controls.Left()->GetStrings() == Names({"none"}));
}

TEST_CASE("single variable picker: ten thousand variables go right and come back")
{
    Stage stage;
    DatasetMap datasets{{"wide", MakeDataset(Wide(ManyNames()))}};
    TenThousand(stage, Make(stage, datasets), SUBJECT);
}
