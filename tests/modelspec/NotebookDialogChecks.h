#pragma once

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/sizer.h>

#include "support/Find.h"
#include "support/RunDialog.h"

/// What the dialogs have in common that are a notebook over two buttons.
namespace notebook_dialog_checks
{
inline void Layout(wxDialog& dialog, wxString const& title, wxString const& page)
{
    CHECK(dialog.GetTitle() == title);
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL)
          == (wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX | wxFRAME_FLOAT_ON_PARENT));

    auto* const sizer = dynamic_cast<wxBoxSizer*>(dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == 2);
    auto* const notebook = dynamic_cast<wxNotebook*>(Item(sizer, 0)->GetWindow());
    REQUIRE(notebook);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{6, wxEXPAND | wxALL, 5});
    CHECK(notebook->GetMinSize() == wxSize(500, 300));
    REQUIRE(notebook->GetPageCount() == 1);
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetPageText(0) == page);

    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxALIGN_RIGHT | wxALL, 5});
    auto* const row = dynamic_cast<wxFlexGridSizer*>(Item(sizer, 1)->GetSizer());
    REQUIRE(row);
    CHECK(row->GetRows() == 1);
    CHECK(row->GetCols() == 3);
    CHECK(row->GetHGap() == 0);
    CHECK(row->GetVGap() == 0);
    REQUIRE(row->GetItemCount() == 2);
    int const flags = wxRIGHT | wxALIGN_RIGHT | wxALIGN_BOTTOM;
    auto* const cancel = dynamic_cast<wxButton*>(Item(row, 0)->GetWindow());
    REQUIRE(cancel);
    CHECK(cancel->GetId() == wxID_CANCEL);
    CHECK(cancel->GetLabel() == "&Cancel");
    CHECK(PlacementOf(Item(row, 0)) == Placement{1, flags, 5});
    auto* const accept = dynamic_cast<wxButton*>(Item(row, 1)->GetWindow());
    REQUIRE(accept);
    CHECK(accept->GetId() == wxID_OK);
    CHECK(accept->GetLabel() == "&OK");
    CHECK(PlacementOf(Item(row, 1)) == Placement{1, flags, 6});

    // 600 by 100 is asked for; the notebook's least height beats the second number.
    CHECK(dialog.GetSize().x == 600);
    CHECK(dialog.GetSize().y == dialog.GetMinSize().y);
    CHECK(dialog.GetMinSize().y > 300);
}
} // namespace notebook_dialog_checks
