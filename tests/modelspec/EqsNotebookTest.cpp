#include "modelspec/EqsNotebook.h"

#include <algorithm>

#include "modelspec/EqsNotebookPage.h"
#include "modelspec/RoleChecks.h"
#include "support/InstalledIcon.h"
#include "support/TabClicks.h"
#include "support/WalkSteps.h"

using namespace role_checks;

namespace
{
enum
{
    DEP,
    IND
};

wxArrayString Variables() { return Names({"constant", "a", "b", "c", "d", "e"}); }

EqsNotebook* MakeNotebook(Stage& stage, wxArrayString names = Variables())
{
    auto* const notebook = new EqsNotebook(stage.Frame(), names, 200);
    stage.Fill(notebook);
    return notebook;
}

EqsNotebookPage* PageAt(EqsNotebook* notebook, std::size_t index)
{
    auto* const page = dynamic_cast<EqsNotebookPage*>(notebook->GetPage(index));
    REQUIRE(page);
    return page;
}

/// Moves the variables at `indices` of a page's left list to a role.
void Choose(EqsNotebookPage* page, std::size_t role, std::vector<int> const& indices)
{
    Controls const controls(page);
    SelectEntries(controls.Left(), indices);
    wxCommandEvent event;
    page->OnAllVarSelected(event);
    if (role == DEP)
        page->OnUpperButton(event);
    else
        page->OnLowerButton(event);
}

wxArrayString Offered(EqsNotebook* notebook, std::size_t index)
{
    return Controls(PageAt(notebook, index)).Left()->GetStrings();
}

/// Adds equations by program, as a click on the plus tab does, until there are `count`.
void AddUntil(EqsNotebook* notebook, std::size_t count)
{
    while (notebook->GetPageCount() < count + 1)
        notebook->SetSelection(notebook->GetPageCount() - 1);
}
} // namespace

TEST_CASE("equations notebook: a new one shows one equation before the plus tab")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);

    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", ""});
    CHECK(notebook->GetSelection() == 0);
    long const style = wxAUI_NB_TOP | wxAUI_NB_SCROLL_BUTTONS | wxAUI_NB_CLOSE_ON_ACTIVE_TAB;
    long const ownToolkit = wxTAB_TRAVERSAL | wxBORDER_NONE;
    CHECK((notebook->GetWindowStyle() & ~ownToolkit) == style);
    CHECK(notebook->GetTabCtrlHeight() == 30);
    auto* const plus = notebook->GetPage(1);
    CHECK(dynamic_cast<EqsNotebookPage*>(plus) == nullptr);
    CHECK(plus->GetChildren().empty());
    CHECK(plus->HasFlag(wxTAB_TRAVERSAL));
    CHECK(plus->HasFlag(wxNO_BORDER));
    CHECK(Offered(notebook, 0) == Names({"a", "b", "c", "d", "e"}));
    CHECK(!notebook->GetChanged());
    CHECK(notebook->GetDepVars() == Names({""}));
    CHECK(notebook->GetIndVars() == std::vector<wxArrayString>{Names({""})});

    auto names = Variables();
    auto* const alone = new EqsNotebook(stage.Frame(), names, 200);
    CHECK(alone->GetSize().x == 450);
    alone->Destroy();
}

TEST_CASE("equations notebook: a click on the plus tab adds an equation and shows it")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    ClickTab(notebook, 1);
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", "Equation 2", ""});
    CHECK(notebook->GetSelection() == 1);
    CHECK(notebook->GetPage(1)->IsShownOnScreen());
    CHECK(!notebook->GetPage(2)->IsShownOnScreen());
    ClickTab(notebook, 2);
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", "Equation 2", "Equation 3", ""});
    CHECK(notebook->GetSelection() == 2);
    CHECK(!notebook->GetChanged());
    Keep(Photograph(stage.Frame()), "EqsNotebook");
}

