#include "common/RoleLists.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <wx/button.h>
#include <wx/listbox.h>

#include "common/ListBoxItems.h"
#include "common/NameBag.h"
#include "common/Text.h"
#include "common/TransferButton.h"
#include "common/VariableName.h"

namespace zenqo
{
namespace
{
bool IsEmpty(Role const& role) { return role.list->IsEmpty(); }

/// The numbered family to which a variable belongs, if it is a member of one.
std::optional<wxString> Family(wxString const& name)
{
    std::string stem;
    if (FamilyOf(ToNarrow(name), stem))
        return ToWide(stem);
    return std::nullopt;
}

/// The names that stand in all shared lists but `except`.
NameBag HeldByAllShared(std::vector<Role> const& roles, wxListBox const* except = nullptr)
{
    NameBag inAll;
    bool first = true;
    for (Role const& role : roles)
    {
        if (role.kind != RoleKind::SHARED || role.list == except)
            continue;
        NameBag both;
        for (wxString const& name : ItemsOf(role.list))
            if (first || inAll.Holds(name))
                both.Add(name);
        inAll = both;
        first = false;
    }
    return inAll;
}
} // namespace

RoleLists::RoleLists(wxListBox* left, std::vector<Role> roles, std::size_t hidden, Source source)
    : m_left(left), m_roles(std::move(roles)), m_hidden(hidden), m_source(std::move(source))
{
    // With the keyboard one comes from the left list to all buttons before any role list: GTK selects
    // the entry of a list of one that gets the focus, and the selection at the left would be gone
    // before the next button is reached.
    for (Role const& role : m_roles)
        if (role.button != m_roles.front().button)
            role.button->MoveBeforeInTabOrder(m_roles.front().list);
    if (m_source)
        Restart();
}

void RoleLists::OnLeftSelected()
{
    for (Role const& role : m_roles)
    {
        DeselectAll(role.list);
        if (!role.keepsDirection || IsEmpty(role))
            role.button->SetLabel(MOVE_IN);
    }
}

void RoleLists::OnRoleSelected(std::size_t role)
{
    DeselectAll(m_left);
    m_roles[role].button->SetLabel(MOVE_OUT);
}

void RoleLists::Press(std::size_t role)
{
    m_changed = true;
    if (MovesIn(m_roles[role].button))
        MoveIn(m_roles[role]);
    else
        MoveOut(m_roles[role]);
}

void RoleLists::MoveIn(Role const& role)
{
    auto const selected = SelectionsOf(m_left);
    if (selected.empty())
        return;
    switch (role.kind)
    {
    case RoleKind::SINGLE:
        if (IsEmpty(role))
            MoveOneIn(role, selected.front());
        break;
    case RoleKind::LIST: MoveAllIn(role, selected); break;
    case RoleKind::SHARED: ShareIn(role, selected); break;
    case RoleKind::STEMS: MoveFamiliesIn(role, selected); break;
    }
}

void RoleLists::MoveOneIn(Role const& role, int index)
{
    MoveAllIn(role, {index});
    // A shared list leaves its names on the left, so it may hold the one that has just gone.
    for (Role const& other : m_roles)
    {
        if (other.kind != RoleKind::SHARED)
            continue;
        int const there = other.list->FindString(role.list->GetString(0), true);
        if (there != wxNOT_FOUND)
            DeleteItems(other.list, {there});
    }
}

void RoleLists::MoveAllIn(Role const& role, std::vector<int> const& selected)
{
    AppendItems(role.list, ItemsAt(m_left, selected));
    DeleteItems(m_left, selected);
}

void RoleLists::ShareIn(Role const& role, std::vector<int> const& selected)
{
    NameBag const heldElsewhere = HeldByAllShared(m_roles, role.list);
    NameBag held(ItemsOf(role.list));
    wxArrayString arriving;
    std::vector<int> leaving;
    for (int const index : selected)
    {
        wxString const name = m_left->GetString(static_cast<unsigned>(index));
        if (!held.Holds(name))
        {
            held.Add(name);
            arriving.Add(name);
        }
        if (heldElsewhere.Holds(name))
            leaving.push_back(index);
    }
    AppendItems(role.list, arriving);
    DeleteItems(m_left, leaving);
}

void RoleLists::MoveFamiliesIn(Role const& role, std::vector<int> const& selected)
{
    // An empty list counts as one that knows the empty stem, as its getter gives it.
    NameBag known(ItemsOrEmpty(role.list));
    NameBag added;
    wxArrayString arriving;
    for (int const index : selected)
    {
        auto const family = Family(m_left->GetString(static_cast<unsigned>(index)));
        if (!family || known.Holds(*family))
            continue;
        known.Add(*family);
        added.Add(*family);
        arriving.Add(*family);
    }
    if (arriving.empty())
        return;
    AppendItems(role.list, arriving);

    std::vector<int> leaving;
    wxArrayString const offered = ItemsOf(m_left);
    for (std::size_t i = 0; i < offered.size(); ++i)
        if (auto const family = Family(offered[i]); family && added.Holds(*family))
            leaving.push_back(static_cast<int>(i));
    DeleteItems(m_left, leaving);
}

void RoleLists::MoveOut(Role const& role)
{
    auto const selected = SelectionsOf(role.list);
    if (selected.empty())
        return;
    if (!m_source)
        AppendItems(m_left, ItemsAt(role.list, selected));
    DeleteItems(role.list, selected);
    if (m_source)
        Redraw(m_source());
}

void RoleLists::Redraw(wxArrayString const& names)
{
    NameBag taken = HeldByAllShared(m_roles);
    NameBag families;
    for (Role const& role : m_roles)
    {
        if (role.kind == RoleKind::SHARED)
            continue;
        for (wxString const& name : ItemsOf(role.list))
            (role.kind == RoleKind::STEMS ? families : taken).Add(name);
    }

    wxArrayString free;
    free.Alloc(names.size());
    for (std::size_t i = m_hidden; i < names.size(); ++i)
    {
        if (taken.Take(names[i]))
            continue;
        auto const family = families.IsEmpty() ? std::nullopt : Family(names[i]);
        if (!family || !families.Holds(*family))
            free.Add(names[i]);
    }
    ShowItems(m_left, free);
}

void RoleLists::Restart()
{
    for (Role const& role : m_roles)
        role.list->Clear();
    Redraw(m_source());
    // Other names are looked at from their beginning.
    if (!m_left->IsEmpty())
        m_left->SetFirstItem(0);
}

void RoleLists::Restore(std::size_t role, wxArrayString const& names)
{
    AppendItems(m_roles[role].list, names);
    NameBag taken(names);
    std::vector<int> leaving;
    wxArrayString const offered = ItemsOf(m_left);
    for (std::size_t i = 0; i < offered.size(); ++i)
        if (taken.Take(offered[i]))
            leaving.push_back(static_cast<int>(i));
    DeleteItems(m_left, leaving);
}

wxString RoleLists::Only(std::size_t role) const { return OnlyItem(m_roles[role].list); }

wxArrayString RoleLists::Items(std::size_t role) const { return ItemsOrEmpty(m_roles[role].list); }
} // namespace zenqo
