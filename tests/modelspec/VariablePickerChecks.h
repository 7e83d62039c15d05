#pragma once

#include "common/ListBoxItems.h"
#include "modelspec/RoleLayout.h"
#include "pickers/ChoicePickerChecks.h"

/// What all variable pickers with a dataset row have in common, checked for each of them.
namespace variable_picker_checks
{
using namespace role_checks;

constexpr int LIST_HEIGHT = 137;

/// One role of a picker, from top to bottom.
template <class Picker>
struct RoleFacts
{
    char const* caption;
    bool single;
    char const* variable; ///< Of the dataset "macro", to be moved into the role.
    char const* shown;    ///< What the role's list then shows of it.
    std::function<wxArrayString(Picker const&)> get;
};

/// The one dependent variable, as the getters of lists give their names.
template <class Picker>
wxArrayString OneDependent(Picker const& picker)
{
    wxArrayString names;
    names.Add(picker.GetDepVar());
    return names;
}

/// A member of the family.
template <class Picker>
struct Member
{
    char const* name;
    std::function<Picker*(wxWindow*, DatasetMap*)> make;
    Handlers<Picker> handlers;
    char const* leftCaption;
    int columns; ///< Of the grid around both sides.
    std::vector<RoleFacts<Picker>> roles;
    wxArrayString leftWhenFilled; ///< What is left when each role holds its variable.
};

/// "empty" with nothing but its first entry, "macro", and "wages".
inline DatasetMap Datasets()
{
    return {{"macro", MakeDataset(Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}))},
            {"nothing", MakeDataset(Names({}))},
            {"wages", MakeDataset(Names({"wage", "age", "educ", "tenure_1", "tenure_2"}))}};
}

/// Datasets that no user should have: names twice, empty, like the hidden one, differing in case, with
/// underscores and digits of all kinds, outside ASCII; and a dataset without even its first entry.
inline DatasetMap HostileDatasets()
{
    return {{"none", std::make_shared<Dataset>()},
            {"twice", MakeDataset(Names({"constant", "a", "constant", "a", "A", "", "a", ""}))},
            {"suffixes", MakeDataset(Names({"_1", "_", "a_", "a__", "a_1", "A_1", "a_01", "a__1", "_", "_1",
                                            "a_99999999999999999999", "a_1b", "a_1_", "a_-1", "b_2"}))},
            {"z\xC3\xBCrich", MakeDataset(Names({"Löhne_1", "Löhne_2", "löhne_1", "β", "x_β", "𝜎_١", "a b",
                                                 "tab\t", "&amp", "<b>x</b>"}))},
            {"\xFF", MakeDataset(Names({"in a dataset", "whose name", "is no text"}))}};
}

/// A picker on a stage, and what it holds.
template <class Picker>
struct Set
{
    explicit Set(Member<Picker> const& of, DatasetMap map = Datasets())
        : member(of), datasets(std::move(map)), picker(of.make(stage.Frame(), &datasets)),
          driver(picker, WithRedraw()), controls(driver.controls)
    {
        stage.Fill(picker);
    }

    wxListBox* Left() const { return controls.Left(); }
    wxArrayString Free() const { return Left()->GetStrings(); }
    wxString Label(std::size_t role) const { return controls.Button(role)->GetLabel(); }
    std::size_t Roles() const { return member.roles.size(); }
    wxArrayString Held(std::size_t role) const { return member.roles[role].get(*picker); }
    int IndexOf(wxString const& name) const { return Left()->FindString(name, true); }

    /// The dataset that is shown, also where its name is no text.
    Dataset const& Picked() const
    {
        return *std::next(datasets.begin(), controls.choice->GetSelection())->second;
    }

    /// Moves each role's variable into it.
    void FillRoles()
    {
        for (std::size_t i = 0; i < Roles(); ++i)
            driver.MoveIn(i, {IndexOf(member.roles[i].variable)});
    }

    bool AllRolesAreEmpty() const
    {
        for (std::size_t i = 0; i < Roles(); ++i)
            if (!controls.Role(i)->IsEmpty() || Held(i) != Names({""}))
                return false;
        return true;
    }

