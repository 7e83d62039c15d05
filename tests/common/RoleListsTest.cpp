#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/listbox.h>

#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "common/RoleLists.h"
#include "common/TransferButton.h"
#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"
#include "support/ListClicks.h"
#include "modelspec/RoleChecks.h"
#include "pickers/ChoicePickerChecks.h"

using namespace zenqo;
using role_checks::Names;

namespace
{
/// A left list and roles of the given kinds, not laid out. All names are a, b, c, d behind the hidden
/// "h", unless a test changes them.
struct Fixture
{
    explicit Fixture(std::vector<RoleKind> const& kinds)
        : left(MakeList(stage.Frame(), wxSize(180, 100), LIST_OF_MANY))
    {
        for (RoleKind const kind : kinds)
        {
            long const style = kind == RoleKind::SINGLE ? LIST_OF_ONE : LIST_OF_MANY;
            roles.push_back({MakeTransferButton(stage.Frame(), left),
                             MakeList(stage.Frame(), wxSize(180, 100), style), kind});
        }
    }

    RoleLists WithSource()
    {
        return {left, roles, 1, [this] { return all; }};
    }

    wxString Label(std::size_t role) const { return roles[role].button->GetLabel(); }
    wxArrayString In(std::size_t role) const { return roles[role].list->GetStrings(); }
    wxArrayString Free() const { return left->GetStrings(); }

    Stage stage;
    wxArrayString all = Names({"h", "a", "b", "c", "d"});
    wxListBox* left;
    std::vector<Role> roles;
};

/// Selects at the left and presses the role's button, as a user does.
void MoveIn(Fixture& fixture, RoleLists& lists, std::size_t role, std::vector<int> const& indices)
{
    SelectEntries(fixture.left, indices);
    lists.OnLeftSelected();
    lists.Press(role);
}

void MoveOut(Fixture& fixture, RoleLists& lists, std::size_t role, std::vector<int> const& indices)
{
    SelectEntries(fixture.roles[role].list, indices);
    lists.OnRoleSelected(role);
    lists.Press(role);
}
} // namespace

TEST_CASE("role lists: the names of the source are offered at once, but for the hidden ones")
{
    Fixture fixture({RoleKind::LIST});
    auto const lists = fixture.WithSource();
    CHECK(fixture.Free() == Names({"a", "b", "c", "d"}));
    CHECK(!lists.GetChanged());
    CHECK(lists.Items(0) == Names({""}));
    CHECK(lists.Only(0).empty());

    Fixture showing({RoleKind::LIST});
    RoleLists const all(showing.left, showing.roles, 0, [&] { return showing.all; });
    CHECK(showing.Free() == Names({"h", "a", "b", "c", "d"}));

    Fixture none({RoleKind::LIST});
    none.all.clear();
    auto const empty = none.WithSource();
    CHECK(none.left->IsEmpty());
}

TEST_CASE("role lists: without a source names come back at the end of the left list")
{
    Fixture fixture({RoleKind::LIST});
    AppendItems(fixture.left, Names({"a", "b", "c", "d"}));
    RoleLists lists(fixture.left, fixture.roles, 0, nullptr);
    CHECK(fixture.Free() == Names({"a", "b", "c", "d"}));

    MoveIn(fixture, lists, 0, {0, 1, 3});
    CHECK(fixture.Free() == Names({"c"}));
    CHECK(lists.Items(0) == Names({"a", "b", "d"}));
    MoveOut(fixture, lists, 0, {0, 2});
    CHECK(fixture.Free() == Names({"c", "a", "d"}));
    CHECK(lists.Items(0) == Names({"b"}));
    CHECK(lists.Only(0) == "b");
    CHECK(Selected(fixture.left).empty());
}

TEST_CASE("role lists: a filled role that keeps its direction does so, an empty one does not")
{
    Fixture fixture({RoleKind::SINGLE, RoleKind::SINGLE});
    for (Role& role : fixture.roles)
        role.keepsDirection = true;
    auto lists = fixture.WithSource();
    MoveIn(fixture, lists, 0, {1});
    lists.OnRoleSelected(0);
    lists.OnRoleSelected(1);
    CHECK(fixture.Label(0) == "<<");
    CHECK(fixture.Label(1) == "<<");

    fixture.roles[0].list->SetSelection(0);
    lists.OnLeftSelected();
    CHECK(fixture.Label(0) == "<<");
    CHECK(fixture.Label(1) == ">>");
    CHECK(Selected(fixture.roles[0].list).empty());

    SelectEntries(fixture.left, {0});
    lists.Press(0);
    CHECK(fixture.In(0) == Names({"b"}));
    CHECK(fixture.Free() == Names({"a", "c", "d"}));
}

