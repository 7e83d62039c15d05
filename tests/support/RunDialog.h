#pragma once

#include <functional>
#include <vector>

#include <catch2/catch.hpp>

#include <wx/dialog.h>

#include "support/ModalScript.h"
#include "support/Stage.h"

/// The answer to a dialog that is to show really: `actions` are done to it once it stands. If nothing
/// of that closes it, `ShowModal` returns `wxID_NONE`.
inline ModalScript::Answer OnScreen(std::function<void()> actions)
{
    return [actions](wxDialog* dialog)
    {
        dialog->CallAfter(
            [actions, dialog]
            {
                PumpUntil([&] { return dialog->IsActive(); });
                Pump(150);
                actions();
                // A button that is pressed on the keyboard stays down for a while before it acts. But
                // the dialog must not wait for a user who isn't there.
                if (!PumpUntil([&] { return !dialog->IsModal(); }, 2000))
                    dialog->EndModal(wxID_NONE);
            });
        return wxID_NONE;
    };
}

/// Shows the dialog modally, does `actions` to it once it stands, and gives what it answered:
/// `wxID_NONE` if nothing of that closed it. `others` answer the dialogs that it shows itself.
inline int RunDialog(wxDialog& dialog, std::function<void()> const& actions,
                     std::vector<ModalScript::Answer> const& others = {})
{
    ModalScript script;
    script.Then(OnScreen(actions));
    for (auto const& other : others)
        script.Then(other);
    return dialog.ShowModal();
}

/// All the ways out that cancel.
inline void CheckWaysOut(wxDialog& dialog)
{
    CHECK(RunDialog(dialog, [] { Press(WXK_ESCAPE); }) == wxID_CANCEL);
    CHECK(RunDialog(dialog, [&] { dialog.Close(); }) == wxID_CANCEL);
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_CANCEL)); }) == wxID_CANCEL);
}

/// A warning as the library shows it.
inline void CheckWarning(ShownDialog const& warning, wxString const& text, wxWindow const* parent)
{
    CHECK(warning.text == text);
    CHECK(warning.caption == "Warning");
    CHECK(warning.style == (wxOK | wxICON_EXCLAMATION));
    CHECK(warning.parent == parent);
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
    CheckWarning(script.Shown()[0], text, &dialog);
    CHECK(dialog.IsModal());
}
