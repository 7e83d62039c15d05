#include "pickers/DrawsPicker.h"

#include "pickers/ListPairChecks.h"

using namespace pair_checks;

namespace
{
Subject<DrawsPicker> const SUBJECT{{&DrawsPicker::OnLhsVarSelected,
                                    {&DrawsPicker::OnRhsVarSelected},
                                    {&DrawsPicker::OnMoveButton},
                                    &DrawsPicker::OnModelChanged},
                                   &DrawsPicker::GetRhsVars};

std::shared_ptr<Model> MakeModel(std::vector<std::string> const& names)
{
    auto model = std::make_shared<Model>();
    model->drawNames = names;
    return model;
}

/// "linear" with gdp, cpi, rate, m2, fx, "none" without draws and "probit" with beta1, beta2.
ModelMap ThreeModels()
{
    return {{"linear", MakeModel({"gdp", "cpi", "rate", "m2", "fx"})},
            {"none", MakeModel({})},
            {"probit", MakeModel({"beta1", "beta2"})}};
}

DrawsPicker* Make(Stage const& stage, ModelMap& models)
{
    auto* const picker = new DrawsPicker(stage.Frame(), &models, 235, 18, "Draws to Plot");
    picker->SetName("DrawsPicker");
    return picker;
}
} // namespace

TEST_CASE("draws picker: two columns, and one between them in which the button stands")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    Controls const controls(picker);
    auto* const below = BelowRow(picker);
    CHECK(PlacementOf(below) == Placement{0, wxEXPAND | wxALL, 0});
    auto* const grid = CheckButtonColumn(below->GetSizer(), picker, 1, 18);
    CheckColumn(Item(grid, 0), controls.Left(), {"Draws in model", wxSize(180, -1)});
    CheckColumn(Item(grid, 2), controls.Role(0), {"Draws to Plot", wxSize(180, 235), 4, {{3, 20}}});
}

TEST_CASE("draws picker: more room below pushes the button up")
{
    Stage stage;
    auto models = ThreeModels();
    auto const top = [&](int below)
    {
        auto* const picker = new DrawsPicker(stage.Frame(), &models, 300, below, "Draws");
        return Controls(picker).Button(0)->GetPosition().y;
    };
    int const even = top(20);
    int const high = top(60);
    int const low = top(0);
    CHECK(high < even);
    CHECK(even < low);
    // Above the button are 20 parts of the room: all of it, a half, a quarter.
    CHECK(std::abs(3 * (low - even) - 2 * (low - high)) <= 6);
}

TEST_CASE("draws picker: offers the first model's draws from the first on")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    Controls const controls(picker);
    CHECK(controls.choice->GetStrings() == Names({"linear", "none", "probit"}));
    CHECK(picker->GetModelName() == "linear");
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(picker->GetRhsVars() == Names({""}));
    CHECK(!picker->GetChanged());
}

TEST_CASE("draws picker: without models it is empty, and everything may be called")
{
    Stage stage;
    ModelMap models;
    auto* const picker = Make(stage, models);
    stage.Fill(picker);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    Click(driver.controls.Button(0));
    CHECK(picker->GetChanged());
    driver.SelectRole(0, {});
    driver.Press(0);
    driver.PickSource(0);
    for (int const index : {0, 1, -1})
        picker->SetSelection(index);
    wxArrayString none;
    picker->RedrawLhsList(none);
    CHECK(driver.controls.choice->IsEmpty());
    CHECK(driver.controls.Left()->IsEmpty());
    CHECK(driver.controls.Role(0)->IsEmpty());
    CHECK(picker->GetModelName().empty());
    CHECK(picker->GetRhsVars() == Names({""}));
}

TEST_CASE("draws picker: draws come back to their own place")
{
    Stage stage;
    auto models = ThreeModels();
    MovesBothWays(Make(stage, models), SUBJECT);
}

TEST_CASE("draws picker: presses that move nothing count as a change")
{
    Stage stage;
    auto models = ThreeModels();
    PressesThatMoveNothing(Make(stage, models), SUBJECT);
}

TEST_CASE("draws picker: real clicks with Shift and Ctrl")
{
    Stage stage;
    auto models = ThreeModels();
    RealClicks(stage, Make(stage, models), SUBJECT);
}

TEST_CASE("draws picker: the keyboard alone")
{
    Stage stage;
    auto models = ThreeModels();
    KeyboardAlone(stage, Make(stage, models), SUBJECT);
}

