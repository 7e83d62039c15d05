#include "pickers/VariablePickerSingle.h"

#include <wx/sizer.h>

#include "common/ListPair.h"
#include "common/VariableRoles.h"
#include "pickers/DatasetPicker.h"

VariablePickerSingle::VariablePickerSingle(wxWindow* parent, DatasetMap* datasets, int const& listHeight,
                                           wxString const& rightCaption)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_datasetPicker(new DatasetPicker(this))
{
    auto const lists = zenqo::BuildListPair(
        this, {"Variables in dataset", wxSize(zenqo::LIST_WIDTH, -1)},
        {rightCaption, wxSize(zenqo::LIST_WIDTH, listHeight), 2, wxNOT_FOUND});
    auto* const sizer = new wxFlexGridSizer(1, 5, 0, 0);
    sizer->AddGrowableCol(1, 20);
    sizer->AddGrowableCol(3, 20);
    sizer->Add(lists.leftColumn, 1, wxEXPAND, 5);
    zenqo::AddGap(sizer);
    zenqo::AddTransferButton(sizer, lists.right.button);
    zenqo::AddGap(sizer);
    sizer->Add(lists.rightColumn, 1, wxEXPAND, 5);
    zenqo::LayOutUnderPicker(this, m_datasetPicker, sizer, 0, wxEXPAND | wxALL);
    m_roles = zenqo::OfferVariables(m_datasetPicker, datasets, lists.left, {lists.right});

    lists.left->Bind(wxEVT_LISTBOX, &VariablePickerSingle::OnLhsVarSelected, this);
    zenqo::BindRole(lists.right, this, &VariablePickerSingle::OnRhsVarSelected,
                    &VariablePickerSingle::OnMoveButton);
    m_datasetPicker->Bind(wxEVT_CHOICE, &VariablePickerSingle::OnDatasetChanged, this);
}

VariablePickerSingle::~VariablePickerSingle() = default;

std::string VariablePickerSingle::GetDatasetName() const { return m_datasetPicker->GetSelectionString(); }

wxArrayString VariablePickerSingle::GetRhsVars() const { return m_roles->Items(0); }

void VariablePickerSingle::RedrawLhsVarList(wxArrayString& names) { m_roles->Redraw(names); }

bool VariablePickerSingle::GetChanged() const { return m_roles->GetChanged(); }

void VariablePickerSingle::SetChanged(bool changed) { m_roles->SetChanged(changed); }

void VariablePickerSingle::SetSelection(int index)
{
    zenqo::SelectInPicker(m_datasetPicker, index);
    wxCommandEvent event;
    OnDatasetChanged(event);
}

void VariablePickerSingle::SetVariables(int index, wxArrayString& names)
{
    SetSelection(index);
    bool const none = names.size() == 1 && names[0].empty();
    if (!none)
        m_roles->Restore(0, names);
}

void VariablePickerSingle::OnLhsVarSelected(wxCommandEvent&) { m_roles->OnLeftSelected(); }

void VariablePickerSingle::OnRhsVarSelected(wxCommandEvent&) { m_roles->OnRoleSelected(0); }

void VariablePickerSingle::OnMoveButton(wxCommandEvent&) { m_roles->Press(0); }

void VariablePickerSingle::OnDatasetChanged(wxCommandEvent&) { m_roles->Restart(); }
