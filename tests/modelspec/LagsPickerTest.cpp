#include "modelspec/LagsPicker.h"

#include <random>

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>

#include "support/Find.h"
#include "support/Layout.h"
#include "support/ListClicks.h"
#include "support/Stage.h"
#include "support/TabOrder.h"
#include "support/WalkSteps.h"

namespace
{
using Lags = std::vector<int>;
using Range = std::pair<int, int>;

/// A picker and its controls, hidden. At its stated width the list has no room for both its scroll
/// bars, of which GTK complains in a shown one.
struct Hidden
{
    Hidden()
        : picker(new LagsPicker(stage.Frame())), from(Find<wxSpinCtrl>(picker, 0)),
          to(Find<wxSpinCtrl>(picker, 1)), list(Find<wxListBox>(picker)), button(Find<wxButton>(picker))
    {
        picker->Hide();
    }

    std::vector<wxString> Entries() const
    {
        auto const strings = list->GetStrings();
        return {strings.begin(), strings.end()};
    }

    /// Calls the handlers, as the controls would.
    void Select(std::vector<int> const& indices)
    {
        SelectEntries(list, indices);
        wxCommandEvent event;
        picker->OnLagsSelected(event);
    }
    void Spin(int fromValue, int toValue)
    {
        from->SetValue(fromValue);
        to->SetValue(toValue);
        wxCommandEvent event;
        picker->OnSpinChanged(event);
    }
    void Press()
    {
        wxCommandEvent event;
        picker->OnButton(event);
    }
    void Add(int fromValue, int toValue)
    {
        Spin(fromValue, toValue);
        Press();
    }

    Stage stage;
    LagsPicker* picker;
    wxSpinCtrl* from;
    wxSpinCtrl* to;
    wxListBox* list;
    wxButton* button;
};

/// A picker on the screen, for real clicks and keys; three short entries find room in its list.
struct Shown : Hidden
{
    Shown()
    {
        picker->Show();
        stage.Fill(picker);
    }
};

/// Types over what a spin control shows.
void TypeInto(wxSpinCtrl* spin, char const* text)
{
    ClickAt(spin, wxPoint(20, spin->GetSize().y / 2));
    Press('A', wxMOD_CONTROL);
    TypeText(text);
}

using Entries = std::vector<wxString>;
} // namespace