TEST_CASE("draws picker: another model empties the right list and leaves label and flag")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {0, 1});
    driver.SelectRole(0, {0});
    picker->SetChanged(false);
    driver.PickSource(2);
    CHECK(driver.controls.Left()->GetStrings() == Names({"beta1", "beta2"}));
    CHECK(driver.controls.Role(0)->IsEmpty());
    CHECK(driver.controls.Button(0)->GetLabel() == "<<");
    CHECK(!picker->GetChanged());
    driver.PickSource(1);
    CHECK(picker->GetModelName() == "none");
    CHECK(driver.controls.Left()->IsEmpty());
    driver.Press(0);
    CHECK(driver.controls.Left()->IsEmpty());
}

TEST_CASE("draws picker: the shown model picked again loses nothing, another is not told on")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    stage.Fill(picker);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    auto* const choice = driver.controls.choice;
    int atFrame = 0;
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++atFrame; });
    driver.MoveIn(0, {1});

    picker_checks::Pick(choice, 0);
    CHECK(picker->GetRhsVars() == Names({"cpi"}));
    picker_checks::Pick(choice, 2);
    CHECK(picker->GetModelName() == "probit");
    CHECK(driver.controls.Left()->GetStrings() == Names({"beta1", "beta2"}));
    CHECK(picker->GetRhsVars() == Names({""}));
    picker->SetSelection(0);
    CHECK(driver.controls.Left()->GetCount() == 5);
    picker_checks::Pick(choice, 2);
    CHECK(driver.controls.Left()->GetStrings() == Names({"beta1", "beta2"}));
    CHECK(atFrame == 0);
}

TEST_CASE("draws picker: SetSelection empties the right list even for the model shown")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {0, 4});
    picker->SetChanged(false);
    picker->SetSelection(0);
    CHECK(picker->GetRhsVars() == Names({""}));
    CHECK(driver.controls.Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    CHECK(!picker->GetChanged());
    for (int const outside : {3, -1, -2})
    {
        picker->SetSelection(outside);
        CHECK(picker->GetModelName().empty());
        CHECK(driver.controls.Left()->IsEmpty());
    }
}

TEST_CASE("draws picker: RedrawLhsList leaves out what is chosen and shows the first name")
{
    Stage stage;
    auto models = ThreeModels();
    auto* const picker = Make(stage, models);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    driver.MoveIn(0, {1, 3});
    auto names = Names({"first", "fx", "m2", "cpi", "new"});
    picker->RedrawLhsList(names);
    CHECK(driver.controls.Left()->GetStrings() == Names({"first", "fx", "new"}));
    CHECK(names.size() == 5);
}

TEST_CASE("draws picker: a random walk agrees with a model of it")
{
    Stage stage;
    auto models = ThreeModels();
    models["x"] = MakeModel(HostileNames());
    auto* const picker = Make(stage, models);
    std::vector<wxArrayString> shown;
    for (auto const& entry : models)
        shown.push_back(Wide(entry.second->drawNames));
    Walk<DrawsPicker>(picker, SUBJECT, shown,
                      [&](std::mt19937& random, RoleModel& model)
                      {
                          model.Pick(static_cast<int>(random() % shown.size()));
                          picker->SetSelection(model.picked);
                      });
}

TEST_CASE("draws picker: names that no one should give")
{
    Stage stage;
    auto names = HostileNames();
    names.push_back("\xff\xfe");
    ModelMap models{{"\xff", MakeModel({"unseen"})}, {"mod\xc3\xa8" "le", MakeModel(names)}};
    auto* const picker = Make(stage, models);
    Driver<DrawsPicker> driver(picker, SUBJECT.handlers);
    CHECK(driver.controls.choice->GetStrings() == Names({"modèle", ""}));
    CHECK(picker->GetModelName() == "mod\xc3\xa8" "le");
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"a", "A", "a", "", "données", "日本", "", "a", "a_1", "x && y", ""}));
    driver.MoveIn(0, {0, 4, 10});
    CHECK(picker->GetRhsVars() == Names({"a", "données", ""}));
    CHECK(driver.controls.Left()->GetStrings()
          == Names({"A", "a", "", "日本", "", "a", "a_1", "x && y"}));
    driver.MoveOut(0, {0, 1, 2});
    CHECK(driver.controls.Left()->GetCount() == 11);

    // A model whose key has no wide form can't be looked up.
    picker->SetSelection(1);
    CHECK(picker->GetModelName().empty());
    CHECK(driver.controls.Left()->IsEmpty());
}

TEST_CASE("draws picker: ten thousand draws go right and come back")
{
    Stage stage;
    ModelMap models{{"large", MakeModel(ManyNames())}};
    TenThousand(stage, Make(stage, models), SUBJECT);
}
