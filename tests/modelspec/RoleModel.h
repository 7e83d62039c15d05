#pragma once

#include <algorithm>

#include "modelspec/RoleChecks.h"
#include "support/WalkSteps.h"

/// A second, plain telling of what the lists of a picker must show, for tests that compare the two
/// step by step.
namespace role_checks
{
using NameVector = std::vector<wxString>;

inline wxArrayString ArrayOf(NameVector const& names)
{
    wxArrayString array;
    for (wxString const& name : names)
        array.Add(name);
    return array;
}

/// A list and what is selected in it.
struct ModelList
{
    NameVector names;
    std::vector<int> selected;

    /// Takes the selected names out.
    NameVector TakeSelected()
    {
        NameVector taken;
        NameVector kept;
        for (std::size_t i = 0; i < names.size(); ++i)
        {
            bool const is = std::count(selected.begin(), selected.end(), static_cast<int>(i)) > 0;
            (is ? taken : kept).push_back(names[i]);
        }
        names = kept;
        selected.clear();
        return taken;
    }
};

struct ModelRole : ModelList
{
    bool single;
    wxString label = ">>";
};

/// A picker's lists, labels and flag. `shown` are, for each entry of the choice row, the names that it
/// offers; a picker without a row has its names there, and `returnsToEnd`.
struct RoleModel
{
    std::vector<wxArrayString> shown;
    std::vector<ModelRole> roles;
    bool keepsDirection = false;
    bool returnsToEnd = false;

    ModelList left;
    int picked = 0;
    bool changed = false;

    void Pick(int index)
    {
        picked = index;
        for (ModelRole& role : roles)
        {
            role.names.clear();
            role.selected.clear();
        }
        Redraw();
    }

    void SelectLeft(std::vector<int> const& indices)
    {
        left.selected = indices;
        for (ModelRole& role : roles)
        {
            role.selected.clear();
            if (!keepsDirection || role.names.empty())
                role.label = ">>";
        }
    }

    void SelectRole(std::size_t role, std::vector<int> const& indices)
    {
        roles[role].selected = indices;
        roles[role].label = "<<";
        left.selected.clear();
    }

    void Press(std::size_t index)
    {
        changed = true;
        ModelRole& role = roles[index];
        if (role.label == ">>" && role.single)
            MoveFirst(role);
        else if (role.label == ">>")
            Append(role, left.TakeSelected());
        else if (!role.selected.empty())
        {
            auto const taken = role.TakeSelected();
            if (returnsToEnd)
                Append(left, taken);
            else
                Redraw();
        }
    }

    void Restore(std::size_t role, NameVector const& names)
    {
        Append(roles[role], names);
        Redraw();
    }

private:
    static void Append(ModelList& list, NameVector const& names)
    {
        list.names.insert(list.names.end(), names.begin(), names.end());
    }

    void MoveFirst(ModelRole& role)
    {
        if (left.selected.empty() || !role.names.empty())
            return;
        int const first = left.selected.front();
        role.names.push_back(left.names[static_cast<std::size_t>(first)]);
        left.names.erase(left.names.begin() + first);
        left.selected.erase(left.selected.begin());
        for (int& index : left.selected)
            --index;
    }

    void Redraw()
    {
        auto const& all = shown[static_cast<std::size_t>(picked)];
        left.names.assign(all.begin(), all.end());
        left.selected.clear();
        for (ModelRole const& role : roles)
            for (wxString const& name : role.names)
                left.names.erase(std::find(left.names.begin(), left.names.end(), name));
    }
};

/// Nothing is lost or invented, everything is where the model has it, and so are the selections, the
/// labels and the flag.
template <class Picker>
void RequireEqual(Driver<Picker> const& driver, RoleModel const& model)
{
    auto const& controls = driver.controls;
    auto held = Bag(controls.Left()->GetStrings());
    REQUIRE(controls.Left()->GetStrings() == ArrayOf(model.left.names));
    REQUIRE(Selected(controls.Left()) == model.left.selected);
    for (std::size_t i = 0; i < model.roles.size(); ++i)
    {
        REQUIRE(controls.Role(i)->GetStrings() == ArrayOf(model.roles[i].names));
        REQUIRE(Selected(controls.Role(i)) == model.roles[i].selected);
        REQUIRE(controls.Button(i)->GetLabel() == model.roles[i].label);
        held.merge(Bag(controls.Role(i)->GetStrings()));
    }
    auto const& all = model.shown[static_cast<std::size_t>(model.picked)];
    REQUIRE(held == Bag(all));
    REQUIRE((model.returnsToEnd || InOrderOf(controls.Left()->GetStrings(), all)));
    REQUIRE(driver.picker->GetChanged() == model.changed);
}

/// Makes 10,000 random steps of a user, and of a program by `program`, with a picker and with the model
/// of it, and compares the two after each. `check` looks at what is the picker's own.
template <class Picker>
void WalkWithModel(Driver<Picker>& driver, RoleModel model,
                   std::function<void(std::mt19937&, RoleModel&)> const& program,
                   std::function<void(RoleModel const&)> const& check, unsigned seed = 20261122)
{
    std::mt19937 random(seed);
    model.Pick(0);
    for (int step = 0; step < WALK_STEPS; ++step)
    {
        INFO("seed " << seed << ", step " << step);
        auto const role = random() % model.roles.size();
        auto const kind = random() % 32;
        if (kind == 0 && driver.controls.choice)
        {
            model.Pick(static_cast<int>(random() % model.shown.size()));
            driver.PickSource(model.picked);
        }
        else if (kind == 1 && program)
            program(random, model);
        else if (kind < 4)
        {
            model.changed = random() % 4 == 0;
            driver.picker->SetChanged(model.changed);
        }
        else if (kind < 14)
        {
            auto const some = SomeOf(driver.controls.Left()->GetCount(), random);
            model.SelectLeft(some);
            driver.SelectLeft(some);
        }
        else if (kind < 20)
        {
            auto some = SomeOf(driver.controls.Role(role)->GetCount(), random);
            model.SelectRole(role, some);
            driver.SelectRole(role, some);
        }
        else
        {
            model.Press(role);
            driver.Press(role);
        }
        RequireEqual(driver, model);
        check(model);
    }
}
} // namespace role_checks