    /// The getters tell what the lists show.
    void CheckGetters() const
    {
        for (std::size_t i = 0; i < Roles(); ++i)
        {
            REQUIRE((!member.roles[i].single || controls.Role(i)->GetCount() <= 1));
            REQUIRE(Held(i) == zenqo::ItemsOrEmpty(controls.Role(i)));
        }
    }

    Handlers<Picker> WithRedraw()
    {
        auto handlers = member.handlers;
        handlers.redraw = [this](Picker& redrawn)
        {
            auto names = Picked().varNames;
            auto const before = names;
            redrawn.RedrawLhsVarList(names);
            REQUIRE(names == before);
        };
        return handlers;
    }

    Stage stage;
    Member<Picker> const& member;
    DatasetMap datasets;
    Picker* picker;
    Driver<Picker> driver;
    Controls const& controls;
};

template <class Picker>
void Layout(Member<Picker> const& member)
{
    Set<Picker> set(member);
    auto const& controls = set.controls;
    CHECK(controls.lists.size() == set.Roles() + 1);
    CHECK(controls.buttons.size() == set.Roles());

    auto* const below = BelowRow(set.picker);
    CHECK(PlacementOf(below) == Placement{0, wxALL, 0});
    auto* const grid = CheckGrid(below->GetSizer(), 1, member.columns, {}, {});
    REQUIRE(grid->GetItemCount() == 2);
    CheckColumn(Item(grid, 0), set.Left(), {member.leftCaption, wxSize(180, -1)});
    CHECK(PlacementOf(Item(grid, 1)) == Placement{1, wxEXPAND, 5});
    auto* const right = CheckGrid(Item(grid, 1)->GetSizer(), 2 * static_cast<int>(set.Roles()), 2,
                                  {{3, 10}}, {});
    REQUIRE(right->GetItemCount() == 4 * set.Roles());
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        bool const single = member.roles[i].single;
        CheckGap(Item(right, 4 * i));
        CheckCaption(Item(right, 4 * i + 1), member.roles[i].caption);
        CheckButton(Item(right, 4 * i + 2), controls.Button(i), set.Left());
        CheckList(Item(right, 4 * i + 3), controls.Role(i),
                  wxSize(180, single ? RowHeight(set.Left()) : LIST_HEIGHT),
                  wxHSCROLL | (single ? wxLB_SINGLE : wxLB_EXTENDED));
    }
    Keep(Photograph(set.stage.Frame()), member.name);
}

/// What the host and the user get at first: the first dataset's variables, no roles, no change.
template <class Picker>
void Beginning(Member<Picker> const& member)
{
    Set<Picker> set(member);
    CHECK(set.controls.choice->GetStrings() == Names({"macro", "nothing", "wages"}));
    CHECK(set.picker->GetDatasetName() == "macro");
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}));
    CHECK(Selected(set.Left()).empty());
    CHECK(set.AllRolesAreEmpty());
    CHECK(!set.picker->GetChanged());
    set.picker->SetChanged(true);
    CHECK(set.picker->GetChanged());
    set.picker->SetChanged(false);
    CHECK(!set.picker->GetChanged());
}

template <class Picker>
void NoDatasets(Member<Picker> const& member)
{
    Set<Picker> set(member, DatasetMap());
    CHECK(set.controls.choice->IsEmpty());
    CHECK(set.picker->GetDatasetName().empty());
    CHECK(set.Left()->IsEmpty());
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        set.picker->SetChanged(false);
        set.driver.Press(i);
        CHECK(set.picker->GetChanged());
        set.picker->SetChanged(false);
        set.driver.SelectRole(i, {});
        set.driver.Press(i);
        CHECK(set.picker->GetChanged());
        CHECK(set.AllRolesAreEmpty());
    }
    set.driver.SelectLeft({});
    set.driver.Press(0);
    wxCommandEvent event;
    set.picker->OnDatasetChanged(event);
    wxArrayString none;
    set.picker->RedrawLhsVarList(none);
    CHECK(set.Left()->IsEmpty());
    CHECK(set.AllRolesAreEmpty());
}

