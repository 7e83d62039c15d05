#pragma once

#include <wx/button.h>
#include <wx/filepicker.h>

#include "dialogs/application/DialogChecks.h"
#include "support/FileChooser.h"

/// Checks the frame of a dialog that exports, which has `items` in its sizer: title, style, the box of
/// the file on top, the buttons at the end.
inline void CheckExportFrame(wxDialog const& dialog, wxString const& title, std::size_t items)
{
    auto* const sizer = CheckFrame(dialog, title, 0x2000190C, items);
    CheckCentred(dialog);
    auto* const box = CheckBox(Item(sizer, 0), "File name and location", {0, wxEXPAND | wxALL, 5});
    REQUIRE(box->GetItemCount() == 1);
    CHECK(PlacementOf(Item(box, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const picker = dynamic_cast<wxFilePickerCtrl*>(Item(box, 0)->GetWindow());
    REQUIRE(picker);
    CHECK(picker->GetId() < 0);
    CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0x1802);
    CheckButtons(dialog, Item(sizer, items - 1), "&Export", "&Cancel",
                 {1, wxALIGN_RIGHT | wxALIGN_BOTTOM | wxTOP | wxBOTTOM, 5});
}

/// Checks what the dialog's button asks for: the name of a file to write.
inline void CheckSaveChooser(wxDialog& dialog)
{
    dialog.Show();
    PumpUntil([&] { return dialog.IsActive(); });
    CheckChooser(Find<wxButton>(Find<wxFilePickerCtrl>(&dialog)), "Select a file", "*.*",
                 {wxFD_SAVE, wxFD_OVERWRITE_PROMPT});
    dialog.Hide();
}

/// Paths that a host or user may come up with.
inline std::vector<std::string> PathsOfAllKinds()
{
    return {"x.png", "./a b.csv", "/no such folder/x.y.z", " ", "-5", "+.5", "1e-7", "%s%n", "\"q\".csv",
            "a\\b", "r\xC3\xA9sultat \xCE\xB2.csv", "/" + std::string(5000, 'x') + "/y.csv"};
}
