#include "pickers/ModelPickerPMP.h"

#include "pickers/ListPairChecks.h"

using namespace pair_checks;

namespace
{
Subject<ModelPickerPMP> const SUBJECT{{&ModelPickerPMP::OnLhsModelsSelected,
                                       {&ModelPickerPMP::OnRhsModelsSelected},
                                       {&ModelPickerPMP::OnMoveButton}},
                                      &ModelPickerPMP::GetRhsModels,
                                      true};

ModelPickerPMP* Make(Stage const& stage,
                     std::vector<std::string> const& models = {"gdp", "cpi", "rate", "m2", "fx"})
{
    auto* const picker = new ModelPickerPMP(stage.Frame(), models);
    picker->SetName("ModelPickerPMP");
    return picker;
}
} // namespace

TEST_CASE("PMP model picker: two columns, and one between them in which the button stands")
{
    Stage stage;
    auto* const picker = Make(stage);
    CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0);
    Controls const controls(picker);
    CHECK(!controls.choice);
    auto* const grid = CheckButtonColumn(picker->GetSizer(), picker, 100, 18);
    CheckColumn(Item(grid, 0), controls.Left(), {"Stored models (with log-ML)", wxSize(200, -1)});
    CheckColumn(Item(grid, 2), controls.Role(0), {"Models to Compare", wxSize(200, 192)});
}

TEST_CASE("PMP model picker: offers all models from the first on")
{
    Stage stage;
    auto* const picker = Make(stage);
    Controls const controls(picker);
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(controls.Role(0)->IsEmpty());
    CHECK(picker->GetRhsModels() == Names({""}));
    CHECK(!picker->GetChanged());
}

TEST_CASE("PMP model picker: without models it is empty")
{
    Stage stage;
    auto* const picker = Make(stage, {});
    stage.Fill(picker);
    Driver<ModelPickerPMP> driver(picker, SUBJECT.handlers);
    Click(driver.controls.Button(0));
    CHECK(picker->GetChanged());
    driver.SelectRole(0, {});
    driver.Press(0);
    CHECK(driver.controls.Left()->IsEmpty());
    CHECK(picker->GetRhsModels() == Names({""}));
}

TEST_CASE("PMP model picker: a model that comes back goes to the end")
{
    Stage stage;
    MovesBothWays(Make(stage), SUBJECT);
}

TEST_CASE("PMP model picker: presses that move nothing count as a change")
{
    Stage stage;
    PressesThatMoveNothing(Make(stage), SUBJECT);
}

TEST_CASE("PMP model picker: real clicks with Shift and Ctrl")
{
    Stage stage;
    RealClicks(stage, Make(stage), SUBJECT);
}

TEST_CASE("PMP model picker: the keyboard alone")
{
    Stage stage;
    KeyboardAlone(stage, Make(stage), SUBJECT);
}

TEST_CASE("PMP model picker: a random walk agrees with a model of it")
{
    Stage stage;
    auto names = HostileNames();
    names.insert(names.end(), {"linear", "probit", "tobit"});
    Walk<ModelPickerPMP>(Make(stage, names), SUBJECT, {Wide(names)});
}

TEST_CASE("PMP model picker: names that no one should give")
{
    Stage stage;
    auto names = HostileNames();
    names.push_back("\xff\xfe");
    auto* const picker = Make(stage, names);
    Driver<ModelPickerPMP> driver(picker, SUBJECT.handlers);
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"a", "A", "a", "", "données", "日本", "", "a", "a_1", "x && y", ""}));
    driver.MoveIn(0, {2, 4, 10});
    CHECK(picker->GetRhsModels() == Names({"a", "données", ""}));
    driver.MoveOut(0, {0, 1});
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"a", "A", "", "日本", "", "a", "a_1", "x && y", "a", "données"}));
}

TEST_CASE("PMP model picker: ten thousand models go right and come back")
{
    Stage stage;
    TenThousand(stage, Make(stage, ManyNames()), SUBJECT);
}
