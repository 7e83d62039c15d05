#include "modelspec/VariablePicker_yZX2.h"

#include "modelspec/VariablePickerChecks.h"

using namespace variable_picker_checks;

namespace
{
using Picker = VariablePicker_yZX2;

enum
{
    DEP,
    IND_Z,
    IND_X
};

Member<Picker> const MEMBER{
    "VariablePicker_yZX2",
    [](wxWindow* parent, DatasetMap* datasets)
    { return new Picker(parent, datasets, LIST_HEIGHT, "First list", "Second list"); },
    {&Picker::OnAllVarSelected,
     {&Picker::OnDepVarSelected, &Picker::OnIndVarZSelected, &Picker::OnIndVarXSelected},
     {&Picker::OnUpperButton, &Picker::OnLowerButton1, &Picker::OnLowerButton2},
     &Picker::OnDatasetChanged},
    "Variables",
    3,
    {{"Dependent Variable", true, "cpi", "cpi", OneDependent<Picker>},
     {"First list", false, "rate_1", "rate", std::mem_fn(&Picker::GetIndVarZ)},
     {"Second list", false, "m2", "m2", std::mem_fn(&Picker::GetIndVarX)}},
    Names({"gdp", "fx"})};

/// The stem of a numbered name, told by hand: nothing but ASCII digits behind the last underscore.
bool IsMember(wxString const& name, wxString& stem)
{
    wxString const digits = name.AfterLast('_');
    stem = name.BeforeLast('_');
    if (name.find('_') == wxString::npos || digits.empty())
        return false;
    return digits.find_first_not_of("0123456789") == wxString::npos;
}

/// At the left stands what neither the upper list nor X holds and no stem in Z covers.
void AllButFamiliesAndTaken(Set<Picker>& set)
{
    auto const all = ShownNames(set.Picked());
    auto const stems = set.controls.Role(IND_Z)->GetStrings();
    auto taken = Bag(set.controls.Role(DEP)->GetStrings());
    taken.merge(Bag(set.controls.Role(IND_X)->GetStrings()));
    std::multiset<wxString> expected;
    wxArrayString known;
    for (wxString const& name : all)
    {
        wxString stem;
        bool const member = IsMember(name, stem);
        if (member)
            known.Add(stem);
        auto const found = taken.find(name);
        if (found != taken.end())
            taken.erase(found);
        else if (!member || stems.Index(stem) == wxNOT_FOUND)
            expected.insert(name);
    }
    REQUIRE(taken.empty());
    REQUIRE(Bag(set.Free()) == expected);
    REQUIRE(InOrderOf(set.Free(), all));
    for (wxString const& stem : stems)
    {
        REQUIRE(known.Index(stem) != wxNOT_FOUND);
        REQUIRE(Bag(stems).count(stem) == 1);
    }
}

Set<Picker> const& Press(Set<Picker>& set, char const* variable)
{
    set.driver.MoveIn(IND_Z, {set.IndexOf(variable)});
    return set;
}
} // namespace

TEST_CASE("variable picker yZX2: does what the whole family does")
{
    Family(MEMBER);
}

TEST_CASE("variable picker yZX2: the upper list takes one variable and refuses the next")
{
    RealClicksIntoSingle(MEMBER);
}

TEST_CASE("variable picker yZX2: the list X takes all that is selected and gives some back")
{
    RealClicksInList(MEMBER, IND_X);
}

TEST_CASE("variable picker yZX2: a name is split at its last underscore")
{
    std::string stem;
    std::string suffix;
    Picker::splitName("x_y_2", stem, suffix);
    CHECK(stem == "x_y");
    CHECK(suffix == "2");
    Picker::splitName("b", stem, suffix);
    CHECK(stem == "b");
    CHECK(suffix.empty());
}

TEST_CASE("variable picker yZX2: one press takes the whole family")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"a_1", "a_2", "a_x", "b"}))}});
    set.driver.MoveIn(IND_Z, {0});
    CHECK(set.Free() == Names({"a_x", "b"}));
    CHECK(set.picker->GetIndVarZ() == Names({"a"}));

    // Names without a number stay, with no more than the flag to show for it.
    for (auto const* const name : {"b", "a_x"})
    {
        set.picker->SetChanged(false);
        Press(set, name);
        CHECK(set.picker->GetChanged());
        CHECK(set.Free() == Names({"a_x", "b"}));
        CHECK(set.picker->GetIndVarZ() == Names({"a"}));
        CHECK(Selected(set.Left()) == std::vector<int>{set.IndexOf(name)});
    }

    set.driver.MoveOut(IND_Z, {0});
    CHECK(set.Free() == Names({"a_1", "a_2", "a_x", "b"}));
    CHECK(set.picker->GetIndVarZ() == Names({""}));
}

