#include "pickers/TextPicker.h"

#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "common/Text.h"
#include "common/TextLabel.h"
#include "common/TypewriterFont.h"

TextPicker::TextPicker(wxWindow* parent, wxString& example, int width, int height)
    : wxPanel(parent)
{
    // The third row stays empty.
    auto* const sizer = new wxFlexGridSizer(3, 1, 0, 0);
    sizer->AddGrowableCol(0, 1);
    sizer->AddGrowableRow(0, 10);
    m_text = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxSize(width, height),
                            wxTE_MULTILINE | wxTE_RICH);
    m_text->SetFont(zenqo::TypewriterFont(10));
    sizer->Add(m_text, 1, wxEXPAND | wxALL, 5);

    auto* const line = new wxFlexGridSizer(1, 2, 0, 0);
    line->AddGrowableCol(1, 1);
    sizer->Add(line, 0, wxEXPAND, 5);
    auto const font = wxFontInfo(wxNORMAL_FONT->GetPointSize()).Family(wxFONTFAMILY_MODERN);
    auto* const word = zenqo::MakeTextLabel(this, "Example:", wxSize(67, 23));
    word->SetFont(wxFont(font).Bold());
    line->Add(word, 0, wxLEFT, 5);
    auto* const text = zenqo::MakeTextLabel(this, example, wxSize(310, 23));
    text->SetFont(font);
    line->Add(text, 0, wxALIGN_BOTTOM | wxLEFT, 2);

    SetSizer(sizer, true);
    Layout();
}

std::string TextPicker::GetText() const { return zenqo::ToNarrow(m_text->GetValue()); }