TEST_CASE("lags picker: two spin controls, a button and a list")
{
    Shown shown;
    CHECK((shown.picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0);
    for (auto* const spin : {shown.from, shown.to})
    {
        CHECK(spin->GetValue() == 2);
        CHECK(spin->GetTextValue() == "2");
        CHECK(spin->GetMin() == -99);
        CHECK(spin->GetMax() == 99);
        CHECK(spin->GetIncrement() == 1);
        CHECK(spin->GetMinSize() == wxSize(120, -1));
        CHECK(spin->HasFlag(wxSP_ARROW_KEYS));
        CHECK(spin->HasFlag(wxSP_WRAP));
    }
    CHECK(shown.Entries() == Entries{"1"});
    CHECK(shown.list->GetMinSize() == wxSize(50, -1));
    CHECK(shown.list->HasFlag(wxLB_EXTENDED));
    CHECK(shown.list->HasFlag(wxHSCROLL));
    CHECK(!shown.list->HasFlag(wxLB_SORT));
    CHECK(shown.button->GetLabel() == ">>");
    int const row = shown.list->GetFont().GetPixelSize().GetHeight() + 12;
    CHECK(shown.button->GetMinSize() == wxSize(42, row));
    CHECK(FontOf(shown.button) == "12 points, modern");
    CHECK(shown.button->GetFont().GetFaceName() == "Courier 10 Pitch");
    auto const words = FindAll<wxStaticText>(shown.picker);
    REQUIRE(words.size() == 2);
    CHECK(words[0]->GetLabel() == "From:");
    CHECK(words[1]->GetLabel() == "To:");
    CHECK(words[0]->GetMinSize() == wxSize(40, 23));
    CHECK(words[1]->GetMinSize() == wxSize(40, 23));

    int const centred = wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL;
    auto* const sizer = shown.picker->GetSizer();
    CHECK(Shape(sizer) == "1 row, 3 columns");
    REQUIRE(sizer->GetItemCount() == 3);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND, 5});
    CHECK(Item(sizer, 1)->GetWindow() == shown.button);
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, centred | wxALL, 5});
    CHECK(Item(sizer, 2)->GetWindow() == shown.list);
    CHECK(PlacementOf(Item(sizer, 2)) == Placement{0, wxEXPAND | wxBOTTOM | wxLEFT, 5});
    auto* const range = Item(sizer, 0)->GetSizer();
    CHECK(Shape(range) == "3 rows, 2 columns, row 1 grows");
    REQUIRE(range->GetItemCount() == 6);
    for (std::size_t const item : {0, 4})
    {
        CHECK(Item(range, item)->GetWindow() == words[item / 4]);
        CHECK(PlacementOf(Item(range, item)) == Placement{0, wxEXPAND | centred | wxTOP | wxLEFT, 5});
    }
    CHECK(Item(range, 1)->GetWindow() == shown.from);
    CHECK(PlacementOf(Item(range, 1)) == Placement{0, wxEXPAND | wxRIGHT | wxLEFT, 5});
    for (std::size_t const item : {2, 3})
    {
        CHECK(Item(range, item)->IsSpacer());
        CHECK(Item(range, item)->GetMinSize() == wxSize(1, 1));
        CHECK(PlacementOf(Item(range, item)) == Placement{1, wxEXPAND, 0});
    }
    CHECK(Item(range, 5)->GetWindow() == shown.to);
    CHECK(PlacementOf(Item(range, 5)) == Placement{0, wxEXPAND | wxALL, 5});
}

TEST_CASE("lags picker: a new one stands for the lag 1, and a press adds 2")
{
    Shown shown;
    CHECK(shown.picker->GetLags() == Lags{1});
    CHECK(!shown.picker->GetChanged());
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "2"});
    CHECK(shown.picker->GetLags() == Lags{1, 2});
    CHECK(shown.picker->GetChanged());
    shown.picker->SetChanged(false);
    CHECK(!shown.picker->GetChanged());
}

TEST_CASE("lags picker: ranges keep their direction, and the list the order of addition")
{
    Hidden hidden;
    hidden.Add(5, 2);
    CHECK(hidden.Entries() == Entries{"1", "5:2"});
    CHECK(hidden.picker->GetLags() == Lags{1, 5, 4, 3, 2});
    hidden.Add(-3, -1);
    CHECK(hidden.Entries() == Entries{"1", "5:2", "-3:-1"});
    CHECK(hidden.picker->GetLags() == Lags{1, 5, 4, 3, 2, -3, -2, -1});
    hidden.Add(0, 0);
    hidden.Add(-3, -1);
    CHECK(hidden.Entries() == Entries{"1", "5:2", "-3:-1", "0", "-3:-1"});
    CHECK(hidden.picker->GetLags() == Lags{1, 5, 4, 3, 2, -3, -2, -1, 0, -3, -2, -1});
}

TEST_CASE("lags picker: single values, ranges and repeats together")
{
    Hidden hidden;
    hidden.Add(3, 5);
    hidden.Add(4, 4);
    CHECK(hidden.picker->GetLags() == Lags{1, 3, 4, 5, 4});
    hidden.Add(-99, 99);
    CHECK(hidden.picker->GetLags().size() == 5 + 199);
}

TEST_CASE("lags picker: an empty list gives no lags, and nothing arms removal in it")
{
    Hidden hidden;
    hidden.Select({0});
    CHECK(hidden.button->GetLabel() == "<<");
    hidden.Press();
    CHECK(hidden.Entries().empty());
    CHECK(hidden.picker->GetLags().empty());
    CHECK(hidden.button->GetLabel() == "<<");
    hidden.Spin(2, 2);
    CHECK(hidden.button->GetLabel() == ">>");
    hidden.Select({});
    CHECK(hidden.button->GetLabel() == ">>");
}

