#include "dialogs/external/InitsNotebookPage.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "common/TypewriterFont.h"

InitsNotebookPage::InitsNotebookPage(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_text = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxTE_MULTILINE | wxTE_DONTWRAP | wxBORDER_RAISED);
    m_text->SetFont(zenqo::TypewriterFont(10));
    sizer->Add(m_text, 1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);
    SetSizer(sizer);
    sizer->SetSizeHints(this);
}

wxString InitsNotebookPage::GetText() const { return m_text->GetValue(); }
