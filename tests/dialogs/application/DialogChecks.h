#pragma once

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/sizer.h>

#include "support/Find.h"
#include "support/RunDialog.h"

/// Checks the dialog itself and gives its sizer, which is vertical and has `items`.
inline wxSizer* CheckFrame(wxDialog const& dialog, wxString const& title, long style, std::size_t items)
{
    CHECK(dialog.GetTitle() == title);
    CHECK(dialog.GetId() < 0);
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL) == style);
    auto* const sizer = dynamic_cast<wxBoxSizer*>(dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == items);
    return sizer;
}

/// The vertical sizer of a box with `label`, whose item is `item` and placed at `placement`.
inline wxStaticBoxSizer* CheckBox(wxSizerItem* item, wxString const& label, Placement const& placement)
{
    auto* const box = dynamic_cast<wxStaticBoxSizer*>(item->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxVERTICAL);
    CHECK(box->GetStaticBox()->GetLabel() == label);
    CHECK(PlacementOf(item) == placement);
    return box;
}

/// Checks that `item` is a row of buttons, of which the one that accepts is labelled `accept`. A row
/// without a button to cancel has an empty label for it.
inline void CheckButtons(wxDialog const& dialog, wxSizerItem* item, wxString const& accept,
                         wxString const& cancel, Placement const& placement)
{
    auto* const row = dynamic_cast<wxStdDialogButtonSizer*>(item->GetSizer());
    REQUIRE(row);
    CHECK(PlacementOf(item) == placement);
    auto const labelOf = [](wxButton* button) { return button ? button->GetLabel() : wxString(); };
    CHECK(labelOf(row->GetAffirmativeButton()) == accept);
    CHECK(labelOf(row->GetCancelButton()) == cancel);
    CHECK(dialog.FindWindow(wxID_OK) == row->GetAffirmativeButton());
    CHECK(dialog.FindWindow(wxID_CANCEL) == row->GetCancelButton());
}

/// Where the row of buttons stands in dialogs that are as large as their content.
inline Placement AtTheEnd()
{
    return {0, wxALIGN_RIGHT | wxALIGN_BOTTOM | wxLEFT | wxTOP | wxBOTTOM, 5};
}

/// Checks that all of a shown dialog is to be seen: it is as large as its content asks for.
inline void CheckFits(wxDialog const& dialog)
{
    CHECK(dialog.GetClientSize() == dialog.GetSizer()->GetMinSize());
}

/// Checks that the middle of the dialog is that of its parent, but for the frame that the window
/// manager puts around it.
inline void CheckCentred(wxDialog const& dialog)
{
    auto const middle = [](wxRect const& rect)
    { return wxPoint(rect.x + rect.width / 2, rect.y + rect.height / 2); };
    wxPoint const off = middle(dialog.GetRect()) - middle(dialog.GetParent()->GetRect());
    CHECK(std::abs(off.x) <= 30);
    CHECK(std::abs(off.y) <= 30);
}
