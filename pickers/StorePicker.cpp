#include "pickers/StorePicker.h"

#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "common/TextLabel.h"

StorePicker::StorePicker(wxWindow* parent)
    : wxPanel(parent)
{
    auto* const sizer = new wxFlexGridSizer(2, 2, 0, 0);
    sizer->AddGrowableCol(0, 1);
    m_store = new wxCheckBox(this, wxID_ANY, "Store results");
    sizer->Add(m_store, 1, wxEXPAND | wxTOP | wxLEFT, 5);
    sizer->Add(1, 1);
    sizer->Add(zenqo::MakeTextLabel(this, "Model name:", wxDefaultSize), 0, wxALIGN_BOTTOM | wxALL, 5);
    m_name = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxSize(130, -1));
    m_name->Enable(false);
    sizer->Add(m_name, 0, wxALL, 5);
    SetSizer(sizer, true);
    Layout();
    m_store->Bind(wxEVT_CHECKBOX, &StorePicker::OnStoreClicked, this);
}

bool StorePicker::GetStoreState() const { return m_store->GetValue(); }

wxString StorePicker::GetModelName() const
{
    return m_store->GetValue() ? m_name->GetValue() : wxString("NoStore");
}

void StorePicker::OnStoreClicked(wxCommandEvent&) { m_name->Enable(m_store->GetValue()); }
