#include "dialogs/external/InitsNotebook.h"

#include <random>

#include <catch2/catch.hpp>

#include <wx/textctrl.h>

#include "dialogs/external/InitsNotebookPage.h"
#include "engine/Globals.h"
#include "support/AsciiLocale.h"
#include "support/TabClicks.h"

namespace
{
using Inits = std::map<std::string, std::string>;
using Texts = std::vector<wxString>;

InitsNotebook* MakeNotebook(Stage& stage)
{
    auto* const notebook = new InitsNotebook(stage.Frame());
    stage.Fill(notebook);
    return notebook;
}

wxTextCtrl* FieldOf(InitsNotebook* notebook, std::size_t index)
{
    REQUIRE(dynamic_cast<InitsNotebookPage*>(notebook->GetPage(index)));
    return Find<wxTextCtrl>(notebook->GetPage(index));
}

void Write(InitsNotebook* notebook, std::size_t index, wxString const& text)
{
    FieldOf(notebook, index)->SetValue(text);
}

/// Adds chains by program, as a click on the last tab does, until there are `count`.
void AddUntil(InitsNotebook* notebook, std::size_t count)
{
    while (notebook->GetPageCount() < count + 1)
        notebook->SetSelection(notebook->GetPageCount() - 1);
}

/// Tells the notebook that the user closes a tab; nothing else may be done about it.
void Close(InitsNotebook* notebook, std::size_t index)
{
    wxAuiNotebookEvent closing(wxEVT_AUINOTEBOOK_PAGE_CLOSE);
    closing.SetSelection(static_cast<int>(index));
    notebook->OnPageClosing(closing);
    CHECK(!closing.IsAllowed());
}

/// What the notebook answers when page `index` is about to be entered.
wxAuiNotebookEvent Enter(InitsNotebook* notebook, std::size_t index)
{
    wxAuiNotebookEvent changing(wxEVT_AUINOTEBOOK_PAGE_CHANGING);
    changing.SetSelection(static_cast<int>(index));
    notebook->OnPageChanging(changing);
    return changing;
}
} // namespace

TEST_CASE("initial values: a new notebook shows one chain before the plus tab")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    CHECK(TabTexts(notebook) == Texts{"chain1", ""});
    CHECK(notebook->GetSelection() == 0);
    long const ownToolkit = wxTAB_TRAVERSAL | wxBORDER_NONE;
    CHECK((notebook->GetWindowStyle() & ~ownToolkit) == 2305);
    CHECK(notebook->GetTabCtrlHeight() == 30);
    auto* const plus = notebook->GetPage(1);
    CHECK(dynamic_cast<InitsNotebookPage*>(plus) == nullptr);
    CHECK(plus->GetChildren().empty());
    CHECK(plus->GetWindowStyle() == (wxTAB_TRAVERSAL | wxBORDER_NONE));
    CHECK(FieldOf(notebook, 0)->IsShownOnScreen());
    CHECK(notebook->GetInits().empty());
}

TEST_CASE("initial values: a click on the plus tab adds a chain before it and shows it")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    ClickTab(notebook, 1);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", ""});
    CHECK(notebook->GetSelection() == 1);
    CHECK(notebook->GetPage(1)->IsShownOnScreen());
    CHECK(!notebook->GetPage(2)->IsShownOnScreen());

    Click(FieldOf(notebook, 1));
    TypeText("a = 1");
    Press(WXK_RETURN);
    TypeText("b");
    CHECK(notebook->GetInits() == Inits{{"chain2", "a = 1\nb"}});

    // A real click enters a chain, and comes back.
    ClickTab(notebook, 0);
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetPage(0)->IsShownOnScreen());
    Click(FieldOf(notebook, 0));
    TypeText("c");
    ClickTab(notebook, 1);
    CHECK(notebook->GetPage(1)->IsShownOnScreen());
    CHECK(notebook->GetInits() == Inits{{"chain1", "c"}, {"chain2", "a = 1\nb"}});
    ClickTab(notebook, 2);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", "chain3", ""});
    CHECK(notebook->GetSelection() == 2);
}