TEST_CASE("role lists: an earlier choice is put back, in its own order")
{
    Fixture fixture({RoleKind::LIST});
    auto lists = fixture.WithSource();
    lists.Restore(0, Names({"d", "a"}));
    CHECK(lists.Items(0) == Names({"d", "a"}));
    CHECK(fixture.Free() == Names({"b", "c"}));
    CHECK(!lists.GetChanged());
    CHECK(fixture.Label(0) == ">>");
    MoveOut(fixture, lists, 0, {0});
    CHECK(fixture.Free() == Names({"b", "c", "d"}));
}

TEST_CASE("role lists: the source is asked anew each time")
{
    Fixture fixture({RoleKind::LIST, RoleKind::SINGLE});
    auto lists = fixture.WithSource();
    MoveIn(fixture, lists, 0, {0, 1});
    MoveIn(fixture, lists, 1, {1});
    fixture.all = Names({"h", "x", "b", "y", "a", "d"});
    MoveOut(fixture, lists, 0, {0});
    CHECK(fixture.Free() == Names({"x", "y", "a"}));

    fixture.all = Names({"h", "p", "q"});
    lists.Restart();
    CHECK(fixture.Free() == Names({"p", "q"}));
    CHECK(fixture.In(0).empty());
    CHECK(fixture.In(1).empty());
    CHECK(fixture.Label(0) == "<<");
    CHECK(fixture.Label(1) == ">>");
    CHECK(lists.GetChanged());
}

TEST_CASE("role lists: other names are shown from their beginning")
{
    Fixture fixture({RoleKind::LIST});
    for (int i = 0; i < 200; ++i)
        fixture.all.Add(wxString::Format("name_%d", i));
    auto lists = fixture.WithSource();
    fixture.stage.Fill(fixture.left);
    fixture.left->SetFirstItem(150);
    int const top = TopAtRest(fixture.left);
    REQUIRE(top > 140);

    // A redraw of the same names stays where the user is, a change of names does not.
    lists.Redraw(fixture.all);
    CHECK(std::abs(TopAtRest(fixture.left) - top) <= 1);
    lists.Restart();
    CHECK(TopAtRest(fixture.left) == 0);
}

TEST_CASE("role lists: names that stand twice are moved and come back once each")
{
    Fixture fixture({RoleKind::LIST, RoleKind::SINGLE});
    fixture.all = Names({"b", "a", "b", "", "b", "A"});
    auto lists = fixture.WithSource();
    CHECK(fixture.Free() == Names({"a", "b", "", "b", "A"}));
    MoveIn(fixture, lists, 0, {3});
    CHECK(fixture.Free() == Names({"a", "b", "", "A"}));
    MoveIn(fixture, lists, 1, {2});
    CHECK(fixture.Free() == Names({"a", "b", "A"}));
    CHECK(fixture.In(1) == Names({""}));
    lists.Redraw(fixture.all);
    CHECK(fixture.Free() == Names({"a", "b", "A"}));
    MoveOut(fixture, lists, 1, {0});
    CHECK(fixture.Free() == Names({"a", "", "b", "A"}));
    MoveOut(fixture, lists, 0, {0});
    CHECK(fixture.Free() == Names({"a", "b", "", "b", "A"}));
}

TEST_CASE("role lists: with the keyboard all buttons come before all role lists")
{
    Fixture fixture({RoleKind::SINGLE, RoleKind::LIST, RoleKind::LIST});
    auto const lists = fixture.WithSource();
    auto const& order = fixture.stage.Frame()->GetChildren();
    auto const place = [&order](wxWindow* window) { return order.IndexOf(window); };
    CHECK(place(fixture.left) < place(fixture.roles[0].button));
    CHECK(place(fixture.roles[0].button) < place(fixture.roles[1].button));
    CHECK(place(fixture.roles[1].button) < place(fixture.roles[2].button));
    CHECK(place(fixture.roles[2].button) < place(fixture.roles[0].list));
    CHECK(place(fixture.roles[0].list) < place(fixture.roles[1].list));
    CHECK(place(fixture.roles[1].list) < place(fixture.roles[2].list));
}

TEST_CASE("role lists: a dataset chosen by program does not swallow the user's next choice")
{
    Stage stage;
    auto* const picker = new DatasetPicker(stage.Frame());
    stage.Fill(picker);
    int heard = 0;
    picker->Bind(wxEVT_CHOICE, [&heard](wxCommandEvent&) { ++heard; });
    DatasetMap const datasets{{"a", nullptr}, {"b", nullptr}, {"c", nullptr}};
    OfferKeys(picker, datasets);
    CHECK(picker->GetSelectionString() == "a");

    auto* const choice = Find<wxChoice>(picker);
    SelectInPicker(picker, 2);
    CHECK(heard == 0);
    picker_checks::Pick(choice, 0);
    CHECK(picker->GetSelectionString() == "a");
    CHECK(heard == 1);
    SelectInPicker(picker, 1);
    picker_checks::Pick(choice, 1);
    CHECK(heard == 1);

    OfferKeys(picker, DatasetMap());
    CHECK(picker->GetSelectionString() == "b");
}
