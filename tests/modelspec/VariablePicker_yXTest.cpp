#include "modelspec/VariablePicker_yX.h"

#include "modelspec/RoleChecks.h"

using namespace role_checks;

namespace
{
enum
{
    DEP,
    IND
};

Driver<VariablePicker_yX> Drive(VariablePicker_yX* picker)
{
    return {picker,
            {&VariablePicker_yX::OnAllVarSelected,
             {&VariablePicker_yX::OnDepVarSelected, &VariablePicker_yX::OnIndVarSelected},
             {&VariablePicker_yX::OnUpperButton, &VariablePicker_yX::OnLowerButton},
             &VariablePicker_yX::OnDatasetChanged}};
}
} // namespace

TEST_CASE("variable picker yX: real clicks move variables, and what stays selected stays selected")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePicker_yX(stage.Frame(), &datasets, 200);
    stage.Fill(picker);
    Controls const controls(picker);

    ClickEntry(controls.Left(), 1);
    ClickEntry(controls.Left(), 3, WXK_SHIFT);
    CHECK(Selected(controls.Left()) == std::vector<int>{1, 2, 3});
    Click(controls.Button(DEP));
    CHECK(picker->GetDepVar() == "cpi");
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "rate", "m2", "fx"}));
    CHECK(Selected(controls.Left()) == std::vector<int>{1, 2});

    Click(controls.Button(IND));
    CHECK(picker->GetIndVar() == Names({"rate", "m2"}));
    CHECK(controls.Left()->GetStrings() == Names({"gdp", "fx"}));
    CHECK(Selected(controls.Left()).empty());
    Keep(Photograph(stage.Frame()), "VariablePicker_yX");
}

TEST_CASE("variable picker yX: a random walk loses nothing and invents nothing")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePicker_yX(stage.Frame(), &datasets, 200);
    auto driver = Drive(picker);
    RandomWalk(driver,
               [&]
               {
                   auto const all = ShownNames(*datasets.at(picker->GetDatasetName()));
                   auto held = Bag(driver.controls.Left()->GetStrings());
                   held.merge(Bag(driver.controls.Role(DEP)->GetStrings()));
                   held.merge(Bag(driver.controls.Role(IND)->GetStrings()));
                   REQUIRE(held == Bag(all));
                   REQUIRE(InOrderOf(driver.controls.Left()->GetStrings(), all));
               });
}
