#include "modelspec/EqsNotebookPage.h"

#include "common/VariableRoles.h"

namespace
{
constexpr int LIST_HEIGHT = 350;

enum
{
    DEP,
    IND
};
} // namespace

EqsNotebookPage::EqsNotebookPage(wxWindow* parent, wxArrayString& names, int const&)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0), m_names(names)
{
    auto const grid = zenqo::BuildRoleGrid(this, {"Variables in Dataset",
                                                  {{"Dependent Variable", zenqo::RoleKind::SINGLE},
                                                   {"Independent Variables", zenqo::RoleKind::LIST}},
                                                  LIST_HEIGHT, 3, 2});
    SetSizer(grid.sizer, true);
    grid.sizer->SetSizeHints(this);
    Layout();
    m_roles = std::make_unique<zenqo::RoleLists>(grid.left, grid.roles, 1, [this] { return m_names; });

    grid.left->Bind(wxEVT_LISTBOX, &EqsNotebookPage::OnAllVarSelected, this);
    zenqo::BindRole(grid.roles[DEP], this, &EqsNotebookPage::OnDepVarSelected,
                    &EqsNotebookPage::OnUpperButton);
    zenqo::BindRole(grid.roles[IND], this, &EqsNotebookPage::OnIndVarSelected,
                    &EqsNotebookPage::OnLowerButton);
}

EqsNotebookPage::~EqsNotebookPage() = default;

wxString EqsNotebookPage::GetDepVar() const { return m_roles->Only(DEP); }

wxArrayString EqsNotebookPage::GetIndVar() const { return m_roles->Items(IND); }

bool EqsNotebookPage::GetChanged() const { return m_roles->GetChanged(); }

void EqsNotebookPage::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void EqsNotebookPage::SetAvailableVarNames(wxArrayString& names) { m_names = names; }

void EqsNotebookPage::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

void EqsNotebookPage::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void EqsNotebookPage::OnDepVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(DEP); }

void EqsNotebookPage::OnIndVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(IND); }

void EqsNotebookPage::OnUpperButton(wxCommandEvent&) { m_roles->Press(DEP); }

void EqsNotebookPage::OnLowerButton(wxCommandEvent&) { m_roles->Press(IND); }
