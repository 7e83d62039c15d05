#include "modelspec/VariablePicker_yXZ.h"

#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

namespace
{
enum
{
    DEP,
    IND_X,
    IND_Z
};
} // namespace

VariablePicker_yXZ::VariablePicker_yXZ(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                                       wxString const& firstLabel, wxString const& secondLabel)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables",
                                   {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                    {firstLabel, zenqo::RoleKind::SHARED},
                                    {secondLabel, zenqo::RoleKind::SHARED}},
                                   listHeight, 3, 3};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_yXZ>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_yXZ::OnAllVarSelected,
         {{&VariablePicker_yXZ::OnDepVarSelected, &VariablePicker_yXZ::OnUpperButton},
          {&VariablePicker_yXZ::OnIndVarXSelected, &VariablePicker_yXZ::OnLowerButton1},
          {&VariablePicker_yXZ::OnIndVarZSelected, &VariablePicker_yXZ::OnLowerButton2}},
         &VariablePicker_yXZ::OnDatasetChanged});
}

VariablePicker_yXZ::~VariablePicker_yXZ() = default;

std::string VariablePicker_yXZ::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePicker_yXZ::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString VariablePicker_yXZ::GetIndVarX() const { return m_roles->Items(IND_X); }

wxArrayString VariablePicker_yXZ::GetIndVarZ() const { return m_roles->Items(IND_Z); }

bool VariablePicker_yXZ::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_yXZ::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_yXZ::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_yXZ::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_yXZ::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_yXZ::OnIndVarXSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_X); }

void VariablePicker_yXZ::OnIndVarZSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_Z); }

void VariablePicker_yXZ::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_yXZ::OnLowerButton1(wxCommandEvent&) { m_roles->Press(IND_X); }

void VariablePicker_yXZ::OnLowerButton2(wxCommandEvent&) { m_roles->Press(IND_Z); }

void VariablePicker_yXZ::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
