#include "modelspec/EqsNotebookPage.h"

#include "modelspec/RoleChecks.h"

using namespace role_checks;

namespace
{
enum
{
    DEP,
    IND
};

Driver<EqsNotebookPage> Drive(EqsNotebookPage* page)
{
    return {page,
            {&EqsNotebookPage::OnAllVarSelected,
             {&EqsNotebookPage::OnDepVarSelected, &EqsNotebookPage::OnIndVarSelected},
             {&EqsNotebookPage::OnUpperButton, &EqsNotebookPage::OnLowerButton}}};
}

EqsNotebookPage* MakePage(Stage& stage, wxArrayString names = Names({"constant", "a", "b", "c", "d"}))
{
    return new EqsNotebookPage(stage.Frame(), names, 77);
}
} // namespace

TEST_CASE("equation: both sides stand in one grid, and the lower list has a height of its own")
{
    Stage stage;
    auto* const page = MakePage(stage);
    Controls const controls(page);
    int const row = controls.Left()->GetFont().GetPixelSize().GetHeight() + 12;

    REQUIRE(controls.lists.size() == 3);
    CHECK(controls.choice == nullptr);
    CHECK(controls.captions[0]->GetLabel() == "Variables in Dataset");
    CHECK(controls.captions[1]->GetLabel() == "Dependent Variable");
    CHECK(controls.captions[2]->GetLabel() == "Independent Variables");
    CHECK(controls.Left()->GetMinSize() == wxSize(180, -1));
    CHECK(controls.Role(DEP)->GetMinSize() == wxSize(180, row));
    CHECK(controls.Role(IND)->GetMinSize() == wxSize(180, 350));
    CHECK(controls.Button(DEP)->GetMinSize() == wxSize(60, row));
    CHECK(controls.Button(DEP)->GetFont().GetPointSize() == 12);

    auto* const grid = dynamic_cast<wxFlexGridSizer*>(page->GetSizer());
    REQUIRE(grid);
    CHECK(grid->GetRows() == 1);
    CHECK(grid->GetCols() == 2);
    REQUIRE(grid->GetItemCount() == 2);
    auto* const left = dynamic_cast<wxFlexGridSizer*>(Item(grid, 0)->GetSizer());
    auto* const right = dynamic_cast<wxFlexGridSizer*>(Item(grid, 1)->GetSizer());
    CHECK(PlacementOf(Item(grid, 0)) == Placement{1, wxEXPAND, 5});
    CHECK(PlacementOf(Item(grid, 1)) == Placement{1, wxEXPAND, 5});
    CHECK(left->GetRows() == 2);
    CHECK(left->IsRowGrowable(1));
    CHECK(right->GetRows() == 4);
    CHECK(right->GetCols() == 2);
    CHECK(right->IsRowGrowable(3));
    CHECK(!right->IsRowGrowable(1));
    CHECK(Item(right, 2)->GetWindow() == controls.Button(DEP));
    CHECK(Item(right, 3)->GetWindow() == controls.Role(DEP));
    CHECK(Item(right, 7)->GetWindow() == controls.Role(IND));
    CHECK(!page->GetChanged());
}

TEST_CASE("equation: a variable comes back among the names that the page was told of")
{
    Stage stage;
    auto* const page = MakePage(stage);
    auto driver = Drive(page);
    auto* const left = driver.controls.Left();
    CHECK(left->GetStrings() == Names({"a", "b", "c", "d"}));
    driver.MoveIn(IND, {0, 2});
    CHECK(page->GetIndVar() == Names({"a", "c"}));
    CHECK(page->GetDepVar().empty());

    // From now on d is not to be offered; the list shows it at its next redraw.
    auto fewer = Names({"constant", "a", "b", "c"});
    page->SetAvailableVarNames(fewer);
    CHECK(left->GetStrings() == Names({"b", "d"}));
    driver.MoveOut(IND, {1});
    CHECK(left->GetStrings() == Names({"b", "c"}));
    CHECK(page->GetIndVar() == Names({"a"}));

    // Its own dependent variable is not among the names that it is told of: that does nothing.
    driver.MoveIn(DEP, {0});
    CHECK(page->GetDepVar() == "b");
    auto without = Names({"constant", "a", "c", "d"});
    page->SetAvailableVarNames(without);
    page->RedrawLhsVarList(without);
    CHECK(left->GetStrings() == Names({"c", "d"}));
    CHECK(page->GetDepVar() == "b");
}

TEST_CASE("equation: real clicks move variables both ways")
{
    Stage stage;
    auto* const page = MakePage(stage);
    stage.Fill(page);
    Controls const controls(page);

    ClickEntry(controls.Left(), 1);
    Click(controls.Button(DEP));
    ClickEntry(controls.Left(), 0);
    ClickEntry(controls.Left(), 2, WXK_CONTROL);
    Click(controls.Button(IND));
    CHECK(page->GetDepVar() == "b");
    CHECK(page->GetIndVar() == Names({"a", "d"}));
    CHECK(page->GetChanged());

    ClickEntry(controls.Role(DEP), 0);
    ClickEntry(controls.Role(IND), 0);
    CHECK(controls.Button(DEP)->GetLabel() == "<<");
    CHECK(controls.Button(IND)->GetLabel() == "<<");
    Click(controls.Button(DEP));
    Click(controls.Button(IND));
    CHECK(page->GetDepVar().empty());
    CHECK(page->GetIndVar() == Names({"d"}));
    CHECK(controls.Left()->GetStrings() == Names({"a", "b", "c"}));
}

TEST_CASE("equation: a random walk loses nothing and invents nothing")
{
    Stage stage;
    auto const names = Names({"constant", "a", "b", "c", "d", "e", "f"});
    auto* const page = MakePage(stage, names);
    auto driver = Drive(page);
    wxArrayString all = names;
    all.RemoveAt(0);
    RandomWalk<EqsNotebookPage>(driver,
                                [&]
                                {
                                    auto held = Bag(driver.controls.Left()->GetStrings());
                                    held.merge(Bag(driver.controls.Role(DEP)->GetStrings()));
                                    held.merge(Bag(driver.controls.Role(IND)->GetStrings()));
                                    REQUIRE(held == Bag(all));
                                    REQUIRE(InOrderOf(driver.controls.Left()->GetStrings(), all));
                                });
}
