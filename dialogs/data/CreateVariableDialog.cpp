#include "dialogs/data/CreateVariableDialog.h"

#include <wx/textctrl.h>

#include "common/DialogFrame.h"
#include "common/ExpressionBox.h"
#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "common/Text.h"
#include "common/TransferButton.h"
#include "common/VariableRoles.h"
#include "modelspec/Calculator.h"
#include "pickers/DatasetPicker.h"

CreateVariableDialog::CreateVariableDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Create Variable"), m_datasets(datasets)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Select Dataset && Construct New Variable");
    auto* const inBox = box->GetStaticBox();
    m_dataset = new DatasetPicker(inBox);
    auto const variables = zenqo::BuildNameColumn(inBox, "Variables in dataset");
    m_variables = variables.list;
    // The third row stays empty.
    zenqo::LayOutExpressionBox(box, 3, m_dataset, variables.sizer, BuildFields(inBox));

    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::OfferKeys(m_dataset, *datasets);
    ShowVariables();
    zenqo::LayOutDialog(this, sizer);

    Bind(wxEVT_BUTTON, &CreateVariableDialog::OnButtonOk, this, wxID_OK);
    m_dataset->Bind(wxEVT_CHOICE, &CreateVariableDialog::OnDatasetChanged, this);
    m_move->Bind(wxEVT_BUTTON, &CreateVariableDialog::OnMoveButton, this);
}

wxFlexGridSizer* CreateVariableDialog::BuildFields(wxWindow* parent)
{
    // All are made before they are laid out: the keyboard goes from control to control in this order.
    wxSize const fieldSize(120, zenqo::OneRow(m_variables));
    m_move = zenqo::MakeTransferButton(parent, m_variables);
    m_name = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, fieldSize);
    m_expression = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, fieldSize);
    m_keypad = new Calculator(parent, m_expression);

    auto* const fields = new wxFlexGridSizer(5, 2, 0, 0);
    zenqo::AddExpressionField(fields, "New variable name", nullptr, m_name, 1);
    zenqo::AddExpressionField(fields, "Expression for new variable", m_move, m_expression, 0);
    zenqo::AddGap(fields);
    fields->Add(m_keypad, 1, wxEXPAND | wxALL, 5);
    return fields;
}

std::string CreateVariableDialog::GetDatasetName() const { return m_dataset->GetSelectionString(); }

wxString CreateVariableDialog::GetVarName() const { return m_name->GetValue(); }

wxString CreateVariableDialog::GetExpression() const { return m_expression->GetValue(); }

void CreateVariableDialog::SetDataset(int index)
{
    zenqo::SelectInPicker(m_dataset, index);
    wxCommandEvent event;
    OnDatasetChanged(event);
}

void CreateVariableDialog::ShowVariables()
{
    auto names = zenqo::VariableNames(*m_datasets, GetDatasetName());
    if (!names.empty())
        names.RemoveAt(0);
    m_variables->Clear();
    zenqo::AppendItems(m_variables, names);
}

wxString CreateVariableDialog::Complaint() const
{
    auto const complaint = zenqo::ComplainOfName(
        GetVarName(), "No name has been provided for the new variable.",
        "The new variable name must not contain spaces\nor special characters and it must not "
        "begin\nwith a number.");
    if (complaint.empty() && GetExpression().empty())
        return "No expression has been provided for the new variable.";
    return complaint;
}

void CreateVariableDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(Complaint(), this, event);
}

void CreateVariableDialog::OnDatasetChanged(wxCommandEvent&) { ShowVariables(); }

void CreateVariableDialog::OnMoveButton(wxCommandEvent&)
{
    zenqo::TypeSelectedName(m_expression, GetDatasetName(), m_variables);
}