TEST_CASE("equations notebook: dependent variables are kept apart, independent ones are not")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    Choose(PageAt(notebook, 0), DEP, {1});
    Choose(PageAt(notebook, 0), IND, {0, 1});
    CHECK(Offered(notebook, 0) == Names({"d", "e"}));

    ClickTab(notebook, 1);
    CHECK(Offered(notebook, 1) == Names({"a", "c", "d", "e"}));
    Choose(PageAt(notebook, 1), DEP, {0});
    Choose(PageAt(notebook, 1), IND, {0});
    CHECK(notebook->GetDepVars() == Names({"b", "a"}));
    CHECK(notebook->GetIndVars() == std::vector<wxArrayString>{Names({"a", "c"}), Names({"c"})});

    // A tab learns of the others when it is entered. What stands in a list stays there.
    ClickTab(notebook, 0);
    CHECK(notebook->GetSelection() == 0);
    CHECK(Offered(notebook, 0) == Names({"d", "e"}));
    CHECK(PageAt(notebook, 0)->GetIndVar() == Names({"a", "c"}));
    CHECK(PageAt(notebook, 0)->GetDepVar() == "b");

    // Sent back on the first tab, a is still the dependent variable of the second: it isn't offered.
    Controls const first(PageAt(notebook, 0));
    wxCommandEvent event;
    SelectEntries(first.Role(IND), {0, 1});
    PageAt(notebook, 0)->OnIndVarSelected(event);
    PageAt(notebook, 0)->OnLowerButton(event);
    CHECK(Offered(notebook, 0) == Names({"c", "d", "e"}));

    // Free again there, it is offered on both tabs at the next visit and not before: a tab offers what
    // was free when it was entered.
    ClickTab(notebook, 1);
    Controls const second(PageAt(notebook, 1));
    SelectEntries(second.Role(DEP), {0});
    PageAt(notebook, 1)->OnDepVarSelected(event);
    PageAt(notebook, 1)->OnUpperButton(event);
    CHECK(Offered(notebook, 1) == Names({"d", "e"}));
    CHECK(Offered(notebook, 0) == Names({"c", "d", "e"}));
    ClickTab(notebook, 1);
    CHECK(Offered(notebook, 1) == Names({"a", "d", "e"}));
    ClickTab(notebook, 0);
    CHECK(Offered(notebook, 0) == Names({"a", "c", "d", "e"}));
}

TEST_CASE("equations notebook: the tab's own button closes an equation, and the others are numbered anew")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 3);
    for (std::size_t page = 0; page < 3; ++page)
    {
        ClickTab(notebook, page);
        Choose(PageAt(notebook, page), DEP, {0});
    }
    CHECK(notebook->GetDepVars() == Names({"a", "b", "c"}));

    ClickTab(notebook, 1);
    CHECK(!ClickCloseButton(notebook, 0));
    CHECK(!ClickCloseButton(notebook, 3));
    REQUIRE(ClickCloseButton(notebook, 1));
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", "Equation 2", ""});
    CHECK(notebook->GetDepVars() == Names({"a", "c"}));
    // The tab before it is shown and offers what has become free.
    CHECK(notebook->GetSelection() == 0);
    CHECK(Offered(notebook, 0) == Names({"b", "d", "e"}));

    // The first of two: the one behind it takes its place.
    REQUIRE(ClickCloseButton(notebook, 0));
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", ""});
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetDepVars() == Names({"c"}));
    CHECK(Offered(notebook, 0) == Names({"a", "b", "d", "e"}));
}

TEST_CASE("equations notebook: closing the only equation empties it")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    Choose(PageAt(notebook, 0), DEP, {0});
    Choose(PageAt(notebook, 0), IND, {0});
    CHECK(notebook->GetChanged());
    REQUIRE(ClickCloseButton(notebook, 0));
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", ""});
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetPage(0)->IsShownOnScreen());
    CHECK(notebook->GetDepVars() == Names({""}));
    CHECK(notebook->GetIndVars() == std::vector<wxArrayString>{Names({""})});
    CHECK(Offered(notebook, 0) == Names({"a", "b", "c", "d", "e"}));
    CHECK(!notebook->GetChanged());
}

