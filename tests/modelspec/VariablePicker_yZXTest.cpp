#include "modelspec/VariablePicker_yZX.h"

#include "modelspec/VariablePickerChecks.h"

using namespace variable_picker_checks;

namespace
{
using Picker = VariablePicker_yZX;

enum
{
    DEP,
    IND_Z,
    IND_X
};

Member<Picker> const MEMBER{
    "VariablePicker_yZX",
    [](wxWindow* parent, DatasetMap* datasets)
    { return new Picker(parent, datasets, LIST_HEIGHT, "First list", "Second list"); },
    {&Picker::OnAllVarSelected,
     {&Picker::OnDepVarSelected, &Picker::OnIndVarZSelected, &Picker::OnIndVarXSelected},
     {&Picker::OnUpperButton, &Picker::OnLowerButton1, &Picker::OnLowerButton2},
     &Picker::OnDatasetChanged},
    "Variables",
    3,
    {{"Dependent Variable", true, "cpi", "cpi", OneDependent<Picker>},
     {"First list", false, "rate_1", "rate_1", std::mem_fn(&Picker::GetIndVarZ)},
     {"Second list", false, "m2", "m2", std::mem_fn(&Picker::GetIndVarX)}},
    Names({"gdp", "rate_2", "fx"})};
} // namespace

TEST_CASE("variable picker yZX: does what the whole family does")
{
    Family(MEMBER);
}

TEST_CASE("variable picker yZX: the upper list takes one variable and refuses the next")
{
    RealClicksIntoSingle(MEMBER);
}

TEST_CASE("variable picker yZX: both lower lists take all that is selected and give some back")
{
    SECTION("Z") { RealClicksInList(MEMBER, IND_Z); }
    SECTION("X") { RealClicksInList(MEMBER, IND_X); }
}

TEST_CASE("variable picker yZX: a variable stands in one list only")
{
    Set<Picker> set(MEMBER);
    set.driver.MoveIn(IND_X, {0, 2});
    set.driver.MoveIn(IND_Z, {0, 1, 2});
    set.driver.MoveIn(DEP, {0});
    CHECK(set.picker->GetDepVar() == "fx");
    CHECK(set.picker->GetIndVarZ() == Names({"cpi", "m2", "rate_2"}));
    CHECK(set.picker->GetIndVarX() == Names({"gdp", "rate_1"}));
    CHECK(set.Left()->IsEmpty());
    set.driver.MoveOut(IND_Z, {0, 2});
    CHECK(set.Free() == Names({"cpi", "rate_2"}));
    set.driver.MoveOut(IND_X, {1});
    CHECK(set.Free() == Names({"cpi", "rate_1", "rate_2"}));
    set.driver.MoveOut(DEP, {0});
    CHECK(set.Free() == Names({"cpi", "rate_1", "rate_2", "fx"}));
}

TEST_CASE("variable picker yZX: a random walk loses nothing and invents nothing")
{
    Walk<Picker>(MEMBER, Datasets(), EachInOnePlace<Picker>);
}

TEST_CASE("variable picker yZX: a random walk among hostile names")
{
    Walk<Picker>(MEMBER, HostileDatasets(), EachInOnePlace<Picker>);
}
