#include <catch2/catch.hpp>

#include <numeric>

#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "support/ListClicks.h"

using namespace zenqo;

namespace
{
using Indices = std::vector<int>;

wxArrayString Names(int count)
{
    wxArrayString names;
    for (int i = 0; i < count; ++i)
        names.Add(wxString::Format("name_%05d", i));
    return names;
}

Indices FromTo(int first, int last)
{
    Indices indices(static_cast<std::size_t>(last - first + 1));
    std::iota(indices.begin(), indices.end(), first);
    return indices;
}

/// A list on the screen, of which about a dozen rows are in sight, and the events that it sends.
struct ShownList
{
    explicit ShownList(int count, long style = LIST_OF_MANY)
        : list(MakeList(stage.Frame(), wxDefaultSize, style))
    {
        AppendItems(list, Names(count));
        list->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ++events; });
        stage.Fill(list);
    }

    /// True if entry `index` is at the top of the window; the toolkit may leave a line of the one above.
    bool IsAtTop(int index) const
    {
        int const top = TopAtRest(list);
        return top == index || top == index - 1;
    }

    Stage stage{wxSize(300, 300)};
    wxListBox* list;
    int events = 0;
};
} // namespace

TEST_CASE("the entries of a list are told whole, alone, and as getters give them")
{
    Stage stage;
    auto* const list = MakeList(stage.Frame(), wxSize(180, 100), LIST_OF_MANY);
    CHECK(ItemsOf(list).empty());
    REQUIRE(ItemsOrEmpty(list).size() == 1);
    CHECK(ItemsOrEmpty(list)[0].empty());
    CHECK(OnlyItem(list).empty());
    CHECK(SelectionsOf(list).empty());
    CHECK(ItemsAt(list, {}).empty());
    AppendItems(list, {});
    CHECK(list->IsEmpty());
    DeselectAll(list);
    DeleteItems(list, {});
    ShowItems(list, {});
    SelectItems(list, {});
    CHECK(list->IsEmpty());

    wxArrayString names;
    names.Add("b");
    AppendItems(list, names);
    CHECK(OnlyItem(list) == "b");
    CHECK(ItemsOrEmpty(list) == names);

    names.Add("");
    names.Add(wxString::FromUTF8("données"));
    names.Add("b");
    ShowItems(list, names);
    CHECK(ItemsOf(list) == names);
    CHECK(ItemsOrEmpty(list) == names);
    CHECK(OnlyItem(list).empty());
    wxArrayString picked;
    picked.Add(names[2]);
    picked.Add("b");
    CHECK(ItemsAt(list, {2, 3}) == picked);
}

TEST_CASE("entries are selected and deselected by program without an event")
{
    ShownList shown(5000);
    auto const most = FromTo(3, 4998);
    SelectItems(shown.list, most);
    CHECK(SelectionsOf(shown.list) == most);
    CHECK(shown.list->HasMultipleSelection());
    SelectItems(shown.list, {0, 4999});
    CHECK(SelectionsOf(shown.list) == Indices{0, 4999});
    DeselectAll(shown.list);
    CHECK(SelectionsOf(shown.list).empty());
    Pump();
    CHECK(shown.events == 0);

    // What the program selected is no news when the user selects something else.
    SelectItems(shown.list, {1, 2});
    shown.list->SetFirstItem(0);
    REQUIRE(shown.IsAtTop(0));
    ClickEntry(shown.list, 1);
    CHECK(SelectionsOf(shown.list) == Indices{1});
    CHECK(shown.events == 1);
    ClickEntryAgain(shown.list, 1);
    CHECK(shown.events == 1);
}

TEST_CASE("the row clicked last is deleted, and the others stay selected")
{
    ShownList shown(8);
    ClickEntry(shown.list, 1);
    ClickEntry(shown.list, 3, WXK_CONTROL);
    ClickEntry(shown.list, 5, WXK_CONTROL);
    REQUIRE(SelectionsOf(shown.list) == Indices{1, 3, 5});
    int const events = shown.events;

    DeleteItems(shown.list, {5});
    CHECK(SelectionsOf(shown.list) == Indices{1, 3});
    DeleteItems(shown.list, {0, 2, 4});
    CHECK(SelectionsOf(shown.list) == Indices{0, 1});
    CHECK(shown.list->GetStrings()[0] == "name_00001");
    CHECK(shown.list->GetStrings()[1] == "name_00003");
    CHECK(shown.list->GetStrings()[2] == "name_00006");
    CHECK(shown.list->GetCount() == 4);
    Pump();
    CHECK(SelectionsOf(shown.list) == Indices{0, 1});
    CHECK(shown.events == events);
}

TEST_CASE("the clicked row is deleted, and its neighbour does not become selected")
{
    ShownList shown(8);
    int const clicked = GENERATE(0, 3, 7);
    ClickEntry(shown.list, clicked);
    DeleteItems(shown.list, {clicked});
    Pump();
    CHECK(SelectionsOf(shown.list).empty());
    CHECK(shown.list->GetCount() == 7);

    // The next click is heard again.
    ClickEntry(shown.list, 2);
    CHECK(shown.events == 2);
}