TEST_CASE("equations notebook: at 98 equations the plus tab adds nothing and shows its empty panel")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 98);
    REQUIRE(notebook->GetPageCount() == 99);
    CHECK(notebook->GetPageText(97) == "Equation 98");
    CHECK(notebook->GetDepVars().size() == 98);

    // With so many tabs the strip is scrolled to its end for the click.
    Pump();
    TabStrip(notebook)->SetTabOffset(92);
    ClickTab(notebook, 98);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetSelection() == 98);
    CHECK(notebook->GetPage(98)->IsShownOnScreen());
    Keep(Photograph(stage.Frame()), "EqsNotebook-98");

    ClickTab(notebook, 97);
    CHECK(notebook->GetSelection() == 97);
    CHECK(notebook->GetPage(97)->IsShownOnScreen());

    // By program it is the same.
    notebook->SetSelection(98);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetSelection() == 98);
    notebook->SetSelection(0);
    CHECK(notebook->GetSelection() == 0);

    // A closed one makes room again.
    wxAuiNotebookEvent closing(wxEVT_AUINOTEBOOK_PAGE_CLOSE);
    closing.SetSelection(0);
    notebook->OnPageClosing(closing);
    CHECK(!closing.IsAllowed());
    CHECK(notebook->GetPageCount() == 98);
    CHECK(notebook->GetPageText(96) == "Equation 97");
    notebook->SetSelection(97);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetPageText(97) == "Equation 98");
}

TEST_CASE("equations notebook: an equation without variables keeps its place in the arrays")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 3);
    notebook->SetSelection(0);
    Choose(PageAt(notebook, 0), DEP, {0});
    Choose(PageAt(notebook, 0), IND, {0, 2});
    notebook->SetSelection(2);
    Choose(PageAt(notebook, 2), DEP, {0});
    CHECK(notebook->GetDepVars() == Names({"a", "", "b"}));
    CHECK(notebook->GetIndVars() == std::vector<wxArrayString>{Names({"b", "d"}), Names({""}), Names({""})});
}

TEST_CASE("equations notebook: the changed flag is that of the pages that are there")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 2);
    CHECK(!notebook->GetChanged());
    wxCommandEvent event;
    PageAt(notebook, 1)->OnLowerButton(event);
    CHECK(notebook->GetChanged());
    CHECK(!PageAt(notebook, 0)->GetChanged());

    wxAuiNotebookEvent closing(wxEVT_AUINOTEBOOK_PAGE_CLOSE);
    closing.SetSelection(1);
    notebook->OnPageClosing(closing);
    CHECK(!notebook->GetChanged());

    notebook->SetChanged(true);
    CHECK(PageAt(notebook, 0)->GetChanged());
    AddUntil(notebook, 2);
    CHECK(notebook->GetChanged());
    CHECK(!PageAt(notebook, 1)->GetChanged());
    notebook->SetChanged(false);
    CHECK(!notebook->GetChanged());
}

TEST_CASE("equations notebook: another dataset begins anew, whichever tab is shown")
{
    for (std::size_t const shown : {0, 1, 2})
    {
        Stage stage;
        auto* const notebook = MakeNotebook(stage);
        AddUntil(notebook, 3);
        notebook->SetSelection(shown);
        Choose(PageAt(notebook, shown), DEP, {0});
        auto names = Names({"constant", "x", "y"});
        notebook->OnDatasetChanged(names);
        CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", ""});
        CHECK(notebook->GetSelection() == 0);
        CHECK(!notebook->GetChanged());
        CHECK(notebook->GetDepVars() == Names({""}));
        CHECK(Offered(notebook, 0) == Names({"x", "y"}));
        ClickTab(notebook, 1);
        CHECK(Offered(notebook, 1) == Names({"x", "y"}));
    }
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 98);
    notebook->SetSelection(98);
    auto names = Names({"constant", "x"});
    notebook->OnDatasetChanged(names);
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", ""});
    CHECK(Offered(notebook, 0) == Names({"x"}));
}