TEST_CASE("lags picker: removing with nothing selected removes nothing and sets the changed flag")
{
    Hidden hidden;
    hidden.Select({});
    CHECK(hidden.button->GetLabel() == "<<");
    hidden.Press();
    CHECK(hidden.Entries() == Entries{"1"});
    CHECK(hidden.picker->GetChanged());
    CHECK(hidden.button->GetLabel() == "<<");
}

TEST_CASE("lags picker: what is selected goes, whatever its place; what reads the same stays")
{
    Hidden hidden;
    for (int const lag : {3, 1, 3, 5, 3})
        hidden.Add(lag, lag);
    hidden.Select({0, 3, 5});
    hidden.Press();
    CHECK(hidden.Entries() == Entries{"3", "1", "5"});
    CHECK(Selected(hidden.list).empty());
    hidden.Select({0, 1, 2});
    hidden.Press();
    CHECK(hidden.Entries().empty());
}

TEST_CASE("lags picker: entering a spin control arms adding, and the focus event ends there")
{
    Hidden hidden;
    hidden.Select({0});
    wxFocusEvent event;
    event.Skip(false);
    hidden.picker->OnSetFocusToSpin(event);
    CHECK(hidden.button->GetLabel() == ">>");
    CHECK(Selected(hidden.list).empty());
    CHECK(!event.GetSkipped());
}

TEST_CASE("lags picker: text in the list that is no lag stands for nothing")
{
    Hidden hidden;
    for (auto const* text : {"", "many", "99999999999", "1:99999999999", "\xCE\xB2", ":", "4"})
        hidden.list->Append(wxString::FromUTF8(text));
    CHECK(hidden.picker->GetLags() == Lags{1, 4});
}

TEST_CASE("lags picker: typed, added, selected and removed with mouse and keys")
{
    Shown shown;
    TypeInto(shown.from, "-4");
    TypeInto(shown.to, "12");
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "-4:12"});
    TypeInto(shown.from, "12");
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "-4:12", "12"});

    // Leaving a spin control with fresh text in it for the list must not undo the click.
    TypeInto(shown.to, "7");
    ClickEntry(shown.list, 1);
    CHECK(shown.button->GetLabel() == "<<");
    CHECK(Selected(shown.list) == Lags{1});
    Keep(Photograph(shown.stage.Frame()), "LagsPicker-armed");
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "12"});
    CHECK(shown.button->GetLabel() == "<<");
    CHECK(Selected(shown.list).empty());
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "12"});

    ClickEntry(shown.list, 0);
    ClickEntry(shown.list, 1, WXK_CONTROL);
    CHECK(Selected(shown.list) == Lags{0, 1});
    // A step of a spin control drops the selection and arms adding.
    ClickAt(shown.from, wxPoint(20, shown.from->GetSize().y / 2));
    CHECK(shown.button->GetLabel() == ">>");
    CHECK(Selected(shown.list).empty());
    ClickEntry(shown.list, 0);
    ClickEntry(shown.list, 1, WXK_SHIFT);
    Click(shown.button);
    CHECK(shown.Entries().empty());
    CHECK(shown.picker->GetLags().empty());
}

TEST_CASE("lags picker: typed text beyond the range is brought to its end")
{
    Shown shown;
    shown.list->Clear();
    for (auto const& [typed, lag] : {std::pair("150", 99), std::pair("-1000", -99), std::pair("-", 0)})
    {
        CAPTURE(typed);
        TypeInto(shown.from, typed);
        TypeInto(shown.to, typed);
        Click(shown.button);
        CHECK(shown.picker->GetLags().back() == lag);
    }
    CHECK(shown.Entries() == Entries{"99", "-99", "0"});
}