TEST_CASE("variable picker yZX2: what is a number behind the last underscore")
{
    char const* const overflowing = "big_123456789012345678901234567890";
    Set<Picker> set(MEMBER,
                    {{"d", MakeDataset(Names({"x_y_2", "x_y_10", "x_y", "x_2", "a_1b", "a_+1", "a_-1",
                                              "a_ 1", "a_1.0", "a_0x1", "a_", "a__3", overflowing, "a_1_"}))}});
    for (auto const* const name : {"x_y", "a_1b", "a_+1", "a_-1", "a_ 1", "a_1.0", "a_0x1", "a_", "a_1_"})
        CHECK(Press(set, name).Held(IND_Z) == Names({""}));
    CHECK(Press(set, "x_y_10").Held(IND_Z) == Names({"x_y"}));
    CHECK(set.IndexOf("x_y_2") == wxNOT_FOUND);
    CHECK(set.IndexOf("x_2") != wxNOT_FOUND);
    CHECK(Press(set, "a__3").Held(IND_Z) == Names({"x_y", "a_"}));
    CHECK(Press(set, overflowing).Held(IND_Z) == Names({"x_y", "a_", "big"}));
    CHECK(set.Free()
          == Names({"x_y", "x_2", "a_1b", "a_+1", "a_-1", "a_ 1", "a_1.0", "a_0x1", "a_", "a_1_"}));
}

TEST_CASE("variable picker yZX2: several families at once, each once, in the order of their first members")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"b_1", "a_1", "c", "A_1", "b_2", "a_2", "d_1"}))}});
    set.driver.MoveIn(IND_Z, {1, 2, 3, 4, 5});
    CHECK(set.picker->GetIndVarZ() == Names({"a", "A", "b"}));
    CHECK(set.Free() == Names({"c", "d_1"}));
    CHECK(Selected(set.Left()) == std::vector<int>{0});
    set.driver.MoveOut(IND_Z, {0, 2});
    CHECK(set.picker->GetIndVarZ() == Names({"A"}));
    CHECK(set.Free() == Names({"b_1", "a_1", "c", "b_2", "a_2", "d_1"}));
}

TEST_CASE("variable picker yZX2: the upper list and X take members for themselves")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"a_1", "a_2", "a_3", "a_4"}))}});
    set.driver.MoveIn(DEP, {1});
    set.driver.MoveIn(IND_X, {1});
    CHECK(set.picker->GetDepVar() == "a_2");
    CHECK(set.picker->GetIndVarX() == Names({"a_3"}));
    CHECK(set.Free() == Names({"a_1", "a_4"}));
    set.driver.MoveIn(IND_Z, {1});
    CHECK(set.picker->GetIndVarZ() == Names({"a"}));
    CHECK(set.Left()->IsEmpty());

    // A member that leaves its role while Z holds the family is covered by the stem.
    set.driver.MoveOut(IND_X, {0});
    CHECK(set.Left()->IsEmpty());
    set.driver.MoveOut(IND_Z, {0});
    CHECK(set.Free() == Names({"a_1", "a_3", "a_4"}));
    set.driver.MoveOut(DEP, {0});
    CHECK(set.Free() == Names({"a_1", "a_2", "a_3", "a_4"}));
}

TEST_CASE("variable picker yZX2: a known stem is not taken again")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"a_1", "a_2", "b"}))}});
    set.driver.MoveIn(IND_Z, {0});
    // A host that shows names of its own brings a member back; Z knows the family and leaves it.
    auto others = Names({"hidden", "c_1", "a_7"});
    set.driver.MoveOut(IND_Z, {});
    set.picker->RedrawLhsVarList(others);
    CHECK(set.Free() == Names({"c_1"}));
    zenqo::AppendItems(set.Left(), Names({"a_7"}));
    set.driver.MoveIn(IND_Z, {0, 1});
    CHECK(set.picker->GetIndVarZ() == Names({"a", "c"}));
    CHECK(set.Free() == Names({"a_7"}));
}

TEST_CASE("variable picker yZX2: an empty list Z counts as one that knows the empty stem")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"_1", "_2", "a_1"}))}});
    CHECK(Press(set, "_1").Held(IND_Z) == Names({""}));
    CHECK(set.controls.Role(IND_Z)->IsEmpty());
    CHECK(set.Left()->GetCount() == 3);
    CHECK(Press(set, "a_1").Held(IND_Z) == Names({"a"}));
    CHECK(Press(set, "_1").Held(IND_Z) == Names({"a", ""}));
    CHECK(set.Left()->IsEmpty());
    set.driver.MoveOut(IND_Z, {1});
    CHECK(set.Free() == Names({"_1", "_2"}));
}

TEST_CASE("variable picker yZX2: families outside ASCII")
{
    Set<Picker> set(MEMBER, {{"d", MakeDataset(Names({"Löhne_1", "Löhne_2", "β_٣", "β_1"}))}});
    CHECK(Press(set, "Löhne_2").Held(IND_Z) == Names({"Löhne"}));
    CHECK(set.Free() == Names({"β_٣", "β_1"}));
}

TEST_CASE("variable picker yZX2: real clicks take families")
{
    Set<Picker> set(MEMBER);
    ClickEntry(set.Left(), 0);
    ClickEntry(set.Left(), 4, WXK_SHIFT);
    Click(set.controls.Button(IND_Z));
    CHECK(set.picker->GetIndVarZ() == Names({"rate"}));
    CHECK(set.Free() == Names({"gdp", "cpi", "m2", "fx"}));
    CHECK(Selected(set.Left()) == std::vector<int>{0, 1, 2});
    ClickEntry(set.controls.Role(IND_Z), 0);
    Click(set.controls.Button(IND_Z));
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}));
}

TEST_CASE("variable picker yZX2: a random walk covers families by their stems")
{
    Walk<Picker>(MEMBER, Datasets(), AllButFamiliesAndTaken);
}

TEST_CASE("variable picker yZX2: a random walk among hostile names")
{
    Walk<Picker>(MEMBER, HostileDatasets(), AllButFamiliesAndTaken);
}
