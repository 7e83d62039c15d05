#include "modelspec/VariablePicker_yXZ.h"

#include "modelspec/VariablePickerChecks.h"

using namespace variable_picker_checks;

namespace
{
using Picker = VariablePicker_yXZ;

enum
{
    DEP,
    IND_X,
    IND_Z
};

Member<Picker> const MEMBER{
    "VariablePicker_yXZ",
    [](wxWindow* parent, DatasetMap* datasets)
    { return new Picker(parent, datasets, LIST_HEIGHT, "First list", "Second list"); },
    {&Picker::OnAllVarSelected,
     {&Picker::OnDepVarSelected, &Picker::OnIndVarXSelected, &Picker::OnIndVarZSelected},
     {&Picker::OnUpperButton, &Picker::OnLowerButton1, &Picker::OnLowerButton2},
     &Picker::OnDatasetChanged},
    "Variables",
    3,
    {{"Dependent Variable", true, "cpi", "cpi", OneDependent<Picker>},
     {"First list", false, "m2", "m2", std::mem_fn(&Picker::GetIndVarX)},
     {"Second list", false, "fx", "fx", std::mem_fn(&Picker::GetIndVarZ)}},
    Names({"gdp", "rate_1", "m2", "rate_2", "fx"})};

/// What must hold of the three lists and the left one, in a dataset without a name that stands twice.
void AllButWhatIsTaken(Set<Picker>& set)
{
    auto const x = Bag(set.controls.Role(IND_X)->GetStrings());
    auto const z = Bag(set.controls.Role(IND_Z)->GetStrings());
    auto const dependent = set.controls.Role(DEP)->GetStrings();
    auto const all = ShownNames(set.Picked());
    wxArrayString free;
    for (wxString const& name : all)
    {
        REQUIRE(x.count(name) <= 1);
        REQUIRE(z.count(name) <= 1);
        bool const isDependent = dependent.Index(name) != wxNOT_FOUND;
        REQUIRE((!isDependent || (x.count(name) == 0 && z.count(name) == 0)));
        if (!isDependent && x.count(name) + z.count(name) < 2)
            free.Add(name);
    }
    REQUIRE(set.Free() == free);
    for (auto const& held : {Bag(dependent), x, z})
        for (wxString const& name : held)
            REQUIRE(all.Index(name) != wxNOT_FOUND);
}

/// Names that stand twice can't be told apart, but none may get lost or come from nowhere.
void NoneLostNoneInvented(Set<Picker>& set)
{
    auto const all = ShownNames(set.Picked());
    auto const free = set.Free();
    auto const x = Bag(set.controls.Role(IND_X)->GetStrings());
    auto const z = Bag(set.controls.Role(IND_Z)->GetStrings());
    auto const dependent = Bag(set.controls.Role(DEP)->GetStrings());
    REQUIRE(InOrderOf(free, all));
    for (wxString const& name : all)
    {
        REQUIRE(x.count(name) <= 1);
        REQUIRE(z.count(name) <= 1);
        REQUIRE((free.Index(name) != wxNOT_FOUND || dependent.count(name) == 1
                 || (x.count(name) == 1 && z.count(name) == 1)));
    }
    for (auto const& held : {dependent, x, z})
        for (wxString const& name : held)
            REQUIRE(all.Index(name) != wxNOT_FOUND);
}
} // namespace

TEST_CASE("variable picker yXZ: does what the whole family does")
{
    Family(MEMBER);
}

TEST_CASE("variable picker yXZ: the upper list takes one variable and refuses the next")
{
    RealClicksIntoSingle(MEMBER);
}

TEST_CASE("variable picker yXZ: both lower lists take all that is selected and give some back")
{
    SECTION("X") { RealClicksInList(MEMBER, IND_X); }
    SECTION("Z") { RealClicksInList(MEMBER, IND_Z); }
}

TEST_CASE("variable picker yXZ: a variable stays at the left until it stands in both lists")
{
    Set<Picker> set(MEMBER);
    std::size_t const first = GENERATE(as<std::size_t>(), IND_X, IND_Z);
    std::size_t const second = IND_X + IND_Z - first;
    set.driver.MoveIn(first, {1});
    CHECK(set.Held(first) == Names({"cpi"}));
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}));
    CHECK(Selected(set.Left()) == std::vector<int>{1});

    // Twice into the same list: it stands there once.
    set.driver.Press(first);
    CHECK(set.Held(first) == Names({"cpi"}));
    CHECK(set.Left()->GetCount() == 6);

    // Of several that go into the other list, it alone leaves; the others stay selected.
    set.driver.MoveIn(second, {0, 1, 3});
    CHECK(set.Held(second) == Names({"gdp", "cpi", "m2"}));
    CHECK(set.Free() == Names({"gdp", "rate_1", "m2", "rate_2", "fx"}));
    CHECK(Selected(set.Left()) == std::vector<int>{0, 2});
    set.driver.Press(first);
    CHECK(set.Held(first) == Names({"cpi", "gdp", "m2"}));
    CHECK(set.Free() == Names({"rate_1", "rate_2", "fx"}));

    // Out of one while in the other: back at the left, in its own place.
    set.driver.MoveOut(first, {0, 2});
    CHECK(set.Held(first) == Names({"gdp"}));
    CHECK(set.Held(second) == Names({"gdp", "cpi", "m2"}));
    CHECK(set.Free() == Names({"cpi", "rate_1", "m2", "rate_2", "fx"}));
}

