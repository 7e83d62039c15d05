#pragma once

#include <functional>

#include <catch2/catch.hpp>

#include <wx/dialog.h>

#include "support/ModalScript.h"
#include "support/Stage.h"

/// Shows the dialog modally, does `actions` to it once it stands, and gives what it answered:
/// `wxID_NONE` if nothing of that closed it.
inline int RunDialog(wxDialog& dialog, std::function<void()> const& actions)
{
    ModalScript script;
    script.Then(wxID_NONE);
    dialog.CallAfter(
        [&]
        {
            PumpUntil([&] { return dialog.IsActive(); });
            Pump(150);
            actions();
            // A button that is pressed on the keyboard stays down for a while before it acts. But the
            // dialog must not wait for a user who isn't there.
            if (!PumpUntil([&] { return !dialog.IsModal(); }, 2000))
                dialog.EndModal(wxID_NONE);
        });
    return dialog.ShowModal();
}

/// Makes the user of a dialog that stands `accept` what the dialog can't take: it must warn with `text`
/// once and stay.
inline void CheckRefused(wxDialog& dialog, wxString const& text, std::function<void()> const& accept)
{
    ModalScript script;
    script.Then(wxID_OK);
    accept();
    PumpUntil([&] { return !script.Shown().empty(); });
    Pump();
    REQUIRE(script.Shown().size() == 1);
    auto const& warning = script.Shown()[0];
    CHECK(warning.text == text);
    CHECK(warning.caption == "Warning");
    CHECK(warning.style == (wxOK | wxICON_EXCLAMATION));
    CHECK(warning.parent == &dialog);
    CHECK(dialog.IsModal());
}