TEST_CASE("a list of one loses its clicked entry and hears the next click")
{
    ShownList shown(2, LIST_OF_ONE);
    ClickEntry(shown.list, 0);
    CHECK(SelectionsOf(shown.list) == Indices{0});
    DeselectAll(shown.list);
    CHECK(SelectionsOf(shown.list).empty());
    ClickEntryAgain(shown.list, 0);
    CHECK(SelectionsOf(shown.list) == Indices{0});
    CHECK(shown.events == 2);

    DeleteItems(shown.list, {0});
    Pump();
    CHECK(SelectionsOf(shown.list).empty());
    CHECK(OnlyItem(shown.list) == "name_00001");
    ClickEntry(shown.list, 0);
    CHECK(SelectionsOf(shown.list) == Indices{0});
    CHECK(shown.events == 3);
    DeleteItems(shown.list, {0});
    CHECK(shown.list->IsEmpty());
    AppendItems(shown.list, Names(1));
    Pump();
    CHECK(SelectionsOf(shown.list).empty());
    ClickEntryAgain(shown.list, 0);
    CHECK(shown.events == 4);
}

TEST_CASE("any number of entries is deleted at once, and the others stay selected")
{
    ShownList shown(1000);
    ClickEntry(shown.list, 2);
    SelectItems(shown.list, FromTo(0, 999));
    int const count = GENERATE(1, 16, 17, 18, 500);
    auto const front = FromTo(0, count - 1);
    DeleteItems(shown.list, front);
    CHECK(shown.list->GetCount() == 1000u - count);
    CHECK(shown.list->GetString(0) == wxString::Format("name_%05d", count));
    CHECK(SelectionsOf(shown.list) == FromTo(0, 999 - count));

    Indices everyOther;
    for (int i = 0; i < 40; i += 2)
        everyOther.push_back(i);
    SelectItems(shown.list, FromTo(10, 19));
    DeleteItems(shown.list, everyOther);
    CHECK(SelectionsOf(shown.list) == FromTo(5, 9));
    CHECK(shown.list->GetString(5) == wxString::Format("name_%05d", count + 11));

    DeleteItems(shown.list, FromTo(0, static_cast<int>(shown.list->GetCount()) - 1));
    CHECK(shown.list->IsEmpty());
    Pump();
    CHECK(SelectionsOf(shown.list).empty());
    CHECK(shown.events == 1);
}

TEST_CASE("what is in sight stays in sight when entries go or come back")
{
    ShownList shown(300);
    shown.list->SetFirstItem(100);
    REQUIRE(shown.IsAtTop(100));

    // Below, above, few, many; with entries selected far away.
    SelectItems(shown.list, {0, 299});
    shown.list->SetFirstItem(100);
    DeleteItems(shown.list, {150});
    CHECK(shown.IsAtTop(100));
    DeleteItems(shown.list, {5, 6});
    CHECK(shown.IsAtTop(98));
    CHECK(shown.list->GetString(98) == "name_00100");
    DeleteItems(shown.list, FromTo(10, 39));
    CHECK(shown.IsAtTop(68));
    CHECK(shown.list->GetString(68) == "name_00100");
    CHECK(SelectionsOf(shown.list) == Indices{0, 266});

    // The row that was clicked, which takes all selections with it.
    ClickEntry(shown.list, 70);
    SelectItems(shown.list, {0, 70, 266});
    shown.list->SetFirstItem(68);
    REQUIRE(shown.IsAtTop(68));
    DeleteItems(shown.list, {70});
    CHECK(SelectionsOf(shown.list) == Indices{0, 265});
    CHECK(shown.IsAtTop(68));

    ShowItems(shown.list, Names(300));
    CHECK(shown.IsAtTop(68));
    CHECK(SelectionsOf(shown.list).empty());

    // Fewer than that: as far down as there is something.
    ShowItems(shown.list, Names(50));
    CHECK(TopAtRest(shown.list) > 30);
    CHECK(shown.list->HitTest(wxPoint(8, shown.list->GetClientSize().y - 10)) == 49);
    ShowItems(shown.list, Names(3));
    CHECK(shown.IsAtTop(0));
}

TEST_CASE("at the top of a list it stays at the top")
{
    ShownList shown(300);
    ClickEntry(shown.list, 1);
    ClickEntry(shown.list, 2, WXK_CONTROL);
    SelectItems(shown.list, {1, 2, 250});
    shown.list->SetFirstItem(0);
    REQUIRE(shown.IsAtTop(0));
    DeleteItems(shown.list, {2});
    CHECK(SelectionsOf(shown.list) == Indices{1, 249});
    CHECK(shown.IsAtTop(0));
    DeleteItems(shown.list, FromTo(100, 199));
    CHECK(SelectionsOf(shown.list) == Indices{1, 149});
    CHECK(shown.IsAtTop(0));
}