TEST_CASE("initial values: a page is entered by an event that goes on, the plus tab by none")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 2);
    auto const chain = Enter(notebook, 0);
    CHECK(chain.GetSkipped());
    CHECK(chain.IsAllowed());
    CHECK(notebook->GetSelection() == 1);
    auto const plus = Enter(notebook, 2);
    CHECK(!plus.GetSkipped());
    CHECK(!plus.IsAllowed());
    CHECK(notebook->GetSelection() == 2);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", "chain3", ""});
}

TEST_CASE("initial values: the second of three chains is closed, and the third takes its number")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 3);
    Write(notebook, 0, "a");
    Write(notebook, 1, "b");
    Write(notebook, 2, "c");
    ClickTab(notebook, 1);
    CHECK(!ClickCloseButton(notebook, 0));
    CHECK(!ClickCloseButton(notebook, 3));
    REQUIRE(ClickCloseButton(notebook, 1));
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", ""});
    CHECK(notebook->GetInits() == Inits{{"chain1", "a"}, {"chain2", "c"}});
    CHECK(notebook->GetSelection() == 0);

    // The first of two: the one behind it moves up.
    REQUIRE(ClickCloseButton(notebook, 0));
    CHECK(TabTexts(notebook) == Texts{"chain1", ""});
    CHECK(notebook->GetInits() == Inits{{"chain1", "c"}});
    CHECK(notebook->GetSelection() == 0);
}

TEST_CASE("initial values: the only chain is closed, and an empty one takes its place")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    Write(notebook, 0, "tau = 10");
    REQUIRE(ClickCloseButton(notebook, 0));
    CHECK(TabTexts(notebook) == Texts{"chain1", ""});
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetPage(0)->IsShownOnScreen());
    CHECK(FieldOf(notebook, 0)->GetValue().empty());
    CHECK(notebook->GetInits().empty());
    Click(FieldOf(notebook, 0));
    TypeText("x");
    CHECK(notebook->GetInits() == Inits{{"chain1", "x"}});
}

TEST_CASE("initial values: with 98 chains the plus tab adds nothing and shows its empty panel")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    // So many need not be painted one after the other.
    stage.Frame()->Hide();
    AddUntil(notebook, 98);
    stage.Frame()->Show();
    PumpUntil([&] { return stage.Frame()->IsActive(); });
    REQUIRE(notebook->GetPageCount() == 99);
    CHECK(notebook->GetPageText(97) == "chain98");
    Write(notebook, 97, "last");

    auto const plus = Enter(notebook, 98);
    CHECK(!plus.GetSkipped());
    CHECK(plus.IsAllowed());
    notebook->SetSelection(97);

    // With so many tabs the strip is scrolled to its end for the click.
    Pump();
    TabStrip(notebook)->SetTabOffset(92);
    ClickTab(notebook, 98);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetSelection() == 98);
    CHECK(notebook->GetPage(98)->IsShownOnScreen());

    // The button that now stands on it closes nothing.
    REQUIRE(ClickCloseButton(notebook, 98));
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetSelection() == 98);
    CHECK(notebook->GetInits() == Inits{{"chain98", "last"}});

    ClickTab(notebook, 97);
    CHECK(notebook->GetSelection() == 97);
    CHECK(notebook->GetPage(97)->IsShownOnScreen());

    // The last chain is closed by hand, and added again.
    REQUIRE(ClickCloseButton(notebook, 97));
    CHECK(notebook->GetPageCount() == 98);
    CHECK(notebook->GetSelection() == 96);
    CHECK(notebook->GetInits().empty());
    // The toolkit has scrolled the strip; the tab may lie under the buttons at its end.
    TabStrip(notebook)->SetTabOffset(92);
    ClickTab(notebook, 97);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetSelection() == 97);
    CHECK(notebook->GetPageText(97) == "chain98");
    CHECK(notebook->GetInits().empty());
    Write(notebook, 97, "last");

    // A closed one makes room again.
    Close(notebook, 0);
    CHECK(notebook->GetPageCount() == 98);
    CHECK(notebook->GetInits() == Inits{{"chain97", "last"}});
    notebook->SetSelection(97);
    CHECK(notebook->GetPageCount() == 99);
    CHECK(notebook->GetPageText(97) == "chain98");
    CHECK(notebook->GetSelection() == 97);
}

