#include "pickers/AdditionalPicker1.h"

#include <wx/checkbox.h>
#include <wx/sizer.h>

AdditionalPicker1::AdditionalPicker1(wxWindow* parent, wxString label)
    : wxPanel(parent), m_box(new wxCheckBox(this, wxID_ANY, label))
{
    auto* const sizer = new wxFlexGridSizer(1, 1, 0, 0);
    sizer->AddGrowableCol(0, 1);
    sizer->Add(m_box, 1, wxEXPAND | wxALL, 5);
    SetSizer(sizer, true);
    Layout();
}

bool AdditionalPicker1::GetState1() const { return m_box->GetValue(); }
