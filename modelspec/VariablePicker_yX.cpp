#include "modelspec/VariablePicker_yX.h"

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

VariablePicker_yX::VariablePicker_yX(wxWindow* parent, DatasetMap* datasets, int const& listHeight)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables in Dataset",
                                   {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                    {"Independent Variables", zenqo::RoleKind::LIST}},
                                   listHeight, 3, 2};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_yX>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_yX::OnAllVarSelected,
         {{&VariablePicker_yX::OnDepVarSelected, &VariablePicker_yX::OnUpperButton},
          {&VariablePicker_yX::OnIndVarSelected, &VariablePicker_yX::OnLowerButton}},
         &VariablePicker_yX::OnDatasetChanged});
}

VariablePicker_yX::~VariablePicker_yX() = default;

std::string VariablePicker_yX::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePicker_yX::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString VariablePicker_yX::GetIndVar() const { return m_roles->Items(IND); }

bool VariablePicker_yX::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_yX::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_yX::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_yX::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_yX::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_yX::OnIndVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND); }

void VariablePicker_yX::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_yX::OnLowerButton(wxCommandEvent&) { m_roles->Press(IND); }

void VariablePicker_yX::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
