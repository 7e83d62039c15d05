#include "pickers/ModelPickerPMP.h"

#include <wx/sizer.h>

#include "common/ListBoxItems.h"
#include "common/ListPair.h"
#include "common/Text.h"
#include "common/VariableRoles.h"

ModelPickerPMP::ModelPickerPMP(wxWindow* parent, std::vector<std::string> models)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0)
{
    auto const lists = zenqo::BuildListPair(this, {"Stored models (with log-ML)", wxSize(200, -1)},
                                            {"Models to Compare", wxSize(200, 192)});
    zenqo::AppendItems(lists.left, zenqo::ToWide(models));
    m_roles = std::make_unique<zenqo::RoleLists>(lists.left, std::vector{lists.right}, 0, nullptr);

    auto* const sizer = zenqo::LayOutWithButtonColumn(lists, 100, 18);
    SetSizer(sizer, true);
    Layout();
    sizer->SetSizeHints(this);

    lists.left->Bind(wxEVT_LISTBOX, &ModelPickerPMP::OnLhsModelsSelected, this);
    zenqo::BindRole(lists.right, this, &ModelPickerPMP::OnRhsModelsSelected,
                    &ModelPickerPMP::OnMoveButton);
}

ModelPickerPMP::~ModelPickerPMP() = default;

wxArrayString ModelPickerPMP::GetRhsModels() const { return m_roles->Items(0); }

bool ModelPickerPMP::GetChanged() const { return m_roles->GetChanged(); }

void ModelPickerPMP::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void ModelPickerPMP::OnLhsModelsSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void ModelPickerPMP::OnRhsModelsSelected(wxCommandEvent&) { m_roles->OnRoleSelected(0); }

void ModelPickerPMP::OnMoveButton(wxCommandEvent&) { m_roles->Press(0); }
