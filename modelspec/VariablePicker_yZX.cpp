#include "modelspec/VariablePicker_yZX.h"

#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

namespace
{
enum
{
    DEP,
    IND_Z,
    IND_X
};
} // namespace

VariablePicker_yZX::VariablePicker_yZX(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                                       wxString const& firstLabel, wxString const& secondLabel)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables",
                                   {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                    {firstLabel, zenqo::RoleKind::LIST},
                                    {secondLabel, zenqo::RoleKind::LIST}},
                                   listHeight, 3, 3};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_yZX>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_yZX::OnAllVarSelected,
         {{&VariablePicker_yZX::OnDepVarSelected, &VariablePicker_yZX::OnUpperButton},
          {&VariablePicker_yZX::OnIndVarZSelected, &VariablePicker_yZX::OnLowerButton1},
          {&VariablePicker_yZX::OnIndVarXSelected, &VariablePicker_yZX::OnLowerButton2}},
         &VariablePicker_yZX::OnDatasetChanged});
}

VariablePicker_yZX::~VariablePicker_yZX() = default;

std::string VariablePicker_yZX::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePicker_yZX::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString VariablePicker_yZX::GetIndVarZ() const { return m_roles->Items(IND_Z); }

wxArrayString VariablePicker_yZX::GetIndVarX() const { return m_roles->Items(IND_X); }

bool VariablePicker_yZX::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_yZX::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_yZX::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_yZX::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_yZX::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_yZX::OnIndVarZSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_Z); }

void VariablePicker_yZX::OnIndVarXSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_X); }

void VariablePicker_yZX::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_yZX::OnLowerButton1(wxCommandEvent&) { m_roles->Press(IND_Z); }

void VariablePicker_yZX::OnLowerButton2(wxCommandEvent&) { m_roles->Press(IND_X); }

void VariablePicker_yZX::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
