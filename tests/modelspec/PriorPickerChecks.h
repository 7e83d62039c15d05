#pragma once

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/radiobut.h>

#include "support/Find.h"
#include "support/Stage.h"

/// What the two pickers of priors have in common, checked for each of them.
namespace prior_checks
{
struct Controls
{
    explicit Controls(wxWindow const* picker)
        : standard(Find<wxRadioButton>(picker, 0)), custom(Find<wxRadioButton>(picker, 1)),
          define(Find<wxButton>(picker))
    {
    }

    wxRadioButton* standard;
    wxRadioButton* custom;
    wxButton* define;
};

/// Opens on the default, and the controls are made in reading order.
template <class Picker>
void Start(Picker const* picker)
{
    Controls const controls(picker);
    CHECK(picker->GetChildren().size() == 3);
    CHECK(picker->GetChildren()[0] == controls.standard);
    CHECK(picker->GetChildren()[2] == controls.define);
    CHECK(controls.standard->GetLabel() == "Default");
    CHECK(controls.custom->GetLabel() == "Custom");
    CHECK(controls.define->GetLabel() == "&Define");
    CHECK(controls.define->GetId() == 6022);
    CHECK(controls.standard->GetValue());
    CHECK(!controls.custom->GetValue());
    CHECK(!controls.define->IsEnabled());
    CHECK(picker->GetDefaultOption());
}

/// The handlers, asked by program: they change "&Define" alone and keep the event.
template <class Picker>
void Handlers(void (Picker::*onDefault)(wxCommandEvent&), void (Picker::*onCustom)(wxCommandEvent&))
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    Controls const controls(picker);
    for (bool const custom : {true, true, false, false, true})
    {
        wxCommandEvent event(wxEVT_RADIOBUTTON);
        event.Skip(false);
        (picker->*(custom ? onCustom : onDefault))(event);
        CHECK(!event.GetSkipped());
        CHECK(controls.define->IsEnabled() == custom);
        CHECK(picker->GetDefaultOption());
    }
}

/// What the user does with the mouse, and what the owner hears of it.
template <class Picker>
void RealClicks(char const* photograph)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    stage.Fill(picker);
    Controls const controls(picker);
    int radios = 0;
    int defines = 0;
    int others = 0;
    stage.Frame()->Bind(wxEVT_RADIOBUTTON, [&](wxCommandEvent&) { ++radios; });
    stage.Frame()->Bind(wxEVT_BUTTON, [&](wxCommandEvent& event)
                        { ++(event.GetId() == 6022 ? defines : others); });

    Click(controls.define);
    CHECK(defines == 0);
    Click(controls.custom);
    CHECK(!picker->GetDefaultOption());
    CHECK(controls.define->IsEnabled());
    Keep(Photograph(stage.Frame()), photograph);
    Click(controls.define);
    CHECK(defines == 1);
    CHECK(!picker->GetDefaultOption());

    Click(controls.standard);
    CHECK(picker->GetDefaultOption());
    CHECK(!controls.define->IsEnabled());
    Click(controls.define);
    CHECK(defines == 1);
    CHECK(radios == 0);
    CHECK(others == 0);
}

/// The same with the keyboard alone; the keys `on` and `back` go from one choice to the other.
template <class Picker>
void KeyboardAlone(int on, int back)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    stage.Fill(picker);
    Controls const controls(picker);
    int defines = 0;
    stage.Frame()->Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ++defines; }, 6022);
    controls.standard->SetFocus();
    Pump();
    Press(on);
    CHECK(!picker->GetDefaultOption());
    Press(WXK_TAB);
    REQUIRE(controls.define->HasFocus());
    Press(WXK_SPACE);
    CHECK(defines == 1);
    Press(WXK_TAB, wxMOD_SHIFT);
    Press(back);
    CHECK(picker->GetDefaultOption());
    CHECK(!controls.define->IsEnabled());
}

/// Two pickers on one form have nothing to do with each other.
template <class Picker>
void TwoOnOneForm()
{
    Stage stage;
    auto* const form = new wxPanel(stage.Frame());
    auto* const first = new Picker(form);
    auto* const second = new Picker(form);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(first);
    sizer->Add(second);
    form->SetSizer(sizer);
    stage.Fill(form);
    Click(Controls(second).custom);
    CHECK(first->GetDefaultOption());
    CHECK(!Controls(first).define->IsEnabled());
    CHECK(!second->GetDefaultOption());
    Click(Controls(first).custom);
    Click(Controls(second).standard);
    CHECK(!first->GetDefaultOption());
    CHECK(Controls(first).define->IsEnabled());
    CHECK(second->GetDefaultOption());
}
} // namespace prior_checks