TEST_CASE("lags picker: one step above 99 is -99, one below -99 is 99")
{
    Shown shown;
    TypeInto(shown.from, "99");
    Press(WXK_UP);
    CHECK(shown.from->GetValue() == -99);
    Press(WXK_UP);
    CHECK(shown.from->GetValue() == -98);
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    CHECK(shown.from->GetValue() == 99);
    // With the mouse: the button at the right end steps up.
    ClickAt(shown.from, wxPoint(shown.from->GetSize().x - 14, shown.from->GetSize().y / 2));
    CHECK(shown.from->GetValue() == -99);
    Click(shown.button);
    CHECK(shown.Entries() == Entries{"1", "-99:2"});
}

TEST_CASE("lags picker: by the keys alone, also from the list to the button")
{
    Shown shown;
    auto const order = TabOrder(shown.from);
    CHECK(order == std::vector<wxWindow*>{shown.from, shown.to, shown.button, shown.list});

    shown.from->SetFocus();
    Press('A', wxMOD_CONTROL);
    TypeText("6");
    Press(WXK_TAB);
    Press(WXK_UP);
    Press(WXK_TAB);
    Press(WXK_SPACE);
    CHECK(shown.Entries() == Entries{"1", "6:3"});
    Press(WXK_TAB);
    CHECK(wxWindow::FindFocus() == shown.list);
    Press(WXK_SPACE);
    CHECK(Selected(shown.list) == Lags{0});
    CHECK(shown.button->GetLabel() == "<<");
    Press(WXK_TAB, wxMOD_SHIFT);
    CHECK(wxWindow::FindFocus() == shown.button);
    Press(WXK_SPACE);
    CHECK(shown.Entries() == Entries{"6:3"});
    // One step further the way into a spin control arms adding again.
    Press(WXK_TAB, wxMOD_SHIFT);
    CHECK(shown.button->GetLabel() == ">>");
}

TEST_CASE("lags picker: a random walk")
{
    unsigned const seed = 20261121;
    std::mt19937 random(seed);
    Hidden hidden;
    std::vector<Range> model{{1, 1}};
    std::vector<int> selected;
    bool adds = true;
    bool changed = false;
    Range spins{2, 2};
    for (int step = 0; step < WALK_STEPS; ++step)
    {
        INFO("seed " << seed << ", step " << step);
        switch (random() % 8)
        {
        case 0:
            hidden.picker->SetChanged(changed = random() % 4 == 0);
            break;
        case 1:
        case 2:
            selected.clear();
            for (std::size_t i = 0; i < model.size(); ++i)
                if (random() % 3 == 0)
                    selected.push_back(static_cast<int>(i));
            hidden.Select(selected);
            adds = adds && model.empty();
            break;
        case 3:
        case 4:
            spins.first = static_cast<int>(random() % 199) - 99;
            spins.second = random() % 3 == 0 ? spins.first : static_cast<int>(random() % 199) - 99;
            hidden.Spin(spins.first, spins.second);
            selected.clear();
            adds = true;
            break;
        default:
            hidden.Press();
            changed = true;
            if (adds)
                model.push_back(spins);
            else
                for (; !selected.empty(); selected.pop_back())
                    model.erase(model.begin() + selected.back());
        }

        Entries entries;
        Lags lags;
        for (auto const& [from, to] : model)
        {
            std::string const entry = std::to_string(from);
            entries.push_back(from == to ? entry : entry + ":" + std::to_string(to));
            for (int lag = from; from < to ? lag <= to : lag >= to; lag += from < to ? 1 : -1)
                lags.push_back(lag);
        }
        REQUIRE(hidden.Entries() == entries);
        REQUIRE(hidden.picker->GetLags() == lags);
        REQUIRE(Selected(hidden.list) == selected);
        REQUIRE(hidden.button->GetLabel() == (adds ? ">>" : "<<"));
        REQUIRE(hidden.picker->GetChanged() == changed);
    }
}
