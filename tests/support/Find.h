#pragma once

#include <vector>

#include <wx/sizer.h>
#include <wx/window.h>

/// All windows of one class below `parent`, in the order of their creation, a child's children
/// behind the child.
template <class Window>
std::vector<Window*> FindAll(wxWindow const* parent)
{
    std::vector<Window*> found;
    for (auto* const child : parent->GetChildren())
    {
        if (auto* const match = dynamic_cast<Window*>(child))
            found.push_back(match);
        auto const below = FindAll<Window>(child);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

/// The n-th of them, from 0; null if there are fewer.
template <class Window>
Window* Find(wxWindow const* parent, std::size_t n = 0)
{
    auto const all = FindAll<Window>(parent);
    return n < all.size() ? all[n] : nullptr;
}

/// What a sizer was told of one of its items, to be compared whole.
struct Placement
{
    int proportion;
    int flags;
    int border;

    bool operator==(Placement const& other) const
    {
        return proportion == other.proportion && flags == other.flags && border == other.border;
    }
};

inline Placement PlacementOf(wxSizerItem const* item)
{
    return {item->GetProportion(), item->GetFlag(), item->GetBorder()};
}

inline wxSizerItem* Item(wxSizer* sizer, std::size_t index) { return sizer->GetItem(index); }