/// A dataset with nothing but its first entry has nothing to show, nor has one without even that.
template <class Picker>
void NoVariables(Member<Picker> const& member)
{
    Set<Picker> set(member, {{"first", MakeDataset(Names({}))},
                             {"second", MakeDataset(Names({"gdp"}))},
                             {"third", std::make_shared<Dataset>()}});
    CHECK(set.picker->GetDatasetName() == "first");
    CHECK(set.Left()->IsEmpty());
    set.driver.PickSource(1);
    CHECK(set.Free() == Names({"gdp"}));
    set.driver.PickSource(2);
    CHECK(set.Left()->IsEmpty());
    set.driver.Press(0);
    CHECK(set.AllRolesAreEmpty());
}

/// A dataset whose name is no text is shown all the same, at first and when variables come back.
template <class Picker>
void NamelessDataset(Member<Picker> const& member)
{
    Set<Picker> set(member, {{"bad \xFF", MakeDataset(Names({"a_1", "b"}))}});
    CHECK(set.picker->GetDatasetName().empty());
    CHECK(set.Free() == Names({"a_1", "b"}));
    set.driver.MoveIn(0, {0});
    CHECK(set.Held(0) == Names({"a_1"}));
    CHECK(set.Free() == Names({"b"}));
    set.driver.MoveOut(0, {0});
    CHECK(set.Free() == Names({"a_1", "b"}));
}

/// The labels follow what is touched last, and a press counts whether or not it moves anything.
template <class Picker>
void LabelsAndFlag(Member<Picker> const& member)
{
    Set<Picker> set(member);
    auto const labels = [&set](char const* label)
    {
        for (std::size_t i = 0; i < set.Roles(); ++i)
            if (set.Label(i) != label)
                return false;
        return true;
    };
    auto const all = set.Free();
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        set.picker->SetChanged(false);
        set.driver.Press(i);
        CHECK(set.picker->GetChanged());
        CHECK(set.Free() == all);
        CHECK(set.AllRolesAreEmpty());
    }
    CHECK(labels(">>"));

    set.FillRoles();
    CHECK(labels(">>"));
    CHECK(set.Free() == member.leftWhenFilled);
    for (std::size_t i = 0; i < set.Roles(); ++i)
        CHECK(set.Held(i) == Names({member.roles[i].shown}));

    // Each role turns its own button alone, and takes the selection at the left away.
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        SelectEntries(set.Left(), {0});
        set.driver.SelectRole(i, {0});
        CHECK(Selected(set.Left()).empty());
        for (std::size_t other = 0; other < set.Roles(); ++other)
        {
            CHECK(set.Label(other) == (other <= i ? "<<" : ">>"));
            CHECK(Selected(set.controls.Role(other)).size() == (other <= i ? 1u : 0u));
        }
    }

    // The left list turns them all back.
    set.driver.SelectLeft({0});
    CHECK(labels(">>"));
    for (std::size_t i = 0; i < set.Roles(); ++i)
        CHECK(Selected(set.controls.Role(i)).empty());

    // Out again, with all buttons turned at once; the last of each comes back to its own place.
    for (std::size_t i = 0; i < set.Roles(); ++i)
        set.driver.SelectRole(i, {0});
    set.picker->SetChanged(false);
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        set.driver.Press(i);
        CHECK(set.picker->GetChanged());
        CHECK(set.controls.Role(i)->IsEmpty());
        CHECK(set.Held(i) == Names({""}));
    }
    CHECK(labels("<<"));
    CHECK(set.Free() == all);

    // Nothing is selected: a press out of an empty list, and one out of a filled list.
    set.picker->SetChanged(false);
    set.driver.Press(0);
    CHECK(set.picker->GetChanged());
    set.FillRoles();
    auto const left = set.Free();
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        set.driver.SelectRole(i, {});
        set.driver.Press(i);
        CHECK(set.Held(i) == Names({member.roles[i].shown}));
    }
    CHECK(set.Free() == left);
}

template <class Picker>
void Redraw(Member<Picker> const& member)
{
    Set<Picker> set(member);
    set.FillRoles();
    SelectEntries(set.Left(), {0});
    set.picker->SetChanged(false);
    auto names = set.datasets.at("macro")->varNames;
    set.picker->RedrawLhsVarList(names);
    CHECK(names == set.datasets.at("macro")->varNames);
    CHECK(set.Free() == member.leftWhenFilled);
    CHECK(Selected(set.Left()).empty());
    CHECK(!set.picker->GetChanged());
    CHECK(set.Label(0) == ">>");

    // Other names are shown as they come, the first one hidden.
    names = Names({"zeta", "beta", "alpha", "beta"});
    set.picker->RedrawLhsVarList(names);
    CHECK(set.Free() == Names({"beta", "alpha", "beta"}));
}

