#include "modelspec/VariablePicker_Y_X.h"

#include "modelspec/VariablePickerChecks.h"

using namespace variable_picker_checks;

namespace
{
using Picker = VariablePicker_Y_X;

enum
{
    DEP,
    IND
};

Member<Picker> const MEMBER{
    "VariablePicker_Y_X",
    [](wxWindow* parent, DatasetMap* datasets)
    { return new Picker(parent, datasets, LIST_HEIGHT, "First list", "Second list"); },
    {&Picker::OnAllVarSelected,
     {&Picker::OnDepVarSelected, &Picker::OnIndVarSelected},
     {&Picker::OnUpperButton, &Picker::OnLowerButton},
     &Picker::OnDatasetChanged},
    "Variables",
    3,
    {{"First list", false, "cpi", "cpi", std::mem_fn(&Picker::GetDepVars)},
     {"Second list", false, "m2", "m2", std::mem_fn(&Picker::GetIndVars)}},
    Names({"gdp", "rate_1", "rate_2", "fx"})};
} // namespace

TEST_CASE("variable picker Y_X: does what the whole family does")
{
    Family(MEMBER);
}

TEST_CASE("variable picker Y_X: both lists take all that is selected and give some back")
{
    SECTION("upper") { RealClicksInList(MEMBER, DEP); }
    SECTION("lower") { RealClicksInList(MEMBER, IND); }
}

TEST_CASE("variable picker Y_X: a variable stands in one list only")
{
    Set<Picker> set(MEMBER);
    set.driver.MoveIn(DEP, {0, 1, 2});
    set.driver.MoveIn(DEP, {1});
    set.driver.MoveIn(IND, {0, 1});
    CHECK(set.picker->GetDepVars() == Names({"gdp", "cpi", "rate_1", "rate_2"}));
    CHECK(set.picker->GetIndVars() == Names({"m2", "fx"}));
    CHECK(set.Left()->IsEmpty());
    set.driver.MoveOut(DEP, {1, 3});
    CHECK(set.Free() == Names({"cpi", "rate_2"}));
    set.driver.MoveOut(IND, {0});
    CHECK(set.Free() == Names({"cpi", "m2", "rate_2"}));
    CHECK(set.picker->GetDepVars() == Names({"gdp", "rate_1"}));
    CHECK(set.picker->GetIndVars() == Names({"fx"}));
}

TEST_CASE("variable picker Y_X: a random walk loses nothing and invents nothing")
{
    Walk<Picker>(MEMBER, Datasets(), EachInOnePlace<Picker>);
}

TEST_CASE("variable picker Y_X: a random walk among hostile names")
{
    Walk<Picker>(MEMBER, HostileDatasets(), EachInOnePlace<Picker>);
}
