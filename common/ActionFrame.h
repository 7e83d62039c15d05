#pragma once

#include <string>

#include <wx/dialog.h>
#include <wx/frame.h>

#include "common/DialogFrame.h"
#include "common/Text.h"

class wxStaticLine;

/// The frame of the dialogs that ask about an action on an estimated model: a sentence that says what is
/// about to happen, the controls of the action, a note of the host, "&OK" and "&Cancel".
namespace zenqo
{
inline constexpr long ACTION_STYLE
    = wxDEFAULT_DIALOG_STYLE | wxFRAME_FLOAT_ON_PARENT | wxFRAME_SHAPED;

/// The size with which a dialog begins; in the end it is as small as its contents let it be.
///@{
inline wxSize const ACTION_SIZE(400, 300);
inline wxSize const TALL_ACTION_SIZE(400, 700);
///@}

/// The width in pixels at which the sentence is wrapped.
enum class SentenceWidth
{
    NARROW = 320,
    WIDE = 380,
};

/// Makes the dialog's sizer, with the sentence on top; the dialog gets it when the frame is finished.
wxSizer* BeginAction(wxDialog* dialog, wxString const& sentence, SentenceWidth width);

/// Ends a dialog that has no note: adds the buttons, of which "&OK" has the keyboard, and lays it out.
void FinishAction(wxDialog* dialog, wxSizer* sizer);

/// A line to stand over a note; it is in no sizer yet.
wxStaticLine* MakeNoteLine(wxDialog* dialog);

/// Adds the line with the note below it.
void AddNote(wxSizer* sizer, wxStaticLine* line, wxWindow* note);

/// Ends a dialog that always has a note, be it an empty one.
template <class Note>
void FinishActionWithNote(wxDialog* dialog, wxSizer* sizer, std::string const& text)
{
    auto* const line = MakeNoteLine(dialog);
    auto* const note = new Note(dialog, ToWide(text), wxDefaultSize, false);
    AddNote(sizer, line, note);
    AddFocusedButtonRow(dialog, sizer, "&OK");
    LayOutAroundNote(dialog, sizer, note);
}

/// Ends a dialog that has a note only if there is a text for it. The line is made in either case, and
/// without a note it stays outside of every sizer.
template <class Note>
void FinishActionWithAnyNote(wxDialog* dialog, wxSizer* sizer, std::string const& text)
{
    if (!text.empty())
        return FinishActionWithNote<Note>(dialog, sizer, text);
    MakeNoteLine(dialog);
    FinishAction(dialog, sizer);
}
} // namespace zenqo
