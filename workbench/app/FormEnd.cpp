#include "workbench/app/FormEnd.h"

#include <utility>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "engine/Functions.h"
#include "workbench/app/CallText.h"

namespace workbench
{
wxSizer* BeginForm(wxDialog* form, wxSizer* content)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(content, 1, wxEXPAND | wxLEFT | wxRIGHT, 8);
    form->SetSizer(sizer);
    return sizer;
}

FormEnd::FormEnd(wxDialog* form, wxSizer* sizer, wxString const& name, std::vector<Check> checks)
    : m_form(form), m_checks(std::move(checks))
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticText(form, wxID_ANY, "Name:"), 0, wxALIGN_CENTER_VERTICAL | wxRIGHT, 8);
    m_name = new wxTextCtrl(form, wxID_ANY, name);
    m_name->SetName("name");
    row->Add(m_name, 1);
    sizer->Add(row, 0, wxEXPAND | wxALL, 12);
    sizer->Add(form->CreateSeparatedButtonSizer(wxOK | wxCANCEL), 0, wxEXPAND | wxALL, 8);
    form->Bind(wxEVT_BUTTON, &FormEnd::OnAccept, this, wxID_OK);
    sizer->SetSizeHints(form);
    form->CentreOnParent();
}

std::string FormEnd::Name() const { return Narrow(m_name->GetValue()); }

void FormEnd::OnAccept(wxCommandEvent& event)
{
    wxString problem = CheckID(Name()) ? wxString()
                                       : wxString("The name must consist of letters, digits and underscores, "
                                                  "and must not begin with a digit.");
    for (Check const& check : m_checks)
        if (problem.empty())
            problem = check();
    if (problem.empty())
        event.Skip();
    else
        wxMessageBox(problem, m_form->GetTitle(), wxOK | wxICON_EXCLAMATION, m_form);
}
} // namespace workbench
