#include "modelspec/VariablePickerMark.h"

#include "modelspec/RoleLayout.h"
#include "modelspec/RoleModel.h"
#include "pickers/ChoicePickerChecks.h"

using namespace role_checks;

namespace
{
enum
{
    TIME,
    GROUP
};

Driver<VariablePickerMark> Drive(VariablePickerMark* picker)
{
    return {picker,
            {&VariablePickerMark::OnAllVarSelected,
             {&VariablePickerMark::OnTimeVarSelected, &VariablePickerMark::OnGroupVarSelected},
             {&VariablePickerMark::OnUpperButton, &VariablePickerMark::OnLowerButton},
             &VariablePickerMark::OnDatasetChanged}};
}

wxChoice* FormatChoice(wxWindow const* picker) { return Find<wxChoice>(picker, 1); }
} // namespace

TEST_CASE("mark picker: the roles with the format between them")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    Controls const controls(picker);
    auto* const left = controls.Left();
    auto* const below = BelowRow(picker);
    CHECK(PlacementOf(below) == Placement{1, wxEXPAND | wxALL, 0});
    auto* const main = CheckGrid(below->GetSizer(), 1, 2, {}, {{1, 10}});
    REQUIRE(main->GetItemCount() == 2);
    CheckColumn(Item(main, 0), left, {"Variables in Dataset", wxSize(180, 220)});

    CHECK(PlacementOf(Item(main, 1)) == Placement{1, wxEXPAND, 5});
    auto* const right = CheckGrid(Item(main, 1)->GetSizer(), 7, 2, {{6, 10}}, {{0, 10}});
    REQUIRE(right->GetItemCount() == 14);
    wxSize const one(180, RowHeight(left));
    CheckGap(Item(right, 0));
    CheckCaption(Item(right, 1), "Time Variable");
    CheckButton(Item(right, 2), controls.Button(TIME), left);
    CheckList(Item(right, 3), controls.Role(TIME), one, wxLB_SINGLE | wxHSCROLL);
    CheckGap(Item(right, 4));
    CheckCaption(Item(right, 5), "Time-Series Format");
    CheckGap(Item(right, 6));
    CHECK(Item(right, 7)->GetWindow() == FormatChoice(picker));
    CHECK(PlacementOf(Item(right, 7)) == Placement{0, wxEXPAND | wxALL, 5});
    CheckGap(Item(right, 8));
    CheckCaption(Item(right, 9), "Group Id Variable");
    CheckButton(Item(right, 10), controls.Button(GROUP), left);
    CheckList(Item(right, 11), controls.Role(GROUP), one, wxLB_SINGLE | wxHSCROLL);
    CheckGap(Item(right, 12));
    CheckGap(Item(right, 13));
}

TEST_CASE("mark picker: the formats line up in a monospaced face")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto* const format = FormatChoice(picker);
    CHECK(format->GetStrings()
          == Names({"\"index\"      (integer values)", "\"yyyyqx\"     (quarterly data)",
                    "\"yyyymxx\"    (monthly data)", "\"yyyy/mm/dd\" (daily data)"}));
    CHECK(format->GetSelection() == 0);
    CHECK(picker->GetTSFormat() == 0);
    CHECK(format->GetId() < 0);
    CHECK(format->GetFont().GetPointSize() == 10);
    CHECK(format->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(format->GetFont().GetWeight() == wxFONTWEIGHT_NORMAL);
    CHECK(format->GetFont().GetStyle() == wxFONTSTYLE_NORMAL);
}

TEST_CASE("mark picker: offers the first dataset's variables, and no structure")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    Controls const controls(picker);
    CHECK(picker->GetDatasetName() == "macro");
    CHECK(controls.choice->GetStrings() == Names({"macro", "wages"}));
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(!picker->GetChanged());
}

