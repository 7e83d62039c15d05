#pragma once

#include <functional>
#include <memory>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/stattext.h>

#include "engine/Engine.h"
#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/Stage.h"
#include "support/WalkSteps.h"

/// What the pickers with a left list and role lists have in common, as their tests see it.
namespace role_checks
{
inline wxArrayString Names(std::initializer_list<char const*> names)
{
    wxArrayString array;
    for (auto const* name : names)
        array.Add(wxString::FromUTF8(name));
    return array;
}

/// A dataset of variables without observations. The hidden first one is named "constant".
inline std::shared_ptr<Dataset> MakeDataset(wxArrayString const& names)
{
    auto dataset = std::make_shared<Dataset>();
    dataset->varNames.Add("constant");
    for (wxString const& name : names)
        dataset->varNames.Add(name);
    return dataset;
}

/// "macro" with gdp, cpi, rate, m2, fx and "wages" with wage, age, educ, tenure.
inline DatasetMap TwoDatasets()
{
    return {{"macro", MakeDataset(Names({"gdp", "cpi", "rate", "m2", "fx"}))},
            {"wages", MakeDataset(Names({"wage", "age", "educ", "tenure"}))}};
}

/// The controls of a picker, found in its window: the left list is made first, then for each role
/// its button and its list.
struct Controls
{
    explicit Controls(wxWindow const* picker)
        : choice(Find<wxChoice>(picker)), captions(FindAll<wxStaticText>(picker)),
          lists(FindAll<wxListBox>(picker)), buttons(FindAll<wxButton>(picker))
    {
    }

    wxListBox* Left() const { return lists.at(0); }
    wxListBox* Role(std::size_t role) const { return lists.at(role + 1); }
    wxButton* Button(std::size_t role) const { return buttons.at(role); }

    wxChoice* choice; ///< Null in pickers without a choice row.
    std::vector<wxStaticText*> captions;
    std::vector<wxListBox*> lists;
    std::vector<wxButton*> buttons;
};

/// A picker's handlers in the order of its controls, so that one test can drive every picker.
template <class Picker>
struct Handlers
{
    using Handler = void (Picker::*)(wxCommandEvent&);
    Handler left;
    std::vector<Handler> roles;
    std::vector<Handler> buttons;
    Handler source = nullptr; ///< A change of the dataset or model, if the picker has such a row.
    std::function<void(Picker&)> redraw{}; ///< The left list made anew, if a host can ask for it.
};

/// Drives a picker through its handlers, as the controls would.
template <class Picker>
class Driver
{
public:
    Driver(Picker* driven, Handlers<Picker> handlers)
        : picker(driven), controls(driven), m_handlers(std::move(handlers))
    {
    }

    void SelectLeft(std::vector<int> const& indices)
    {
        SelectEntries(controls.Left(), indices);
        Call(m_handlers.left);
    }
    void SelectRole(std::size_t role, std::vector<int> const& indices)
    {
        SelectEntries(controls.Role(role), indices);
        Call(m_handlers.roles.at(role));
    }
    void Press(std::size_t role) { Call(m_handlers.buttons.at(role)); }
    void MoveIn(std::size_t role, std::vector<int> const& indices)
    {
        SelectLeft(indices);
        Press(role);
    }
    void MoveOut(std::size_t role, std::vector<int> const& indices)
    {
        SelectRole(role, indices);
        Press(role);
    }
    void PickSource(int index)
    {
        controls.choice->SetSelection(index);
        Call(m_handlers.source);
    }

    void Redraw()
    {
        if (m_handlers.redraw)
            m_handlers.redraw(*picker);
    }

    Picker* picker;
    Controls controls;

private:
    void Call(typename Handlers<Picker>::Handler handler)
    {
        wxCommandEvent event;
        event.Skip(false);
        (picker->*handler)(event);
        CHECK(!event.GetSkipped());
    }

    Handlers<Picker> m_handlers;
};

/// Some of the numbers 0 to count-1, ascending; often none, often one.
inline std::vector<int> SomeOf(unsigned count, std::mt19937& random)
{
    std::vector<int> some;
    unsigned const one_in = 1 + random() % 4;
    for (unsigned i = 0; i < count; ++i)
        if (random() % (2 * one_in) == 0)
            some.push_back(static_cast<int>(i));
    return some;
}

/// Makes 10,000 random steps of a user with the lists, the buttons and the choice row, and of a
/// program with the changed flag and the left list. `check` is called after each and holds what must
/// always be true.
template <class Picker>
void RandomWalk(Driver<Picker>& driver, std::function<void()> const& check, unsigned seed = 20261121)
{
    std::mt19937 random(seed);
    bool changed = driver.picker->GetChanged();
    std::size_t const roles = driver.controls.buttons.size();
    for (int step = 0; step < WALK_STEPS; ++step)
    {
        INFO("seed " << seed << ", step " << step);
        std::size_t const role = random() % roles;
        switch (unsigned const kind = random() % 16; kind)
        {
        case 0:
            if (driver.controls.choice && driver.controls.choice->GetCount() > 0)
                driver.PickSource(static_cast<int>(random() % driver.controls.choice->GetCount()));
            break;
        case 1:
            changed = false;
            driver.picker->SetChanged(changed);
            break;
        case 2:
            driver.Redraw();
            break;
        default:
            if (kind < 7)
                driver.SelectLeft(SomeOf(driver.controls.Left()->GetCount(), random));
            else if (kind < 10)
            {
                auto* const list = driver.controls.Role(role);
                auto indices = SomeOf(list->GetCount(), random);
                if (list->HasFlag(wxLB_SINGLE) && indices.size() > 1)
                    indices.resize(1);
                driver.SelectRole(role, indices);
            }
            else
            {
                driver.Press(role);
                changed = true;
            }
        }
        REQUIRE(driver.picker->GetChanged() == changed);
        for (auto const* button : driver.controls.buttons)
            REQUIRE((button->GetLabel() == ">>" || button->GetLabel() == "<<"));
        check();
    }
}

/// All names of `some` in sorted order, to compare what two lists hold.
inline std::multiset<wxString> Bag(wxArrayString const& some) { return {some.begin(), some.end()}; }

/// True if `some` are names of `all`, each no more often than there, in the same order.
inline bool InOrderOf(wxArrayString const& some, wxArrayString const& all)
{
    std::size_t next = 0;
    for (wxString const& name : all)
        if (next < some.size() && some[next] == name)
            ++next;
    return next == some.size();
}

/// The variables of a dataset that are shown.
inline wxArrayString ShownNames(Dataset const& dataset)
{
    wxArrayString names;
    for (std::size_t i = 1; i < dataset.varNames.size(); ++i)
        names.Add(dataset.varNames[i]);
    return names;
}
} // namespace role_checks
