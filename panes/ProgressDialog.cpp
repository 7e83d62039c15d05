#include "panes/ProgressDialog.h"

#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

ProgressDialog::ProgressDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
               wxBORDER_NONE | wxFRAME_FLOAT_ON_PARENT),
      m_panel(new wxPanel(this, wxID_ANY, wxDefaultPosition, wxSize(196, 60),
                          wxTAB_TRAVERSAL | wxBORDER_NONE))
{
    m_panel->SetBackgroundColour(*wxBLACK);
    wxSize const titleSize(120, -1);
    auto* const elapsed = new wxStaticText(m_panel, wxID_ANY, "Elapsed time:", wxDefaultPosition, titleSize);
    auto* const remaining =
        new wxStaticText(m_panel, wxID_ANY, "Remaining time:", wxDefaultPosition, titleSize);
    m_elapsedText = new wxStaticText(m_panel, wxID_ANY, "unknown");
    m_remainingText = new wxStaticText(m_panel, wxID_ANY, "unknown");

    auto* const columns = new wxBoxSizer(wxHORIZONTAL);
    columns->Add(BuildColumn(elapsed, remaining), 0, wxTOP, 5);
    columns->Add(BuildColumn(m_elapsedText, m_remainingText), 0, wxTOP, 5);
    m_panel->SetSizer(columns);
    m_panel->Layout();

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_panel, 0, wxALL, 0);
    SetSizer(sizer);
    Layout();
    sizer->SetSizeHints(this);
}

wxSizer* ProgressDialog::BuildColumn(wxStaticText* upper, wxStaticText* lower)
{
    auto* const column = new wxBoxSizer(wxVERTICAL);
    for (auto* const text : {upper, lower})
    {
        text->SetForegroundColour(wxColour(255, 255, 255));
        text->SetFont(wxFont(wxFontInfo(9).Family(wxFONTFAMILY_MODERN).Bold()));
        column->Add(text, 0, wxALL, 5);
    }
    return column;
}

void ProgressDialog::SetElapsedTime(wxString& text) { m_elapsedText->SetLabel(text); }

void ProgressDialog::SetRemainingTime(wxString& text) { m_remainingText->SetLabel(text); }
