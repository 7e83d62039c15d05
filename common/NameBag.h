#pragma once

#include <unordered_map>

#include <wx/arrstr.h>
#include <wx/hashmap.h>

namespace zenqo
{
/// Names and how often each is there; upper and lower case are told apart. Looking one up does not
/// take longer the more there are.
class NameBag
{
public:
    NameBag() = default;
    explicit NameBag(wxArrayString const& names)
    {
        for (wxString const& name : names)
            Add(name);
    }

    void Add(wxString const& name) { ++m_counts[name]; }

    bool IsEmpty() const { return m_counts.empty(); }

    bool Holds(wxString const& name) const { return m_counts.count(name) != 0; }

    /// Takes `name` out once; false if it isn't there.
    bool Take(wxString const& name)
    {
        auto const found = m_counts.find(name);
        if (found == m_counts.end())
            return false;
        if (--found->second == 0)
            m_counts.erase(found);
        return true;
    }

private:
    std::unordered_map<wxString, int, wxStringHash, wxStringEqual> m_counts;
};
} // namespace zenqo
