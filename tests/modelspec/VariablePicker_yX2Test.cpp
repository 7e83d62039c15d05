#include "modelspec/VariablePicker_yX2.h"

#include "modelspec/VariablePickerChecks.h"

using namespace variable_picker_checks;

namespace
{
using Picker = VariablePicker_yX2;

enum
{
    DEP,
    IND
};

Member<Picker> const MEMBER{
    "VariablePicker_yX2",
    [](wxWindow* parent, DatasetMap* datasets) { return new Picker(parent, datasets, LIST_HEIGHT); },
    {&Picker::OnAllVarSelected,
     {&Picker::OnDepVarSelected, &Picker::OnIndVarSelected},
     {&Picker::OnUpperButton, &Picker::OnLowerButton},
     &Picker::OnDatasetChanged},
    "Variables in Dataset",
    2,
    {{"Dependent Variable", true, "cpi", "cpi", OneDependent<Picker>},
     {"Independent Variables", false, "m2", "m2", std::mem_fn(&Picker::GetIndVar)}},
    Names({"gdp", "rate_1", "rate_2", "fx"})};
} // namespace

TEST_CASE("variable picker yX2: does what the whole family does")
{
    Family(MEMBER);
}

TEST_CASE("variable picker yX2: the upper list takes one variable and refuses the next")
{
    RealClicksIntoSingle(MEMBER);
}

TEST_CASE("variable picker yX2: the lower list takes all that is selected and gives some back")
{
    RealClicksInList(MEMBER, IND);
}

TEST_CASE("variable picker yX2: variables come back to their own places")
{
    Set<Picker> set(MEMBER);
    set.driver.MoveIn(IND, {4});
    set.driver.MoveIn(IND, {1});
    set.driver.MoveIn(IND, {2, 3});
    CHECK(set.picker->GetIndVar() == Names({"rate_2", "cpi", "m2", "fx"}));
    CHECK(set.Free() == Names({"gdp", "rate_1"}));
    set.driver.MoveOut(IND, {1, 2});
    CHECK(set.picker->GetIndVar() == Names({"rate_2", "fx"}));
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2"}));

    set.driver.MoveIn(DEP, {0, 1, 2});
    CHECK(set.picker->GetDepVar() == "gdp");
    CHECK(Selected(set.Left()) == std::vector<int>{0, 1});
    set.driver.Press(DEP);
    CHECK(set.picker->GetDepVar() == "gdp");
    CHECK(set.Free() == Names({"cpi", "rate_1", "m2"}));
    set.driver.Press(IND);
    CHECK(set.picker->GetIndVar() == Names({"rate_2", "fx", "cpi", "rate_1"}));
}

TEST_CASE("variable picker yX2: a random walk loses nothing and invents nothing")
{
    Walk<Picker>(MEMBER, Datasets(), EachInOnePlace<Picker>);
}

TEST_CASE("variable picker yX2: a random walk among hostile names")
{
    Walk<Picker>(MEMBER, HostileDatasets(), EachInOnePlace<Picker>);
}
