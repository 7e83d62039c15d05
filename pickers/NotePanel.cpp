#include "pickers/NotePanel.h"

#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "common/Text.h"
#include "common/TextLabel.h"

namespace
{
/// The text's window. There is nothing to do in it with the keyboard, so Tab passes it over.
class NoteWindow : public wxHtmlWindow
{
public:
    using wxHtmlWindow::wxHtmlWindow;
    bool AcceptsFocusFromKeyboard() const override { return false; }
};
} // namespace

NotePanel::NotePanel(wxWindow* parent, wxString const& text, wxSize const& size, bool)
    : wxPanel(parent)
{
    auto* const sizer = new wxFlexGridSizer(1, 2, 0, 0);
    sizer->AddGrowableCol(1, 1);
    auto* const word = zenqo::MakeTextLabel(this, "Note:", wxSize(40, 23));
    word->SetFont(wxFontInfo(9).Family(wxFONTFAMILY_MODERN).Bold());
    sizer->Add(word, 0, wxTOP, 0);

    m_note = new NoteWindow(this, wxID_ANY, wxDefaultPosition, size,
                            wxHW_SCROLLBAR_NEVER | wxHW_NO_SELECTION, "htmlWindow");
    m_note->SetBorders(0);
    m_note->SetStandardFonts(9, "", "");
    ShowNote(text);
    sizer->Add(m_note, 1, wxEXPAND | wxALL, 0);

    SetSizer(sizer, true);
    sizer->SetSizeHints(this);
    Layout();
}

void NotePanel::ResizeNoteWindow()
{
    // Each change of a size wraps the text anew: the height is read before the first.
    int const height = m_note->GetInternalRepresentation()->GetHeight();
    m_note->SetInitialSize(wxSize(-1, height));
    SetInitialSize(wxSize(200, height));
    Layout();
}

void NotePanel::ShowNote(wxString const& text)
{
    // In the mix of the button's face and the window's frame the face has no weight.
    wxColour const frame = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWFRAME);
    wxColour const background(frame.Red(), frame.Green(), frame.Blue());
    SetBackgroundColour(background);
    auto const html = [](wxColour const& colour)
    { return zenqo::ToNarrow(colour.GetAsString(wxC2S_HTML_SYNTAX)); };

    std::string const page = "<html>\n<body bgcolor=\"" + html(background)
                             + "\">\n\t<p style=\"text-align:justify;\">\n\t<font color=\""
                             + html(GetForegroundColour()) + "\">\n" + zenqo::ToNarrow(text)
                             + "\n\t</font>\n\t</p>\n</body>\n</html>";
    m_note->SetPage(zenqo::ToWide(page));
}
