#pragma once

#include <vector>

#include <wx/listbox.h>
#include <wx/uiaction.h>

#include "support/Stage.h"

/// A point on the row of entry `index`; the row must be in sight.
inline wxPoint RowOf(wxListBox const* list, int index)
{
    int const height = list->GetClientSize().y;
    int top = 0;
    while (top < height && list->HitTest(wxPoint(8, top)) != index)
        ++top;
    int bottom = top;
    while (bottom < height && list->HitTest(wxPoint(8, bottom)) == index)
        ++bottom;
    return wxPoint(8, (top + bottom) / 2);
}

/// Clicks on entry `index` as a user does, with `key` (WXK_SHIFT, WXK_CONTROL) held down unless it is 0.
/// GTK takes a click with a key into a list without the focus for a wish to give it the focus, no more.
inline void ClickEntry(wxListBox* list, int index, int key = 0)
{
    wxUIActionSimulator simulator;
    if (key != 0)
        simulator.KeyDown(key);
    ClickAt(list, RowOf(list, index));
    if (key != 0)
        simulator.KeyUp(key);
    Pump(30);
}

/// Clicks on an entry that was clicked just before, far enough from there for no double click.
inline void ClickEntryAgain(wxListBox* list, int index)
{
    ClickAt(list, RowOf(list, index) + wxPoint(60, 0));
    Pump(30);
}

/// The entry at the top once the list has come to rest; it scrolls little by little.
inline int TopAtRest(wxListBox const* list)
{
    int top = wxNOT_FOUND;
    for (int unchanged = 0; unchanged < 3; ++unchanged)
    {
        Pump(100);
        if (list->GetTopItem() != top)
            unchanged = 0;
        top = list->GetTopItem();
    }
    return top;
}

/// The indices of the selected entries.
inline std::vector<int> Selected(wxListBox const* list)
{
    wxArrayInt selections;
    list->GetSelections(selections);
    return {selections.begin(), selections.end()};
}

/// Selects exactly the entries at `indices` by program, which raises no event.
inline void SelectEntries(wxListBox* list, std::vector<int> const& indices)
{
    list->SetSelection(wxNOT_FOUND);
    for (int const index : indices)
        list->SetSelection(index);
}