TEST_CASE("initial values: the texts stand in the order of their titles as strings")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 11);
    for (std::size_t chain : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9})
        Write(notebook, chain, wxString::Format("%zu", chain + 1));
    std::vector<std::string> keys;
    for (auto const& [key, text] : notebook->GetInits())
    {
        keys.push_back(key);
        CHECK(key == "chain" + text);
    }
    CHECK(keys
          == std::vector<std::string>{"chain1", "chain10", "chain2", "chain3", "chain4", "chain5",
                                      "chain6", "chain7", "chain8", "chain9"});
}

TEST_CASE("initial values: a text is taken as it stands, and an empty one not at all")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 4);
    Write(notebook, 0, " ");
    Write(notebook, 1, "\n\tbeta = 1,\n\n");
    std::string const greek = "\xCE\xB2 = \"\xE6\x97\xA5\"";
    Write(notebook, 3, wxString::FromUTF8(greek));
    Inits expected{{"chain1", " "}, {"chain2", "\n\tbeta = 1,\n\n"}, {"chain4", greek}};
    CHECK(notebook->GetInits() == expected);

    // Without a narrow form there is no text left, but there was one.
    AsciiLocale const ascii;
    expected["chain4"] = "";
    CHECK(notebook->GetInits() == expected);
}

TEST_CASE("initial values: the plus tab works without its icon")
{
    Stage stage;
    auto const before = Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM;
    Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = "/nowhere";
    auto* const notebook = MakeNotebook(stage);
    Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = before;
    CHECK(!notebook->GetPageBitmap(1).IsOk());
    ClickTab(notebook, 1);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", ""});
}

TEST_CASE("initial values: the keys of the tab strip add a chain too, and never show the plus tab")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    AddUntil(notebook, 2);
    Write(notebook, 1, "b");
    auto const selectedBy = [&](int key)
    {
        TabStrip(notebook)->SetFocus();
        Press(key);
        Pump(50);
        return notebook->GetSelection();
    };
    CHECK(selectedBy(WXK_HOME) == 0);
    CHECK(selectedBy(WXK_LEFT) == 0);
    CHECK(selectedBy(WXK_RIGHT) == 1);
    CHECK(selectedBy(WXK_END) == 2);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", "chain3", ""});
    CHECK(selectedBy(WXK_RIGHT) == 3);
    CHECK(TabTexts(notebook) == Texts{"chain1", "chain2", "chain3", "chain4", ""});
    CHECK(notebook->GetInits() == Inits{{"chain2", "b"}});
}

TEST_CASE("initial values: a random walk loses no text and mixes up none")
{
    Stage stage;
    auto* const notebook = MakeNotebook(stage);
    // Nothing is looked at, so nothing need be painted.
    stage.Frame()->Hide();
    unsigned const seed = 20261121;
    std::mt19937 random(seed);
    Texts chains{""};
    for (int step = 0; step < 1000; ++step)
    {
        INFO("seed " << seed << ", step " << step);
        auto const current = static_cast<std::size_t>(notebook->GetSelection());
        REQUIRE(current < chains.size());
        unsigned const kind = random() % 8;
        if (kind == 0 && chains.size() < 12)
        {
            AddUntil(notebook, chains.size() + 1);
            chains.emplace_back();
            CHECK(notebook->GetSelection() == static_cast<int>(chains.size()) - 1);
        }
        else if (kind == 1)
        {
            Close(notebook, current);
            chains.erase(chains.begin() + static_cast<std::ptrdiff_t>(current));
            if (chains.empty())
                chains.emplace_back();
        }
        else if (kind < 4)
            notebook->SetSelection(random() % chains.size());
        else
        {
            chains[current] = random() % 4 == 0 ? wxString() : wxString::Format("text %d", step);
            Write(notebook, current, chains[current]);
        }

        REQUIRE(notebook->GetPageCount() == chains.size() + 1);
        Inits expected;
        for (std::size_t chain = 0; chain < chains.size(); ++chain)
        {
            auto const title = wxString::Format("chain%zu", chain + 1);
            REQUIRE(notebook->GetPageText(chain) == title);
            if (!chains[chain].empty())
                expected[title.ToStdString()] = chains[chain].ToStdString();
        }
        REQUIRE(notebook->GetPageText(chains.size()).empty());
        REQUIRE(notebook->GetInits() == expected);
    }
}