/// Real picks of another dataset empty the roles; of the same one they change nothing.
template <class Picker>
void RealDatasetChanges(Member<Picker> const& member)
{
    Set<Picker> set(member);
    auto* const choice = set.controls.choice;
    int atFrame = 0;
    set.stage.Frame()->Bind(wxEVT_CHOICE, [&atFrame](wxCommandEvent&) { ++atFrame; });
    set.FillRoles();
    set.driver.SelectRole(0, {0});
    set.picker->SetChanged(false);

    picker_checks::Pick(choice, 0);
    CHECK(set.Free() == member.leftWhenFilled);
    for (std::size_t i = 0; i < set.Roles(); ++i)
        CHECK(set.Held(i) == Names({member.roles[i].shown}));
    CHECK(Selected(set.controls.Role(0)).size() == 1);

    picker_checks::Pick(choice, 2);
    CHECK(set.picker->GetDatasetName() == "wages");
    CHECK(set.Free() == Names({"wage", "age", "educ", "tenure_1", "tenure_2"}));
    CHECK(set.AllRolesAreEmpty());
    CHECK(!set.picker->GetChanged());
    CHECK(set.Label(0) == "<<");
    CHECK(set.Label(1) == ">>");
    Click(set.controls.Button(0));
    CHECK(set.picker->GetChanged());
    CHECK(set.AllRolesAreEmpty());
    CHECK(set.Free() == Names({"wage", "age", "educ", "tenure_1", "tenure_2"}));

    // The map is read again: what the host has changed meanwhile is shown.
    set.datasets.at("macro") = MakeDataset(Names({"new", "names"}));
    picker_checks::Pick(choice, 0);
    CHECK(set.Free() == Names({"new", "names"}));
    picker_checks::Pick(choice, 1);
    CHECK(set.Left()->IsEmpty());
    CHECK(atFrame == 0);
}

/// Real clicks, with Shift and Ctrl held down, on lists and buttons.
template <class Picker>
void RealClicks(Member<Picker> const& member)
{
    Set<Picker> set(member);
    auto const& controls = set.controls;
    // Nothing is selected.
    Click(controls.Button(1));
    CHECK(set.picker->GetChanged());
    CHECK(set.AllRolesAreEmpty());

    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        ClickEntry(set.Left(), set.IndexOf(member.roles[i].variable));
        Click(controls.Button(i));
        CHECK(set.Held(i) == Names({member.roles[i].shown}));
    }
    CHECK(set.Free() == member.leftWhenFilled);

    // From list to list and back: the labels follow every time.
    for (int round = 0; round < 2; ++round)
    {
        ClickEntry(set.Left(), 0);
        CHECK(Selected(set.Left()) == std::vector<int>{0});
        for (std::size_t i = 0; i < set.Roles(); ++i)
        {
            CHECK(set.Label(i) == ">>");
            ClickEntry(controls.Role(i), 0);
            CHECK(set.Label(i) == "<<");
            CHECK(Selected(controls.Role(i)) == std::vector<int>{0});
            CHECK(Selected(set.Left()).empty());
        }
    }

    // All buttons point out, and each takes its own.
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        Click(controls.Button(i));
        CHECK(controls.Role(i)->IsEmpty());
        CHECK(set.Held(i) == Names({""}));
    }
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}));
    CHECK(Selected(set.Left()).empty());
}

