#pragma once

#include <vector>

#include <catch2/catch.hpp>

#include <wx/filedlg.h>

#include "support/ModalScript.h"
#include "support/Stage.h"

/// Presses `button` on the keyboard, checks what the file chooser behind it asks for, and cancels it.
inline void CheckChooser(wxWindow* button, wxString const& message, wxString const& wildcard,
                         std::vector<int> const& flags)
{
    ModalScript script;
    script.Then(
        [&](wxDialog* shown)
        {
            auto* const chooser = dynamic_cast<wxFileDialog*>(shown);
            CHECK(chooser->GetMessage() == message);
            CHECK(chooser->GetWildcard() == wildcard);
            for (int const flag : flags)
                CHECK(chooser->HasFlag(flag));
            return wxID_CANCEL;
        });
    button->SetFocus();
    Press(WXK_SPACE);
    CHECK(PumpUntil([&] { return !script.Shown().empty(); }));
}
