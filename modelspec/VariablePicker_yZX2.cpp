#include "modelspec/VariablePicker_yZX2.h"

#include "common/VariableName.h"
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

VariablePicker_yZX2::VariablePicker_yZX2(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                                         wxString const& firstLabel, wxString const& secondLabel)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    zenqo::RoleGridSpec const grid{"Variables",
                                   {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                    {firstLabel, zenqo::RoleKind::STEMS},
                                    {secondLabel, zenqo::RoleKind::LIST}},
                                   listHeight, 3, 3};
    m_roles = zenqo::BuildVariablePicker<VariablePicker_yZX2>(
        this, m_datasetPicker, datasets, grid,
        {&VariablePicker_yZX2::OnAllVarSelected,
         {{&VariablePicker_yZX2::OnDepVarSelected, &VariablePicker_yZX2::OnUpperButton},
          {&VariablePicker_yZX2::OnIndVarZSelected, &VariablePicker_yZX2::OnLowerButton1},
          {&VariablePicker_yZX2::OnIndVarXSelected, &VariablePicker_yZX2::OnLowerButton2}},
         &VariablePicker_yZX2::OnDatasetChanged});
}

VariablePicker_yZX2::~VariablePicker_yZX2() = default;

std::string VariablePicker_yZX2::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePicker_yZX2::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString VariablePicker_yZX2::GetIndVarZ() const { return m_roles->Items(IND_Z); }

wxArrayString VariablePicker_yZX2::GetIndVarX() const { return m_roles->Items(IND_X); }

bool VariablePicker_yZX2::GetChanged() const { return m_roles->GetChanged(); }

void VariablePicker_yZX2::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePicker_yZX2::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void VariablePicker_yZX2::splitName(std::string const& full, std::string& stem, std::string& suffix)
{
    zenqo::splitName(full, stem, suffix);
}

void VariablePicker_yZX2::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePicker_yZX2::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void VariablePicker_yZX2::OnIndVarZSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_Z); }

void VariablePicker_yZX2::OnIndVarXSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND_X); }

void VariablePicker_yZX2::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void VariablePicker_yZX2::OnLowerButton1(wxCommandEvent&) { m_roles->Press(IND_Z); }

void VariablePicker_yZX2::OnLowerButton2(wxCommandEvent&) { m_roles->Press(IND_X); }

void VariablePicker_yZX2::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