/// Of several variables that were moved into a list by real clicks, some go back.
template <class Picker>
void RealClicksInList(Member<Picker> const& member, std::size_t role)
{
    Set<Picker> set(member);
    auto* const list = set.controls.Role(role);
    ClickEntry(set.Left(), 0);
    ClickEntry(set.Left(), 3, WXK_SHIFT);
    ClickEntry(set.Left(), 5, WXK_CONTROL);
    ClickEntry(set.Left(), 1, WXK_CONTROL);
    CHECK(Selected(set.Left()) == std::vector<int>{0, 2, 3, 5});
    Click(set.controls.Button(role));
    CHECK(set.Held(role) == Names({"gdp", "rate_1", "m2", "fx"}));

    ClickEntry(list, 0);
    ClickEntry(list, 2, WXK_CONTROL);
    Click(set.controls.Button(role));
    CHECK(set.Held(role) == Names({"rate_1", "fx"}));
    CHECK(set.IndexOf("gdp") == 0);
    // The row clicked last has gone, and its neighbour is not taken along by a second press.
    CHECK(Selected(list).empty());
    CHECK(set.Label(role) == "<<");
    ClickAt(set.controls.Button(role), wxPoint(8, 8));
    CHECK(set.Held(role) == Names({"rate_1", "fx"}));

    // What comes next goes to the end.
    ClickEntry(set.Left(), 0);
    Click(set.controls.Button(role));
    CHECK(set.Held(role) == Names({"rate_1", "fx", "gdp"}));
}

/// Three selected, of which an upper list of one takes the first and no more until it is empty.
template <class Picker>
void RealClicksIntoSingle(Member<Picker> const& member)
{
    Set<Picker> set(member);
    ClickEntry(set.Left(), 4);
    ClickEntry(set.Left(), 3, WXK_CONTROL);
    ClickEntry(set.Left(), 1, WXK_CONTROL);
    Click(set.controls.Button(0));
    CHECK(set.Held(0) == Names({"cpi"}));
    CHECK(set.Free() == Names({"gdp", "rate_1", "m2", "rate_2", "fx"}));
    CHECK(Selected(set.Left()) == std::vector<int>{2, 3});
    ClickAt(set.controls.Button(0), wxPoint(8, 8));
    CHECK(set.Held(0) == Names({"cpi"}));
    CHECK(Selected(set.Left()) == std::vector<int>{2, 3});

    ClickEntry(set.controls.Role(0), 0);
    Click(set.controls.Button(0));
    CHECK(set.Held(0) == Names({""}));
    CHECK(set.Free() == Names({"gdp", "cpi", "rate_1", "m2", "rate_2", "fx"}));
    ClickEntry(set.Left(), 5);
    Click(set.controls.Button(0));
    CHECK(set.Held(0) == Names({"fx"}));
}

/// Selects entry `index` by the arrow keys, the first of which may only select where the keyboard is.
inline void ArrowTo(wxListBox* list, int index)
{
    list->SetFocus();
    for (int steps = 0; steps < 20 && Selected(list) != std::vector<int>{index}; ++steps)
        ::Press(Selected(list).empty() || Selected(list).front() < index ? WXK_DOWN : WXK_UP);
    CHECK(Selected(list) == std::vector<int>{index});
}

/// Without the mouse: Tab goes from control to control, arrows select, Space presses.
template <class Picker>
void Keyboard(Member<Picker> const& member)
{
    Set<Picker> set(member);
    auto const& controls = set.controls;
    std::vector<wxWindow*> order{controls.choice, set.Left()};
    order.insert(order.end(), controls.buttons.begin(), controls.buttons.end());
    order.insert(order.end(), controls.lists.begin() + 1, controls.lists.end());
    controls.choice->SetFocus();
    Pump();
    for (auto* const control : order)
    {
        CHECK(wxWindow::FindFocus() == control);
        ::Press(WXK_TAB);
    }

    // Each role is filled without any list of another role being entered on the way.
    for (std::size_t i = 0; i < set.Roles(); ++i)
    {
        ArrowTo(set.Left(), set.IndexOf(member.roles[i].variable));
        for (std::size_t tab = 0; tab <= i; ++tab)
            ::Press(WXK_TAB);
        CHECK(wxWindow::FindFocus() == controls.Button(i));
        ::Press(WXK_SPACE);
        CHECK(set.Held(i) == Names({member.roles[i].shown}));
    }
    CHECK(set.Free() == member.leftWhenFilled);

    // And emptied.
    std::size_t const last = set.Roles() - 1;
    ArrowTo(controls.Role(last), 0);
    CHECK(set.Label(last) == "<<");
    for (std::size_t tab = 0; tab <= last; ++tab)
        ::Press(WXK_TAB, wxMOD_SHIFT);
    CHECK(wxWindow::FindFocus() == controls.Button(last));
    ::Press(WXK_SPACE);
    CHECK(set.Held(last) == Names({""}));

    // Another dataset.
    controls.choice->SetFocus();
    Pump();
    ::Press(WXK_SPACE);
    Pump(150);
    ::Press(WXK_END);
    ::Press(WXK_RETURN);
    CHECK(PumpUntil([&set] { return set.picker->GetDatasetName() == "wages"; }));
    CHECK(set.Free() == Names({"wage", "age", "educ", "tenure_1", "tenure_2"}));
}

