#include "modelspec/VariablePickerMark.h"

#include <iterator>

#include <wx/choice.h>
#include <wx/sizer.h>

#include "common/TypewriterFont.h"
#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

namespace
{
enum
{
    TIME,
    GROUP
};

/// The formats of time. The face is monospaced, so that the comments stand in line.
wxChoice* MakeFormatChoice(wxWindow* parent)
{
    wxString const formats[] = {
        "\"index\"      (integer values)",
        "\"yyyyqx\"     (quarterly data)",
        "\"yyyymxx\"    (monthly data)",
        "\"yyyy/mm/dd\" (daily data)",
    };
    auto* const choice = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                      static_cast<int>(std::size(formats)), formats);
    choice->SetFont(zenqo::TypewriterFont(10));
    choice->SetSelection(0);
    return choice;
}

/// A role that is filled with one variable, and whose button then keeps its direction.
zenqo::Role AddVariable(wxFlexGridSizer* grid, wxPanel* panel, wxString const& caption, wxListBox* left)
{
    auto role = zenqo::AddRole(grid, panel, {caption, zenqo::RoleKind::SINGLE}, left, wxDefaultCoord);
    role.keepsDirection = true;
    return role;
}
} // namespace

VariablePickerMark::VariablePickerMark(wxWindow* parent, DatasetMap* datasets)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    auto const left
        = zenqo::BuildCaptionedList(this, "Variables in Dataset", wxSize(zenqo::LIST_WIDTH, 220));

    auto* const right = new wxFlexGridSizer(7, 2, 0, 0);
    right->AddGrowableRow(6, 10);
    right->AddGrowableCol(0, 10);
    auto const time = AddVariable(right, this, "Time Variable", left.list);
    zenqo::AddGap(right);
    zenqo::AddCaption(right, this, "Time-Series Format");
    zenqo::AddGap(right);
    m_format = MakeFormatChoice(this);
    zenqo::AddList(right, m_format);
    auto const group = AddVariable(right, this, "Group Id Variable", left.list);
    zenqo::AddGap(right);
    zenqo::AddGap(right);

    auto* const sizer = new wxFlexGridSizer(1, 2, 0, 0);
    sizer->AddGrowableCol(1, 10);
    sizer->Add(left.sizer, 1, wxEXPAND, 5);
    sizer->Add(right, 1, wxEXPAND, 5);
    zenqo::LayOutUnderPicker(this, m_datasetPicker, sizer, 1, wxEXPAND | wxALL);
    m_roles = zenqo::OfferVariables(m_datasetPicker, datasets, left.list, {time, group});

    left.list->Bind(wxEVT_LISTBOX, &VariablePickerMark::OnAllVarSelected, this);
    zenqo::BindRole(time, this, &VariablePickerMark::OnTimeVarSelected,
                    &VariablePickerMark::OnUpperButton);
    zenqo::BindRole(group, this, &VariablePickerMark::OnGroupVarSelected,
                    &VariablePickerMark::OnLowerButton);
    m_datasetPicker->Bind(wxEVT_CHOICE, &VariablePickerMark::OnDatasetChanged, this);
}

VariablePickerMark::~VariablePickerMark() = default;

std::string VariablePickerMark::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxString VariablePickerMark::GetTimeVar() const { return m_roles->Only(TIME); }

wxString VariablePickerMark::GetGroupVar() const { return m_roles->Only(GROUP); }

int VariablePickerMark::GetTSFormat() const { return m_format->GetCurrentSelection(); }

void VariablePickerMark::SetDataset(int index)
{
    zenqo::SelectInPicker(m_datasetPicker, index);
    wxCommandEvent event;
    OnDatasetChanged(event);
}

void VariablePickerMark::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

bool VariablePickerMark::GetChanged() const { return m_roles->GetChanged(); }

void VariablePickerMark::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePickerMark::OnAllVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePickerMark::OnTimeVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(TIME); }

void VariablePickerMark::OnGroupVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(GROUP); }

void VariablePickerMark::OnUpperButton(wxCommandEvent&) { m_roles->Press(TIME); }

void VariablePickerMark::OnLowerButton(wxCommandEvent&) { m_roles->Press(GROUP); }

void VariablePickerMark::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
