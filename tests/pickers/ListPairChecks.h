#pragma once

#include "modelspec/RoleLayout.h"
#include "modelspec/RoleModel.h"
#include "pickers/ChoicePickerChecks.h"

/// What the pickers with one button between two lists have in common, checked for each of them. Each
/// offers gdp, cpi, rate, m2 and fx at first.
namespace pair_checks
{
using namespace role_checks;

/// A picker's handlers and its getter of what is chosen.
template <class Picker>
struct Subject
{
    Handlers<Picker> handlers;
    wxArrayString (Picker::*chosen)() const;
    bool returnsToEnd = false;
};

/// The names in a list as the getters give them.
inline wxArrayString OrEmpty(wxArrayString const& names) { return names.empty() ? Names({""}) : names; }

template <class Picker>
void MovesBothWays(Picker* picker, Subject<Picker> const& subject)
{
    Driver<Picker> driver(picker, subject.handlers);
    auto* const left = driver.controls.Left();
    auto const chosen = [&] { return (picker->*subject.chosen)(); };
    CHECK(chosen() == Names({""}));

    driver.MoveIn(0, {1, 3});
    CHECK(chosen() == Names({"cpi", "m2"}));
    CHECK(left->GetStrings() == Names({"gdp", "rate", "fx"}));
    driver.MoveIn(0, {0});
    CHECK(chosen() == Names({"cpi", "m2", "gdp"}));
    CHECK(left->GetStrings() == Names({"rate", "fx"}));

    driver.MoveOut(0, {1});
    CHECK(chosen() == Names({"cpi", "gdp"}));
    CHECK(left->GetStrings()
          == (subject.returnsToEnd ? Names({"rate", "fx", "m2"}) : Names({"rate", "m2", "fx"})));
    CHECK(Selected(left).empty());
    driver.MoveOut(0, {0, 1});
    CHECK(chosen() == Names({""}));
    CHECK(driver.controls.Role(0)->IsEmpty());
    CHECK(left->GetStrings()
          == (subject.returnsToEnd ? Names({"rate", "fx", "m2", "cpi", "gdp"})
                                   : Names({"gdp", "cpi", "rate", "m2", "fx"})));
}

template <class Picker>
void PressesThatMoveNothing(Picker* picker, Subject<Picker> const& subject)
{
    Driver<Picker> driver(picker, subject.handlers);
    auto* const left = driver.controls.Left();
    auto* const right = driver.controls.Role(0);
    auto* const button = driver.controls.Button(0);
    auto const all = Names({"gdp", "cpi", "rate", "m2", "fx"});
    CHECK(!picker->GetChanged());
    driver.Press(0);
    CHECK(picker->GetChanged());
    CHECK(left->GetStrings() == all);
    CHECK(right->IsEmpty());

    // Selecting is no change, and the flag goes back by SetChanged alone.
    picker->SetChanged(false);
    driver.SelectLeft({0, 1});
    driver.SelectRole(0, {});
    CHECK(!picker->GetChanged());
    CHECK(button->GetLabel() == "<<");
    CHECK(Selected(left).empty());
    driver.Press(0);
    CHECK(picker->GetChanged());
    CHECK(left->GetStrings() == all);
    picker->SetChanged(true);
    CHECK(picker->GetChanged());

    // A move leaves the label, so the next press finds nothing selected.
    driver.MoveIn(0, {2});
    CHECK(button->GetLabel() == ">>");
    driver.Press(0);
    CHECK(right->GetStrings() == Names({"rate"}));
    CHECK(left->GetStrings() == Names({"gdp", "cpi", "m2", "fx"}));
    driver.MoveOut(0, {0});
    CHECK(button->GetLabel() == "<<");
    driver.Press(0);
    CHECK(right->IsEmpty());
    CHECK(left->GetCount() == 5);
}

template <class Picker>
void RealClicks(Stage& stage, Picker* picker, Subject<Picker> const& subject)
{
    stage.Fill(picker);
    Controls const controls(picker);
    auto* const left = controls.Left();
    auto* const right = controls.Role(0);
    auto* const button = controls.Button(0);
    auto const chosen = [&] { return (picker->*subject.chosen)(); };

    Click(button);
    CHECK(picker->GetChanged());
    CHECK(right->IsEmpty());

    ClickEntry(left, 1);
    ClickEntry(left, 3, WXK_SHIFT);
    CHECK(Selected(left) == std::vector<int>{1, 2, 3});
    ClickEntry(left, 2, WXK_CONTROL);
    CHECK(Selected(left) == std::vector<int>{1, 3});
    CHECK(button->GetLabel() == ">>");
    Click(button);
    CHECK(chosen() == Names({"cpi", "m2"}));
    CHECK(left->GetStrings() == Names({"gdp", "rate", "fx"}));
    CHECK(Selected(left).empty());
    CHECK(Selected(right).empty());

    ClickEntry(left, 2);
    Click(button);
    CHECK(chosen() == Names({"cpi", "m2", "fx"}));

    // The label follows the list that was touched last, and the other list lets go.
    ClickEntry(left, 1);
    ClickEntry(right, 0);
    CHECK(button->GetLabel() == "<<");
    CHECK(Selected(left).empty());
    ClickEntry(right, 2, WXK_CONTROL);
    CHECK(Selected(right) == std::vector<int>{0, 2});
    Keep(Photograph(stage.Frame()), picker->GetName());
    ClickEntry(left, 0);
    CHECK(button->GetLabel() == ">>");
    CHECK(Selected(right).empty());

    ClickEntry(right, 0);
    ClickEntry(right, 2, WXK_CONTROL);
    Click(button);
    CHECK(chosen() == Names({"m2"}));
    CHECK(left->GetStrings()
          == (subject.returnsToEnd ? Names({"gdp", "rate", "cpi", "fx"})
                                   : Names({"gdp", "cpi", "rate", "fx"})));
    // Nothing is selected after the move, so another press moves nothing.
    CHECK(Selected(right).empty());
    Click(button);
    CHECK(chosen() == Names({"m2"}));
}

template <class Picker>
void KeyboardAlone(Stage& stage, Picker* picker, Subject<Picker> const& subject)
{
    stage.Fill(picker);
    Controls const controls(picker);
    auto* const left = controls.Left();
    auto* const right = controls.Role(0);
    auto* const button = controls.Button(0);
    auto const chosen = [&] { return (picker->*subject.chosen)(); };
    if (controls.choice)
    {
        controls.choice->SetFocus();
        Press(WXK_TAB);
    }
    else
    {
        left->SetFocus();
        Pump();
    }
    REQUIRE(left->HasFocus());
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    CHECK(Selected(left) == std::vector<int>{1});
    Press(WXK_DOWN, wxMOD_SHIFT);
    CHECK(Selected(left) == std::vector<int>{1, 2});
    Press(WXK_TAB);
    REQUIRE(button->HasFocus());
    Press(WXK_SPACE);
    CHECK(chosen() == Names({"cpi", "rate"}));
    Press(WXK_TAB);
    REQUIRE(right->HasFocus());
    Press(WXK_END);
    CHECK(Selected(right) == std::vector<int>{1});
    CHECK(button->GetLabel() == "<<");
    Press(WXK_TAB, wxMOD_SHIFT);
    REQUIRE(button->HasFocus());
    Press(WXK_SPACE);
    CHECK(chosen() == Names({"cpi"}));
    CHECK(left->GetStrings()
          == (subject.returnsToEnd ? Names({"gdp", "m2", "fx", "rate"})
                                   : Names({"gdp", "rate", "m2", "fx"})));
}

/// Names as no one should give them.
inline std::vector<std::string> HostileNames()
{
    return {"a", "A", "a", "", "donn\xc3\xa9" "es", "\xe6\x97\xa5\xe6\x9c\xac", "", "a", "a_1", "x && y"};
}

inline wxArrayString Wide(std::vector<std::string> const& names)
{
    wxArrayString wide;
    for (auto const& name : names)
        wide.Add(wxString::FromUTF8(name.c_str()));
    return wide;
}

/// All 10,000 names of the form "name_0000" go right and come back, by real keys and clicks.
template <class Picker>
void TenThousand(Stage& stage, Picker* picker, Subject<Picker> const& subject)
{
    stage.Fill(picker);
    Controls const controls(picker);
    auto const all = controls.Left()->GetStrings();
    REQUIRE(all.size() == 10000);
    ClickEntry(controls.Left(), 0);
    Press(WXK_END, wxMOD_SHIFT);
    PumpUntil([&] { return Selected(controls.Left()).size() == 10000; });
    Click(controls.Button(0));
    CHECK(controls.Left()->IsEmpty());
    CHECK((picker->*subject.chosen)() == all);

    ClickEntry(controls.Role(0), 0);
    Press(WXK_END, wxMOD_SHIFT);
    PumpUntil([&] { return Selected(controls.Role(0)).size() == 10000; });
    Click(controls.Button(0));
    CHECK((picker->*subject.chosen)() == Names({""}));
    CHECK(controls.Left()->GetStrings() == all);
}

inline std::vector<std::string> ManyNames()
{
    std::vector<std::string> names;
    for (int i = 0; i < 10000; ++i)
        names.push_back("name_" + std::to_string(i));
    return names;
}

/// The random walk of a picker that offers `shown`.
template <class Picker>
void Walk(Picker* picker, Subject<Picker> const& subject, std::vector<wxArrayString> shown,
          std::function<void(std::mt19937&, RoleModel&)> const& program = {})
{
    Driver<Picker> driver(picker, subject.handlers);
    RoleModel model;
    model.shown = std::move(shown);
    model.roles.resize(1);
    model.roles[0].single = false;
    model.returnsToEnd = subject.returnsToEnd;
    WalkWithModel<Picker>(driver, model, program,
                          [&](RoleModel const& now) {
                              REQUIRE((picker->*subject.chosen)() == OrEmpty(ArrayOf(now.roles[0].names)));
                          });
}
} // namespace pair_checks
