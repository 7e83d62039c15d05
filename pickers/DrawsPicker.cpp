#include "pickers/DrawsPicker.h"

#include "common/ListPair.h"
#include "common/VariableRoles.h"
#include "pickers/ModelPicker.h"

namespace
{
constexpr int ID_MODEL_CHOICE = 6024; ///< The window id of the model picker's list.
}

DrawsPicker::DrawsPicker(wxWindow* parent, ModelMap* models, int const& listHeight,
                         int const& lowerSpacerProportion, wxString const& rightCaption)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_modelPicker(new ModelPicker(this))
{
    // The right list keeps its height: the row that would grow is an empty one below it.
    auto const lists = zenqo::BuildListPair(this, {"Draws in model", wxSize(zenqo::LIST_WIDTH, -1)},
                                            {rightCaption, wxSize(zenqo::LIST_WIDTH, listHeight), 4, 3});
    zenqo::LayOutUnderPicker(this, m_modelPicker,
                             zenqo::LayOutWithButtonColumn(lists, 1, lowerSpacerProportion), 0,
                             wxEXPAND | wxALL);
    zenqo::OfferKeys(m_modelPicker, *models);
    m_roles = std::make_unique<zenqo::RoleLists>(
        lists.left, std::vector{lists.right}, 0,
        [this, models] { return zenqo::DrawNames(*models, GetModelName()); });

    lists.left->Bind(wxEVT_LISTBOX, &DrawsPicker::OnLhsVarSelected, this);
    zenqo::BindRole(lists.right, this, &DrawsPicker::OnRhsVarSelected, &DrawsPicker::OnMoveButton);
    Bind(wxEVT_CHOICE, &DrawsPicker::OnModelChanged, this, ID_MODEL_CHOICE);
}

DrawsPicker::~DrawsPicker() = default;

std::string DrawsPicker::GetModelName() const { return m_modelPicker->GetSelectionString(); }

wxArrayString DrawsPicker::GetRhsVars() const { return m_roles->Items(0); }

void DrawsPicker::RedrawLhsList(wxArrayString& names) { m_roles->Redraw(names); }

bool DrawsPicker::GetChanged() const { return m_roles->GetChanged(); }

void DrawsPicker::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void DrawsPicker::SetSelection(int index)
{
    zenqo::SelectInPicker(m_modelPicker, index);
    wxCommandEvent event;
    OnModelChanged(event);
}

void DrawsPicker::OnLhsVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void DrawsPicker::OnRhsVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(0); }

void DrawsPicker::OnMoveButton(wxCommandEvent&) { m_roles->Press(0); }

void DrawsPicker::OnModelChanged(wxCommandEvent&) { m_roles->Restart(); }
