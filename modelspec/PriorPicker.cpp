#include "modelspec/PriorPicker.h"

#include <tuple>

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>

#include "common/PriorChoice.h"

PriorPicker::PriorPicker(wxWindow* parent)
    : wxPanel(parent)
{
    std::tie(m_default, m_custom, m_define) = zenqo::MakePriorChoice(this, wxSize(80, 25));
    auto* const sizer = new wxFlexGridSizer(2, 2, 0, 0);
    sizer->AddGrowableCol(0, 1);
    sizer->Add(m_default, 1, wxEXPAND | wxTOP | wxLEFT, 5);
    sizer->Add(1, 1);
    sizer->Add(m_custom, 1, wxEXPAND | wxBOTTOM | wxLEFT, 5);
    sizer->Add(m_define, 10, wxEXPAND | wxBOTTOM | wxLEFT, 5);
    SetSizer(sizer, true);
    Layout();
    sizer->SetSizeHints(this);
    m_default->Bind(wxEVT_RADIOBUTTON, &PriorPicker::OnDefaultChoice, this);
    m_custom->Bind(wxEVT_RADIOBUTTON, &PriorPicker::OnCustomChoice, this);
}

bool PriorPicker::GetDefaultOption() const { return m_default->GetValue(); }

void PriorPicker::OnDefaultChoice(wxCommandEvent&) { m_define->Enable(false); }

void PriorPicker::OnCustomChoice(wxCommandEvent&) { m_define->Enable(true); }
