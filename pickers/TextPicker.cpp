#include "pickers/TextPicker.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "common/ExampleLine.h"
#include "common/Text.h"
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

    zenqo::AddExampleLine(this, sizer, example,
                          wxFontInfo(wxNORMAL_FONT->GetPointSize()).Family(wxFONTFAMILY_MODERN),
                          wxALIGN_BOTTOM | wxLEFT);
    SetSizer(sizer, true);
    Layout();
}

std::string TextPicker::GetText() const { return zenqo::ToNarrow(m_text->GetValue()); }
