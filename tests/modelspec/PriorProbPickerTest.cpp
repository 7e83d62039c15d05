#include "modelspec/PriorProbPicker.h"

#include "modelspec/PriorPickerChecks.h"
#include "modelspec/RoleLayout.h"

TEST_CASE("prior probability picker: one row")
{
    Stage stage;
    auto* const picker = new PriorProbPicker(stage.Frame());
    prior_checks::Start(picker);
    prior_checks::Controls const controls(picker);
    auto* const grid = role_checks::CheckGrid(picker->GetSizer(), 1, 3, {}, {{1, 1}});
    REQUIRE(grid->GetItemCount() == 3);
    CHECK(Item(grid, 0)->GetWindow() == controls.standard);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{1, wxEXPAND, 5});
    role_checks::CheckSpacer(Item(grid, 1), wxSize(150, 0), {1, wxEXPAND, 5});
    CHECK(PlacementOf(Item(grid, 2)) == Placement{1, wxEXPAND | wxALL, 5});
    auto* const own = dynamic_cast<wxGridSizer*>(Item(grid, 2)->GetSizer());
    REQUIRE(own);
    CHECK(!dynamic_cast<wxFlexGridSizer*>(own));
    CHECK(own->GetRows() == 1);
    CHECK(own->GetCols() == 2);
    CHECK(own->GetHGap() == 0);
    CHECK(own->GetVGap() == 0);
    REQUIRE(own->GetItemCount() == 2);
    CHECK(Item(own, 0)->GetWindow() == controls.custom);
    CHECK(PlacementOf(Item(own, 0)) == Placement{1, wxEXPAND, 5});
    CHECK(Item(own, 1)->GetWindow() == controls.define);
    CHECK(PlacementOf(Item(own, 1)) == Placement{1, wxEXPAND, 5});
}

TEST_CASE("prior probability picker: the handlers change the button alone")
{
    prior_checks::Handlers(&PriorProbPicker::OnDefaultButton, &PriorProbPicker::OnCustomButton);
}

TEST_CASE("prior probability picker: real clicks; presses travel up")
{
    prior_checks::RealClicks<PriorProbPicker>("PriorProbPicker");
}

TEST_CASE("prior probability picker: the keyboard alone")
{
    prior_checks::KeyboardAlone<PriorProbPicker>(WXK_RIGHT, WXK_LEFT);
}

TEST_CASE("prior probability picker: two on one form")
{
    prior_checks::TwoOnOneForm<PriorProbPicker>();
}
