#include "modelspec/VariablePicker_Y_X.h"

#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

namespace
{
enum
{
    DEP,
    IND
};
} // namespace

VariablePicker_Y_X::VariablePicker_Y_X(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                                       wxString const& firstLabel, wxString const& secondLabel)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables",
                                   {{firstLabel, zenqo::RoleKind::LIST},
                                    {secondLabel, zenqo::RoleKind::LIST}},
                                   listHeight, 3, 3};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_Y_X>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_Y_X::OnAllVarSelected,
         {{&VariablePicker_Y_X::OnDepVarSelected, &VariablePicker_Y_X::OnUpperButton},
          {&VariablePicker_Y_X::OnIndVarSelected, &VariablePicker_Y_X::OnLowerButton}},
         &VariablePicker_Y_X::OnDatasetChanged});
}

VariablePicker_Y_X::~VariablePicker_Y_X() = default;

std::string VariablePicker_Y_X::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxArrayString VariablePicker_Y_X::GetDepVars() const { return m_roles->Items(DEP); }

wxArrayString VariablePicker_Y_X::GetIndVars() const { return m_roles->Items(IND); }

bool VariablePicker_Y_X::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_Y_X::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_Y_X::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_Y_X::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_Y_X::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_Y_X::OnIndVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND); }

void VariablePicker_Y_X::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_Y_X::OnLowerButton(wxCommandEvent&) { m_roles->Press(IND); }

void VariablePicker_Y_X::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