TEST_CASE("mark picker: without datasets it is empty, and everything may be called")
{
    Stage stage;
    DatasetMap datasets;
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    auto driver = Drive(picker);
    Click(driver.controls.Button(TIME));
    CHECK(picker->GetChanged());
    for (std::size_t const role : {TIME, GROUP})
    {
        driver.SelectRole(role, {});
        driver.Press(role);
    }
    driver.PickSource(0);
    for (int const index : {0, 1, -1})
        picker->SetDataset(index);
    wxArrayString none;
    picker->RedrawLhsVarList(none);
    CHECK(driver.controls.choice->IsEmpty());
    CHECK(driver.controls.Left()->IsEmpty());
    CHECK(picker->GetDatasetName().empty());
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(picker->GetTSFormat() == 0);
}

TEST_CASE("mark picker: each role takes the first selected variable, and only when it is empty")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    auto* const left = driver.controls.Left();

    driver.MoveIn(TIME, {1, 3, 4});
    CHECK(picker->GetTimeVar() == "cpi");
    CHECK(left->GetStrings() == Names({"gdp", "rate", "m2", "fx"}));
    CHECK(Selected(left) == std::vector<int>{2, 3});
    driver.Press(TIME);
    CHECK(picker->GetTimeVar() == "cpi");
    CHECK(left->GetCount() == 4);
    // What has gone can't be the other variable as well.
    driver.Press(GROUP);
    CHECK(picker->GetGroupVar() == "m2");
    CHECK(left->GetStrings() == Names({"gdp", "rate", "fx"}));

    driver.MoveOut(GROUP, {0});
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(picker->GetTimeVar() == "cpi");
    CHECK(left->GetStrings() == Names({"gdp", "rate", "m2", "fx"}));
    driver.MoveOut(TIME, {0});
    CHECK(left->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(picker->GetTimeVar() == wxEmptyString);
}

TEST_CASE("mark picker: a press with nothing selected counts as a change and moves nothing")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    for (std::size_t const role : {TIME, GROUP})
    {
        picker->SetChanged(false);
        driver.Press(role);
        CHECK(picker->GetChanged());
        driver.SelectRole(role, {});
        CHECK(driver.controls.Button(role)->GetLabel() == "<<");
        picker->SetChanged(false);
        driver.Press(role);
        CHECK(picker->GetChanged());
        CHECK(driver.controls.Left()->GetCount() == 5);
        CHECK(driver.controls.Role(role)->IsEmpty());
    }
}

TEST_CASE("mark picker: the left list turns the button of an empty role only")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    Controls const controls(picker);
    auto* const time = controls.Role(TIME);

    ClickEntry(controls.Left(), 0);
    Click(controls.Button(TIME));
    CHECK(picker->GetTimeVar() == "gdp");
    ClickEntry(time, 0);
    CHECK(controls.Button(TIME)->GetLabel() == "<<");
    CHECK(controls.Button(GROUP)->GetLabel() == ">>");
    ClickEntry(controls.Left(), 1);
    CHECK(controls.Button(TIME)->GetLabel() == "<<");
    CHECK(Selected(time).empty());
    // The press finds nothing selected; the role's own entry must be clicked first.
    Click(controls.Button(TIME));
    CHECK(picker->GetTimeVar() == "gdp");
    CHECK(Selected(controls.Left()) == std::vector<int>{1});
    ClickEntry(time, 0);
    Click(controls.Button(TIME));
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(controls.Button(TIME)->GetLabel() == "<<");

    // Empty now, it turns.
    ClickEntry(controls.Left(), 2);
    CHECK(controls.Button(TIME)->GetLabel() == ">>");
    CHECK(Selected(controls.Left()) == std::vector<int>{2});
}

