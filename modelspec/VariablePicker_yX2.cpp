#include "modelspec/VariablePicker_yX2.h"

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

VariablePicker_yX2::VariablePicker_yX2(wxWindow* parent, DatasetMap* datasets, int const& listHeight)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables in Dataset",
                                   {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                    {"Independent Variables", zenqo::RoleKind::LIST}},
                                   listHeight, 3, 2};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_yX2>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_yX2::OnAllVarSelected,
         {{&VariablePicker_yX2::OnDepVarSelected, &VariablePicker_yX2::OnUpperButton},
          {&VariablePicker_yX2::OnIndVarSelected, &VariablePicker_yX2::OnLowerButton}},
         &VariablePicker_yX2::OnDatasetChanged});
}

VariablePicker_yX2::~VariablePicker_yX2() = default;

std::string VariablePicker_yX2::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePicker_yX2::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString VariablePicker_yX2::GetIndVar() const { return m_roles->Items(IND); }

bool VariablePicker_yX2::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_yX2::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_yX2::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_yX2::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_yX2::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_yX2::OnIndVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND); }

void VariablePicker_yX2::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_yX2::OnLowerButton(wxCommandEvent&) { m_roles->Press(IND); }

void VariablePicker_yX2::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
