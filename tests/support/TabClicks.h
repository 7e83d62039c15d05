#pragma once

#include <vector>

#include <catch2/catch.hpp>
#include <wx/aui/auibook.h>

#include "support/Find.h"
#include "support/Stage.h"

/// The strip of a notebook that shows its tabs.
inline wxAuiTabCtrl* TabStrip(wxAuiNotebook* notebook) { return Find<wxAuiTabCtrl>(notebook); }

/// Where the tabs and their buttons are is known once they are drawn as they now stand.
inline void AwaitDrawn(wxAuiTabCtrl* strip)
{
    bool drawn = false;
    auto const onPaint = [&drawn](wxPaintEvent& event)
    {
        drawn = true;
        event.Skip();
    };
    strip->Bind(wxEVT_PAINT, onPaint);
    strip->Refresh();
    CHECK(PumpUntil([&] { return drawn; }));
    strip->Unbind(wxEVT_PAINT, onPaint);
}

/// Clicks on the tab of page `index`, which must be in sight.
inline void ClickTab(wxAuiNotebook* notebook, std::size_t index)
{
    auto* const strip = TabStrip(notebook);
    AwaitDrawn(strip);
    wxRect const tab = strip->GetPages().Item(index).rect;
    ClickAt(strip, wxPoint(tab.x + tab.width / 2, tab.y + tab.height / 2));
    Pump(50);
}

/// Clicks on the close button that stands on the tab of page `index`; false if there is none.
inline bool ClickCloseButton(wxAuiNotebook* notebook, std::size_t index)
{
    auto* const strip = TabStrip(notebook);
    AwaitDrawn(strip);
    wxRect const tab = strip->GetPages().Item(index).rect;
    for (int x = tab.GetRight(); x > tab.x; --x)
    {
        wxAuiTabContainerButton* button = nullptr;
        wxPoint const point(x, tab.y + tab.height / 2);
        if (!strip->ButtonHitTest(point.x, point.y, &button) || button->id != wxAUI_BUTTON_CLOSE)
            continue;
        ClickAt(strip, point - wxPoint(4, 0));
        Pump(50);
        return true;
    }
    return false;
}

/// The texts of all tabs.
inline std::vector<wxString> TabTexts(wxAuiNotebook const* notebook)
{
    std::vector<wxString> texts;
    for (std::size_t page = 0; page < notebook->GetPageCount(); ++page)
        texts.push_back(notebook->GetPageText(page));
    return texts;
}