TEST_CASE("equations notebook: without names it works, with empty lists")
{
    Stage stage;
    for (auto const& names : {Names({}), Names({"constant"})})
    {
        auto copy = names;
        auto* const notebook = new EqsNotebook(stage.Frame(), copy, 200);
        AddUntil(notebook, 2);
        CHECK(Offered(notebook, 0).empty());
        CHECK(Offered(notebook, 1).empty());
        Choose(PageAt(notebook, 1), DEP, {});
        CHECK(notebook->GetDepVars() == Names({"", ""}));
        notebook->Destroy();
    }
}

TEST_CASE("equations notebook: hostile names stay what they are")
{
    Stage stage;
    auto const names = Names({"a", "a", "A", "", "größe", "a", "b_"});
    auto* const notebook = MakeNotebook(stage, names);
    CHECK(Offered(notebook, 0) == Names({"a", "A", "", "größe", "a", "b_"}));
    // One of two that are called alike: the other stays on offer.
    Choose(PageAt(notebook, 0), DEP, {0});
    AddUntil(notebook, 2);
    CHECK(Offered(notebook, 1) == Names({"A", "", "größe", "a", "b_"}));
    Choose(PageAt(notebook, 1), DEP, {0});
    CHECK(notebook->GetDepVars() == Names({"a", "A"}));
    // A tab that is entered again takes all that are called like its dependent variable for that one.
    notebook->SetSelection(0);
    CHECK(Offered(notebook, 0) == Names({"", "größe", "b_"}));
}

TEST_CASE("equations notebook: the plus tab shows its icon, and a missing one is passed over")
{
    Stage stage;
    CheckIcon("i_plus.png", wxSize(16, 16),
              [&]
              {
                  auto* const notebook = MakeNotebook(stage);
                  wxBitmap const icon = notebook->GetPageBitmap(1);
                  notebook->Destroy();
                  return icon;
              });

    // Nowhere an installation: no box, no line in the log, and the tab works.
    auto const before = Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM;
    Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = "/nowhere";
    auto* const notebook = MakeNotebook(stage);
    Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = before;
    CHECK(!notebook->GetPageBitmap(1).IsOk());
    ClickTab(notebook, 1);
    CHECK(TabTexts(notebook) == std::vector<wxString>{"Equation 1", "Equation 2", ""});
}

TEST_CASE("equations notebook: the keyboard alone chooses the variables of an equation")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    Controls const controls(PageAt(notebook, 0));
    controls.Left()->SetFocus();
    Pump();
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    CHECK(Selected(controls.Left()) == std::vector<int>{1});
    Press(WXK_TAB);
    CHECK(controls.Button(DEP)->HasFocus());
    Press(WXK_SPACE);
    CHECK(notebook->GetDepVars() == Names({"b"}));

    // Past the filled list, whose entry GTK selects when it gets the focus, to the other button.
    Press(WXK_TAB, wxMOD_SHIFT);
    CHECK(controls.Left()->HasFocus());
    Press(WXK_DOWN);
    CHECK(Selected(controls.Left()).size() == 1);
    Press(WXK_TAB);
    Press(WXK_TAB);
    CHECK(controls.Button(IND)->HasFocus());
    Press(WXK_SPACE);
    CHECK(notebook->GetIndVars()[0].size() == 1);
    CHECK(!notebook->GetIndVars()[0][0].empty());
    Press(WXK_TAB);
    CHECK(controls.Role(DEP)->HasFocus());
    Press(WXK_TAB);
    CHECK(controls.Role(IND)->HasFocus());
}

