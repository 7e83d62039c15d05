#include "common/ListBoxItems.h"

#include <algorithm>

#include <wx/listbox.h>

namespace zenqo
{
namespace
{
/// Up to so many entries are deleted one by one, which keeps the keyboard's place in the list. Each
/// takes the toolkit a walk through the list; beyond, it is faster to fill the list anew.
constexpr std::size_t FEW = 16;

/// Where the entries at `kept` are once those at `removed` are gone. Both ascend, as the result does.
std::vector<int> IndicesAfter(std::vector<int> const& kept, std::vector<int> const& removed)
{
    std::vector<int> moved;
    moved.reserve(kept.size());
    auto gone = removed.begin();
    for (int const index : kept)
    {
        while (gone != removed.end() && *gone < index)
            ++gone;
        if (gone == removed.end() || *gone != index)
            moved.push_back(index - static_cast<int>(gone - removed.begin()));
    }
    return moved;
}

/// Puts `names` in the place of all entries.
void Refill(wxListBox* list, wxArrayString const& names)
{
    list->Clear();
    AppendItems(list, names);
}

/// Scrolls to entry `top`, or as near as there are entries; not at all if it is below 0, as the list
/// tells of its top while it isn't on the screen.
void ScrollTo(wxListBox* list, int top)
{
    if (top >= 0 && !list->IsEmpty())
        list->SetFirstItem(std::min(top, static_cast<int>(list->GetCount()) - 1));
}

/// The entries of the list without those at `indices`.
wxArrayString ItemsWithout(wxListBox const* list, std::vector<int> const& indices)
{
    wxArrayString const all = list->GetStrings();
    wxArrayString kept;
    kept.Alloc(all.size() - indices.size());
    auto gone = indices.begin();
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        if (gone != indices.end() && *gone == static_cast<int>(i))
            ++gone;
        else
            kept.Add(all[i]);
    }
    return kept;
}
} // namespace

wxArrayString ItemsOf(wxListBox const* list) { return list->GetStrings(); }

wxArrayString ItemsOrEmpty(wxListBox const* list)
{
    wxArrayString items = ItemsOf(list);
    if (items.empty())
        items.Add(wxEmptyString);
    return items;
}

wxString OnlyItem(wxListBox const* list)
{
    return list->GetCount() == 1 ? list->GetString(0) : wxString();
}

std::vector<int> SelectionsOf(wxListBox const* list)
{
    wxArrayInt selections;
    list->GetSelections(selections);
    return {selections.begin(), selections.end()};
}

wxArrayString ItemsAt(wxListBox const* list, std::vector<int> const& indices)
{
    wxArrayString items;
    items.Alloc(indices.size());
    for (int const index : indices)
        items.Add(list->GetString(static_cast<unsigned>(index)));
    return items;
}

void DeselectAll(wxListBox* list) { list->SetSelection(wxNOT_FOUND); }

void SelectItems(wxListBox* list, std::vector<int> const& indices)
{
    DeselectAll(list);
    if (indices.empty())
        return;
    // A list of many looks through all its entries at each call, to note what is selected now. Until
    // the last call it is told that it is none.
    long const style = list->GetWindowStyleFlag();
    list->SetWindowStyleFlag(style & ~wxLB_EXTENDED);
    for (int const index : indices)
        list->SetSelection(index);
    list->SetWindowStyleFlag(style);
    list->SetSelection(indices.back());
}

void ShowItems(wxListBox* list, wxArrayString const& names)
{
    int const top = list->GetTopItem();
    Refill(list, names);
    ScrollTo(list, top);
}

void AppendItems(wxListBox* list, wxArrayString const& names)
{
    if (!names.empty())
        list->Append(names);
}

void DeleteItems(wxListBox* list, std::vector<int> const& indices)
{
    if (indices.empty())
        return;
    auto const selected = IndicesAfter(SelectionsOf(list), indices);
    int const top = list->GetTopItem();
    auto const above = std::lower_bound(indices.begin(), indices.end(), top) - indices.begin();
    if (indices.size() <= FEW)
        for (auto index = indices.rbegin(); index != indices.rend(); ++index)
            list->Delete(static_cast<unsigned>(*index));
    else
        Refill(list, ItemsWithout(list, indices));
    // When the row on which the user clicked last goes, the toolkit selects its neighbour and drops
    // all others, without an event. A list of one must be told in any case that nothing is selected,
    // or it takes a click on the next row for no news.
    if (selected.empty() || SelectionsOf(list) != selected)
        SelectItems(list, selected);
    // Both a selection and a new filling scroll.
    ScrollTo(list, top - static_cast<int>(above));
}
} // namespace zenqo
