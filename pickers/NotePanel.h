#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxHtmlWindow;

/// A passage of help text beside the word "Note:", in the colours of the theme.
///
/// The text is markup: tags such as `<b>` are obeyed, and a literal `<` or `&` is the owner's to
/// escape. It can't be selected or scrolled: ResizeNoteWindow gives it the height that it needs.
class ZENQO_API NotePanel : public wxPanel
{
public:
    /// `text` goes into the page as it stands; a text that does not convert to the locale's encoding
    /// leaves the note empty. `size` is the initial size of the text's window in pixels. `flag` has
    /// no effect.
    NotePanel(wxWindow* parent, wxString const& text, wxSize const& size, bool flag);

    /// Makes the note as tall as its text is in the width that it has by now, and the panel at least
    /// 200 pixels wide. The owner calls it last in its own constructor, after its own `SetSizer`,
    /// `SetSizeHints` and `Layout`.
    void ResizeNoteWindow();

private:
    void ShowNote(wxString const& text);

    wxHtmlWindow* m_note;
};