TEST_CASE("equations notebook: a random walk loses nothing and invents nothing")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    // Nothing is looked at, so nothing need be painted.
    stage.Frame()->Hide();
    auto names = Variables();
    unsigned const seed = 20261121;
    std::mt19937 random(seed);
    std::vector<wxString> deps{""};
    std::vector<wxArrayString> inds{Names({})};
    // What each page was told when it was entered: all names but the dependent variables of then.
    std::vector<wxArrayString> told{names};
    auto const tell = [&]
    {
        auto& here = told[static_cast<std::size_t>(notebook->GetSelection())];
        here.clear();
        for (wxString const& name : names)
            if (std::find(deps.begin(), deps.end(), name) == deps.end())
                here.Add(name);
    };

    for (int step = 0; step < WALK_STEPS; ++step)
    {
        INFO("seed " << seed << ", step " << step);
        unsigned const current = static_cast<unsigned>(notebook->GetSelection());
        REQUIRE(current < deps.size());
        auto* const page = PageAt(notebook, current);
        Controls const controls(page);
        wxCommandEvent event;
        unsigned const kind = random() % 32;
        if (kind == 0 && deps.size() < 6)
        {
            notebook->SetSelection(notebook->GetPageCount() - 1);
            deps.emplace_back();
            inds.emplace_back();
            told.emplace_back();
            tell();
        }
        else if (kind == 1)
        {
            wxAuiNotebookEvent closing(wxEVT_AUINOTEBOOK_PAGE_CLOSE);
            closing.SetSelection(static_cast<int>(current));
            notebook->OnPageClosing(closing);
            deps.erase(deps.begin() + current);
            inds.erase(inds.begin() + current);
            told.erase(told.begin() + current);
            if (deps.empty())
            {
                deps.emplace_back();
                inds.emplace_back();
                told.emplace_back();
            }
            tell();
        }
        else if (kind == 2 && random() % 16 == 0)
        {
            names = random() % 2 == 0 ? Variables() : Names({"constant", "u", "v", "w", "x", "y", "z"});
            notebook->OnDatasetChanged(names);
            deps = {""};
            inds = {Names({})};
            told = {names};
        }
        else if (kind < 8)
        {
            std::size_t const entered = random() % deps.size();
            notebook->SetSelection(entered);
            if (entered != current)
                tell();
        }
        else if (kind < 20)
        {
            // In, to one of the roles.
            auto const some = SomeOf(controls.Left()->GetCount(), random);
            std::size_t const role = random() % 3 == 0 ? DEP : IND;
            auto const offered = controls.Left()->GetStrings();
            Choose(page, role, some);
            if (role == DEP && deps[current].empty() && !some.empty())
                deps[current] = offered[static_cast<std::size_t>(some[0])];
            if (role == IND)
                for (int const index : some)
                    inds[current].Add(offered[static_cast<std::size_t>(index)]);
        }
        else if (kind < 24)
        {
            controls.Role(DEP)->SetSelection(deps[current].empty() ? wxNOT_FOUND : 0);
            page->OnDepVarSelected(event);
            page->OnUpperButton(event);
            deps[current].clear();
        }
        else
        {
            auto const some = SomeOf(controls.Role(IND)->GetCount(), random);
            SelectEntries(controls.Role(IND), some);
            page->OnIndVarSelected(event);
            page->OnLowerButton(event);
            for (auto index = some.rbegin(); index != some.rend(); ++index)
                inds[current].RemoveAt(static_cast<std::size_t>(*index));
        }

        REQUIRE(notebook->GetPageCount() == deps.size() + 1);
        wxArrayString expectedDeps;
        std::vector<wxArrayString> expectedInds;
        for (std::size_t page_ = 0; page_ < deps.size(); ++page_)
        {
            REQUIRE(notebook->GetPageText(page_) == wxString::Format("Equation %zu", page_ + 1));
            expectedDeps.Add(deps[page_]);
            expectedInds.push_back(inds[page_].empty() ? Names({""}) : inds[page_]);
        }
        REQUIRE(notebook->GetDepVars() == expectedDeps);
        REQUIRE(notebook->GetIndVars() == expectedInds);

        std::size_t const shown = static_cast<std::size_t>(notebook->GetSelection());
        wxArrayString offered;
        for (std::size_t i = 1; i < told[shown].size(); ++i)
            if (told[shown][i] != deps[shown] && inds[shown].Index(told[shown][i]) == wxNOT_FOUND)
                offered.Add(told[shown][i]);
        REQUIRE(Offered(notebook, shown) == offered);
    }
}