TEST_CASE("mark picker: real clicks with Shift and Ctrl")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    Controls const controls(picker);
    auto* const left = controls.Left();
    Click(controls.Button(GROUP));
    CHECK(picker->GetChanged());
    CHECK(picker->GetGroupVar() == wxEmptyString);

    ClickEntry(left, 1);
    ClickEntry(left, 4, WXK_SHIFT);
    ClickEntry(left, 2, WXK_CONTROL);
    CHECK(Selected(left) == std::vector<int>{1, 3, 4});
    Click(controls.Button(TIME));
    CHECK(picker->GetTimeVar() == "cpi");
    CHECK(Selected(left) == std::vector<int>{2, 3});
    Click(controls.Button(GROUP));
    CHECK(picker->GetGroupVar() == "m2");
    CHECK(left->GetStrings() == Names({"gdp", "rate", "fx"}));
    CHECK(Selected(left) == std::vector<int>{2});
    CHECK(Selected(controls.Role(TIME)).empty());
    Keep(Photograph(stage.Frame()), "VariablePickerMark");

    // A role's list lets go of the left one, and of nothing else.
    ClickEntry(controls.Role(TIME), 0);
    ClickEntry(controls.Role(GROUP), 0);
    CHECK(Selected(left).empty());
    CHECK(Selected(controls.Role(TIME)) == std::vector<int>{0});
    Click(controls.Button(TIME));
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(picker->GetGroupVar() == "m2");
    CHECK(left->GetStrings() == Names({"gdp", "cpi", "rate", "fx"}));
    CHECK(Selected(controls.Role(GROUP)) == std::vector<int>{0});
}

TEST_CASE("mark picker: the keyboard alone, from top to bottom")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    Controls const controls(picker);
    controls.choice->SetFocus();
    Press(WXK_TAB);
    REQUIRE(controls.Left()->HasFocus());
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    Press(WXK_TAB);
    REQUIRE(controls.Button(TIME)->HasFocus());
    Press(WXK_SPACE);
    CHECK(picker->GetTimeVar() == "cpi");
    Press(WXK_TAB);
    REQUIRE(controls.Button(GROUP)->HasFocus());
    Press(WXK_TAB);
    REQUIRE(controls.Role(TIME)->HasFocus());
    Press(WXK_TAB);
    // The toolkit does not say that a drop-down list has the keyboard, but its keys tell.
    Press(WXK_SPACE);
    Pump(150);
    Press(WXK_DOWN);
    Press(WXK_RETURN);
    Pump(150);
    CHECK(picker->GetTSFormat() == 1);
    Press(WXK_TAB);
    REQUIRE(controls.Role(GROUP)->HasFocus());

    Press(WXK_TAB, wxMOD_SHIFT);
    Press(WXK_TAB, wxMOD_SHIFT);
    REQUIRE(controls.Role(TIME)->HasFocus());
    Press(WXK_HOME);
    CHECK(controls.Button(TIME)->GetLabel() == "<<");
    Press(WXK_TAB, wxMOD_SHIFT);
    Press(WXK_TAB, wxMOD_SHIFT);
    Press(WXK_SPACE);
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
}

TEST_CASE("mark picker: the format outlives a change of dataset and is no change")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    auto driver = Drive(picker);
    picker_checks::Pick(FormatChoice(picker), 2);
    CHECK(picker->GetTSFormat() == 2);
    CHECK(!picker->GetChanged());
    CHECK(picker->GetDatasetName() == "macro");

    driver.MoveIn(TIME, {0});
    driver.MoveIn(GROUP, {0});
    driver.SelectRole(GROUP, {0});
    picker->SetChanged(false);
    picker_checks::Pick(driver.controls.choice, 1);
    CHECK(picker->GetDatasetName() == "wages");
    CHECK(picker->GetTSFormat() == 2);
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(driver.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    CHECK(driver.controls.Button(TIME)->GetLabel() == ">>");
    CHECK(driver.controls.Button(GROUP)->GetLabel() == "<<");
    CHECK(!picker->GetChanged());
}

TEST_CASE("mark picker: the shown dataset picked again loses nothing; SetDataset empties, and is followed")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    stage.Fill(picker);
    auto driver = Drive(picker);
    driver.MoveIn(TIME, {0});
    driver.MoveIn(GROUP, {0});
    picker->SetChanged(false);
    picker_checks::Pick(driver.controls.choice, 0);
    CHECK(picker->GetTimeVar() == "gdp");
    CHECK(picker->GetGroupVar() == "cpi");

    picker->SetDataset(0);
    CHECK(picker->GetTimeVar() == wxEmptyString);
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(driver.controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(!picker->GetChanged());
    picker->SetDataset(1);
    CHECK(picker->GetDatasetName() == "wages");
    picker_checks::Pick(driver.controls.choice, 0);
    CHECK(driver.controls.Left()->GetCount() == 5);
    for (int const outside : {2, -1, -2})
    {
        picker->SetDataset(outside);
        CHECK(picker->GetDatasetName().empty());
        CHECK(driver.controls.Left()->IsEmpty());
    }
}

