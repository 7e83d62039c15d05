#pragma once

#include <vector>

#include <wx/window.h>

#include "support/Stage.h"

/// Gives the focus to `first` and presses Tab until it comes back or has moved `limit` times; the
/// windows that had the focus, `first` in front.
inline std::vector<wxWindow*> TabOrder(wxWindow* first, std::size_t limit = 20)
{
    first->SetFocus();
    Pump(50);
    std::vector<wxWindow*> order{wxWindow::FindFocus()};
    for (std::size_t i = 0; i < limit; ++i)
    {
        Press(WXK_TAB);
        if (wxWindow::FindFocus() == first)
            break;
        order.push_back(wxWindow::FindFocus());
    }
    return order;
}
