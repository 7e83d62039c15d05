#include "modelspec/PriorPicker.h"

#include "modelspec/PriorPickerChecks.h"
#include "modelspec/RoleLayout.h"

TEST_CASE("prior picker: two rows, the button in the second")
{
    Stage stage;
    auto* const picker = new PriorPicker(stage.Frame());
    prior_checks::Start(picker);
    prior_checks::Controls const controls(picker);
    auto* const grid = role_checks::CheckGrid(picker->GetSizer(), 2, 2, {}, {{0, 1}});
    REQUIRE(grid->GetItemCount() == 4);
    CHECK(Item(grid, 0)->GetWindow() == controls.standard);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{1, wxEXPAND | wxTOP | wxLEFT, 5});
    role_checks::CheckSpacer(Item(grid, 1), wxSize(1, 1), {0, 0, 0});
    CHECK(Item(grid, 2)->GetWindow() == controls.custom);
    CHECK(PlacementOf(Item(grid, 2)) == Placement{1, wxEXPAND | wxBOTTOM | wxLEFT, 5});
    CHECK(Item(grid, 3)->GetWindow() == controls.define);
    CHECK(PlacementOf(Item(grid, 3)) == Placement{10, wxEXPAND | wxBOTTOM | wxLEFT, 5});
    for (auto const* control : picker->GetChildren())
        CHECK(control->GetMinSize() == wxSize(80, 25));
}

TEST_CASE("prior picker: the handlers change the button alone")
{
    prior_checks::Handlers(&PriorPicker::OnDefaultChoice, &PriorPicker::OnCustomChoice);
}

TEST_CASE("prior picker: real clicks; presses travel up")
{
    prior_checks::RealClicks<PriorPicker>("PriorPicker");
}

TEST_CASE("prior picker: the keyboard alone")
{
    prior_checks::KeyboardAlone<PriorPicker>(WXK_DOWN, WXK_UP);
}

TEST_CASE("prior picker: two on one form")
{
    prior_checks::TwoOnOneForm<PriorPicker>();
}