TEST_CASE("mark picker: RedrawLhsVarList leaves out both variables, and the first name")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    driver.MoveIn(TIME, {1});
    driver.MoveIn(GROUP, {2});
    auto names = Names({"hidden", "fx", "m2", "cpi", "gdp", "new"});
    picker->RedrawLhsVarList(names);
    CHECK(driver.controls.Left()->GetStrings() == Names({"fx", "gdp", "new"}));
    CHECK(names.size() == 6);
}

TEST_CASE("mark picker: a random walk agrees with a model of it")
{
    Stage stage;
    auto datasets = TwoDatasets();
    datasets["x"] = MakeDataset(Names({"a", "A", "a", "", "données", "日本", "", "a"}));
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    RoleModel model;
    for (auto const& entry : datasets)
        model.shown.push_back(ShownNames(*entry.second));
    model.roles.resize(2);
    model.roles[TIME].single = model.roles[GROUP].single = true;
    model.keepsDirection = true;
    int format = 0;
    WalkWithModel<VariablePickerMark>(
        driver, model,
        [&](std::mt19937& random, RoleModel& now)
        {
            now.Pick(static_cast<int>(random() % now.shown.size()));
            picker->SetDataset(now.picked);
            format = static_cast<int>(random() % 4);
            FormatChoice(picker)->SetSelection(format);
        },
        [&](RoleModel const& now)
        {
            auto const only = [&](std::size_t role)
            { return now.roles[role].names.empty() ? wxString() : now.roles[role].names[0]; };
            REQUIRE(picker->GetTimeVar() == only(TIME));
            REQUIRE(picker->GetGroupVar() == only(GROUP));
            REQUIRE(picker->GetTSFormat() == format);
        });
}

TEST_CASE("mark picker: names that no one should give, and a dataset without variables")
{
    Stage stage;
    DatasetMap datasets{{"\xff\xfe", MakeDataset(Names({"shown all the same"}))},
                        {"donn\xc3\xa9" "es", MakeDataset(Names({"a", "A", "a", "", "日本"}))},
                        {"bare", MakeDataset({})}};
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    CHECK(driver.controls.choice->GetStrings() == Names({"bare", "données", ""}));
    CHECK(driver.controls.Left()->IsEmpty());
    picker->SetDataset(1);
    driver.MoveIn(TIME, {1});
    driver.MoveIn(GROUP, {2});
    CHECK(picker->GetTimeVar() == "A");
    CHECK(driver.controls.Role(GROUP)->GetCount() == 1);
    CHECK(picker->GetGroupVar() == wxEmptyString);
    CHECK(driver.controls.Left()->GetStrings() == Names({"a", "a", "日本"}));
    driver.MoveOut(TIME, {0});
    CHECK(driver.controls.Left()->GetStrings() == Names({"a", "A", "a", "日本"}));
    picker->SetDataset(2);
    CHECK(picker->GetDatasetName().empty());
    CHECK(driver.controls.Left()->GetStrings() == Names({"shown all the same"}));
}

TEST_CASE("mark picker: the last of ten thousand variables")
{
    Stage stage;
    wxArrayString names;
    for (int i = 0; i < 10000; ++i)
        names.Add(wxString::Format("name_%d", i));
    DatasetMap datasets{{"wide", MakeDataset(names)}};
    auto* const picker = new VariablePickerMark(stage.Frame(), &datasets);
    auto driver = Drive(picker);
    driver.MoveIn(TIME, {9999});
    CHECK(picker->GetTimeVar() == "name_9999");
    CHECK(driver.controls.Left()->GetCount() == 9999);
    driver.MoveOut(TIME, {0});
    CHECK(driver.controls.Left()->GetStrings() == names);
}