TEST_CASE("variable picker yXZ: what becomes the dependent variable leaves both lists")
{
    Set<Picker> set(MEMBER);
    set.driver.MoveIn(IND_X, {1, 2, 3});
    set.driver.MoveIn(IND_Z, {2, 4});
    CHECK(set.Free() == Names({"gdp", "cpi", "m2", "rate_2", "fx"}));

    // In X alone.
    set.driver.MoveIn(DEP, {1});
    CHECK(set.picker->GetDepVar() == "cpi");
    CHECK(set.picker->GetIndVarX() == Names({"rate_1", "m2"}));
    CHECK(set.picker->GetIndVarZ() == Names({"rate_1", "rate_2"}));
    CHECK(set.Free() == Names({"gdp", "m2", "rate_2", "fx"}));
    set.driver.MoveOut(DEP, {0});
    CHECK(set.Free() == Names({"gdp", "cpi", "m2", "rate_2", "fx"}));

    // In Z alone.
    set.driver.MoveIn(DEP, {3});
    CHECK(set.picker->GetDepVar() == "rate_2");
    CHECK(set.picker->GetIndVarX() == Names({"rate_1", "m2"}));
    CHECK(set.picker->GetIndVarZ() == Names({"rate_1"}));
    set.driver.MoveOut(DEP, {0});

    // In both it isn't at the left. Out of one and it is, until the other still holds it.
    CHECK(set.IndexOf("rate_1") == wxNOT_FOUND);
    set.driver.MoveOut(IND_Z, {0});
    set.driver.MoveIn(DEP, {set.IndexOf("rate_1")});
    CHECK(set.picker->GetDepVar() == "rate_1");
    CHECK(set.picker->GetIndVarX() == Names({"m2"}));
    CHECK(set.picker->GetIndVarZ() == Names({""}));
}

TEST_CASE("variable picker yXZ: a name shown though both lists hold it leaves both for the upper list")
{
    Set<Picker> set(MEMBER, {{"twice", MakeDataset(Names({"a", "b", "a"}))}});
    set.driver.MoveIn(IND_X, {0});
    set.driver.MoveIn(IND_Z, {0});
    CHECK(set.Free() == Names({"b", "a"}));
    set.driver.MoveIn(DEP, {1});
    CHECK(set.picker->GetDepVar() == "a");
    CHECK(set.picker->GetIndVarX() == Names({""}));
    CHECK(set.picker->GetIndVarZ() == Names({""}));
}

TEST_CASE("variable picker yXZ: names that differ in case are different variables")
{
    Set<Picker> set(MEMBER, {{"cases", MakeDataset(Names({"gdp", "GDP", "Gdp"}))}});
    set.driver.MoveIn(IND_X, {0});
    set.driver.MoveIn(IND_Z, {1});
    CHECK(set.Free() == Names({"gdp", "GDP", "Gdp"}));
    set.driver.MoveIn(IND_X, {0, 1, 2});
    CHECK(set.picker->GetIndVarX() == Names({"gdp", "GDP", "Gdp"}));
    CHECK(set.Free() == Names({"gdp", "Gdp"}));
    set.driver.MoveIn(DEP, {1});
    CHECK(set.picker->GetIndVarX() == Names({"gdp", "GDP"}));
    CHECK(set.picker->GetIndVarZ() == Names({"GDP"}));
}

TEST_CASE("variable picker yXZ: real clicks put a variable into both lists")
{
    Set<Picker> set(MEMBER);
    ClickEntry(set.Left(), 1);
    ClickEntry(set.Left(), 3, WXK_SHIFT);
    Click(set.controls.Button(IND_X));
    CHECK(Selected(set.Left()) == std::vector<int>{1, 2, 3});
    set.Left()->SetFocus();
    ClickEntry(set.Left(), 2, WXK_CONTROL);
    Click(set.controls.Button(IND_Z));
    CHECK(set.picker->GetIndVarX() == Names({"cpi", "rate_1", "m2"}));
    CHECK(set.picker->GetIndVarZ() == Names({"cpi", "m2"}));
    CHECK(set.Free() == Names({"gdp", "rate_1", "rate_2", "fx"}));
    CHECK(Selected(set.Left()).empty());
}

TEST_CASE("variable picker yXZ: a random walk keeps all but what is taken at the left")
{
    Walk<Picker>(MEMBER, Datasets(), AllButWhatIsTaken);
}

TEST_CASE("variable picker yXZ: a random walk among hostile names")
{
    Walk<Picker>(MEMBER, HostileDatasets(), NoneLostNoneInvented);
}
