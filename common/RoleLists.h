#pragma once

#include <functional>
#include <vector>

#include <wx/arrstr.h>

class wxButton;
class wxListBox;

namespace zenqo
{
/// How a role list takes names from the left list.
enum class RoleKind
{
    SINGLE, ///< One name at most: the first of the selected ones, and only into an empty list.
    LIST,   ///< All selected names, which leave the left list.
    SHARED, ///< All selected names; they stay on the left until all shared lists hold them.
    STEMS,  ///< The stems of numbered families, all of whose members leave the left list.
};

/// A list at the right and the button that moves names between it and the left list.
struct Role
{
    wxButton* button;
    wxListBox* list;
    RoleKind kind;

    /// The button of a filled list goes on pointing out when the user turns to the left list.
    bool keepsDirection = false;
};

/// The mechanism of every picker with two or more lists: names that are still free at the left, the
/// chosen ones in role lists at the right, and a button for each role that moves them.
///
/// A button's label shows in which direction its next press moves. It follows the list that the user
/// touched last, and it is what Press reads: the controls are the only store of all this. A name goes
/// to the end of a role list; one that comes back goes to its own place in the left list.
class RoleLists
{
public:
    /// All names that there are, in the order in which the left list offers them.
    using Source = std::function<wxArrayString()>;

    /// `hidden` names at the front of each list of names are never offered. Without a source, names
    /// that come back go to the end of the left list.
    RoleLists(wxListBox* left, std::vector<Role> roles, std::size_t hidden, Source source);

    /// The user has selected in the left list: all buttons point into their lists.
    void OnLeftSelected();

    /// The user has selected in the list of `role`: its button points out of it.
    void OnRoleSelected(std::size_t role);

    /// The user has pressed the button of `role`. Sets the changed flag, whatever is moved.
    void Press(std::size_t role);

    /// Shows at the left what of `names` no role list holds, with nothing selected.
    void Redraw(wxArrayString const& names);

    /// Empties all role lists and shows all names at the left. Labels and flag stay as they are.
    void Restart();

    /// Appends `names` to the list of `role` and takes them away at the left.
    void Restore(std::size_t role, wxArrayString const& names);

    /// The name in the list of `role`; empty unless there is exactly one.
    wxString Only(std::size_t role) const;

    /// The names in the list of `role` from top to bottom; one empty string if there are none.
    wxArrayString Items(std::size_t role) const;

    /// Whether a button was pressed since the flag was last cleared.
    ///@{
    bool GetChanged() const { return m_changed; }
    void SetChanged(bool changed) { m_changed = changed; }
    ///@}

private:
    void MoveIn(Role const& role);
    void MoveOneIn(Role const& role, int index);
    void MoveAllIn(Role const& role, std::vector<int> const& selected);
    void ShareIn(Role const& role, std::vector<int> const& selected);
    void MoveFamiliesIn(Role const& role, std::vector<int> const& selected);
    void MoveOut(Role const& role);

    wxListBox* m_left;
    std::vector<Role> m_roles;
    std::size_t m_hidden;
    Source m_source;
    bool m_changed = false;
};
} // namespace zenqo
