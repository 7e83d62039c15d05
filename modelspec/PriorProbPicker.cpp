#include "modelspec/PriorProbPicker.h"

#include <tuple>

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>

#include "common/PriorChoice.h"

PriorProbPicker::PriorProbPicker(wxWindow* parent)
    : wxPanel(parent)
{
    std::tie(m_default, m_custom, m_define) = zenqo::MakePriorChoice(this, wxDefaultSize);
    auto* const own = new wxGridSizer(1, 2, 0, 0);
    own->Add(m_custom, 1, wxEXPAND, 5);
    own->Add(m_define, 1, wxEXPAND, 5);
    auto* const sizer = new wxFlexGridSizer(1, 3, 0, 0);
    sizer->AddGrowableCol(1, 1);
    sizer->Add(m_default, 1, wxEXPAND, 5);
    sizer->Add(150, 0, 1, wxEXPAND, 5);
    sizer->Add(own, 1, wxEXPAND | wxALL, 5);
    SetSizer(sizer, true);
    Layout();
    sizer->SetSizeHints(this);
    m_default->Bind(wxEVT_RADIOBUTTON, &PriorProbPicker::OnDefaultButton, this);
    m_custom->Bind(wxEVT_RADIOBUTTON, &PriorProbPicker::OnCustomButton, this);
}

bool PriorProbPicker::GetDefaultOption() const { return m_default->GetValue(); }

void PriorProbPicker::OnDefaultButton(wxCommandEvent&) { m_define->Enable(false); }

void PriorProbPicker::OnCustomButton(wxCommandEvent&) { m_define->Enable(true); }