/// Everything selected among ten thousand, which is moved as it is asked for.
template <class Picker>
void ManyVariables(Member<Picker> const& member)
{
    wxArrayString many;
    for (int i = 0; i < 10000; ++i)
        many.Add(wxString::Format("variable%05d", i));
    Set<Picker> set(member, {{"large", MakeDataset(many)}, {"small", MakeDataset(Names({"a"}))}});
    REQUIRE(set.Free() == many);
    ClickEntry(set.Left(), 0);
    ::Press('A', wxMOD_CONTROL);
    REQUIRE(Selected(set.Left()).size() == 10000);
    if (member.roles[0].single)
    {
        Click(set.controls.Button(0));
        CHECK(set.Held(0) == Names({"variable00000"}));
        CHECK(Selected(set.Left()).size() == 9999);
        CHECK(set.Left()->GetCount() == 9999);
        ClickEntry(set.controls.Role(0), 0);
        Click(set.controls.Button(0));
        CHECK(set.Free() == many);
    }

    std::size_t const last = set.Roles() - 1;
    wxArrayString even;
    std::vector<int> indices;
    for (int i = 0; i < 10000; i += 2)
    {
        indices.push_back(i);
        even.Add(many[static_cast<std::size_t>(i)]);
    }
    ClickEntry(set.Left(), 0);
    zenqo::SelectItems(set.Left(), indices);
    Click(set.controls.Button(last));
    CHECK(set.Held(last) == even);
    ClickEntry(set.controls.Role(last), 0);
    ::Press('A', wxMOD_CONTROL);
    Click(set.controls.Button(last));
    CHECK(set.Held(last) == Names({""}));
    CHECK(set.Free() == many);

    set.driver.PickSource(1);
    CHECK(set.Free() == Names({"a"}));
    CHECK(set.AllRolesAreEmpty());
}

template <class Picker>
using Check = std::function<void(Set<Picker>& set)>;

/// Ten thousand random steps; `check` is what must always hold of lists and getters.
template <class Picker>
void Walk(Member<Picker> const& member, DatasetMap const& datasets, Check<Picker> const& check)
{
    Set<Picker> set(member, datasets);
    RandomWalk(set.driver,
               [&]
               {
                   set.CheckGetters();
                   check(set);
               });
}

/// Where a variable stands in one list only: together the lists hold just the dataset's variables.
template <class Picker>
void EachInOnePlace(Set<Picker>& set)
{
    auto const all = ShownNames(set.Picked());
    auto held = Bag(set.Free());
    for (std::size_t i = 0; i < set.Roles(); ++i)
        held.merge(Bag(set.controls.Role(i)->GetStrings()));
    REQUIRE(held == Bag(all));
    REQUIRE(InOrderOf(set.Free(), all));
}

/// All that holds of every member of the family.
template <class Picker>
void Family(Member<Picker> const& member)
{
    SECTION("layout") { Layout(member); }
    SECTION("beginning") { Beginning(member); }
    SECTION("no datasets") { NoDatasets(member); }
    SECTION("no variables") { NoVariables(member); }
    SECTION("nameless dataset") { NamelessDataset(member); }
    SECTION("labels and flag") { LabelsAndFlag(member); }
    SECTION("redraw") { Redraw(member); }
    SECTION("real dataset changes") { RealDatasetChanges(member); }
    SECTION("real clicks") { RealClicks(member); }
    SECTION("keyboard") { Keyboard(member); }
    SECTION("many variables") { ManyVariables(member); }
}
} // namespace variable_picker_checks
