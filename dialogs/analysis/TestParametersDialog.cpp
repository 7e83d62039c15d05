#include "dialogs/analysis/TestParametersDialog.h"

#include <iterator>

#include <wx/choice.h>
#include <wx/textctrl.h>

#include "common/DialogFrame.h"
#include "common/ExpressionBox.h"
#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "common/SizerItem.h"
#include "common/TransferButton.h"
#include "common/TypewriterFont.h"
#include "common/VariableRoles.h"
#include "modelspec/Calculator.h"
#include "pickers/ModelPicker.h"

namespace
{
wxString const OPERATORS[] = {">", ">=", "==", "<=", "<", "~="};

constexpr char NO_CONDITIONS[]
    = "The list of conditions to be tested is empty.\nUse the \"Add to List\" button to add conditions "
      "to this list.\n";
} // namespace

TestParametersDialog::TestParametersDialog(wxWindow* parent, ModelMap* models)
    : wxDialog(parent, wxID_ANY, "Test Parameter Restrictions"), m_models(models)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Select Model && Construct Conditions");
    auto* const inBox = box->GetStaticBox();
    m_model = new ModelPicker(inBox);
    auto const draws = zenqo::BuildNameColumn(inBox, "Draws in model");
    m_draws = draws.list;
    // The fourth row stays empty.
    auto* const rows = zenqo::LayOutExpressionBox(box, 4, m_model, draws.sizer, BuildFields(inBox));
    m_add = AddListButton(rows, inBox, "Add to list");
    BuildConditions(zenqo::AddLabelledBox(this, sizer, "List of Conditions to Test"));

    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::OfferKeys(m_model, *models);
    ShowDraws();
    zenqo::LayOutDialog(this, sizer);

    using This = TestParametersDialog;
    Bind(wxEVT_BUTTON, &This::OnButtonOk, this, wxID_OK);
    m_model->Bind(wxEVT_CHOICE, &This::OnModelChanged, this);
    m_upperMove->Bind(wxEVT_BUTTON, &This::OnUpperButton, this);
    m_lowerMove->Bind(wxEVT_BUTTON, &This::OnLowerButton, this);
    m_lhs->Bind(wxEVT_SET_FOCUS, &This::OnLhsCtrlFocus, this);
    m_rhs->Bind(wxEVT_SET_FOCUS, &This::OnRhsCtrlFocus, this);
    m_lhs->Bind(wxEVT_TEXT, &This::OnLhsCtrlTextChanged, this);
    m_rhs->Bind(wxEVT_TEXT, &This::OnRhsCtrlTextChanged, this);
    m_add->Bind(wxEVT_BUTTON, &This::OnAddButton, this);
    m_remove->Bind(wxEVT_BUTTON, &This::OnRemoveButton, this);
    m_conditions->Bind(wxEVT_LISTBOX, &This::OnConditionsListSelected, this);
}

wxFlexGridSizer* TestParametersDialog::BuildFields(wxWindow* parent)
{
    // All are made before they are laid out: the keyboard goes from control to control in this order.
    int const height = zenqo::OneRow(m_draws);
    m_upperMove = zenqo::MakeTransferButton(parent, m_draws);
    m_lhs = new wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxSize(120, height));
    m_operator = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxSize(55, height),
                              static_cast<int>(std::size(OPERATORS)), OPERATORS);
    m_operator->SetFont(zenqo::TypewriterFont(9));
    m_operator->SetSelection(0);
    m_lowerMove = zenqo::MakeTransferButton(parent, m_draws);
    m_rhs = new wxTextCtrl(parent, wxID_ANY);
    m_keypad = new Calculator(parent, m_lhs);

    auto* const fields = new wxFlexGridSizer(6, 2, 0, 0);
    fields->AddGrowableRow(2, 100);
    zenqo::AddExpressionField(fields, "Left-hand side expression", m_upperMove, m_lhs, 1);
    zenqo::AddGap(fields);
    fields->Add(m_operator, 0, wxALIGN_CENTRE | wxALL, 5);
    zenqo::AddExpressionField(fields, "Right-hand side expression", m_lowerMove, m_rhs, 0);
    zenqo::AddGap(fields);
    fields->Add(m_keypad, 1, wxEXPAND | wxALL, 5);
    return fields;
}

wxButton* TestParametersDialog::AddListButton(wxSizer* sizer, wxWindow* parent, wxString const& label)
{
    wxSize const size(110, zenqo::OneRow(m_draws));
    auto* const button = new wxButton(parent, wxID_ANY, label, wxDefaultPosition, size);
    button->SetFont(zenqo::TypewriterFont(10));
    button->Enable(false);
    zenqo::AddWithFlags(sizer, button, 0, wxRIGHT | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM, 5);
    return button;
}

void TestParametersDialog::BuildConditions(wxStaticBoxSizer* box)
{
    m_conditions = zenqo::MakeList(box->GetStaticBox(), wxDefaultSize, zenqo::LIST_OF_MANY);
    box->Add(m_conditions, 1, wxEXPAND | wxALL, 5);
    m_remove = AddListButton(box, box->GetStaticBox(), "Remove");
}

std::string TestParametersDialog::GetModelName() const { return m_model->GetSelectionString(); }

wxArrayString TestParametersDialog::GetConditions() const { return zenqo::ItemsOrEmpty(m_conditions); }

void TestParametersDialog::ShowDraws()
{
    m_draws->Clear();
    zenqo::AppendItems(m_draws, zenqo::DrawNames(*m_models, GetModelName()));
}

void TestParametersDialog::ShowWhetherComplete()
{
    m_add->Enable(!m_lhs->IsEmpty() && !m_rhs->IsEmpty());
}

void TestParametersDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(m_conditions->IsEmpty() ? NO_CONDITIONS : "", this, event);
}

void TestParametersDialog::OnModelChanged(wxCommandEvent&) { ShowDraws(); }

void TestParametersDialog::OnUpperButton(wxCommandEvent&)
{
    zenqo::TypeSelectedName(m_lhs, GetModelName(), m_draws);
}

void TestParametersDialog::OnLowerButton(wxCommandEvent&)
{
    zenqo::TypeSelectedName(m_rhs, GetModelName(), m_draws);
}

void TestParametersDialog::OnLhsCtrlFocus(wxFocusEvent&) { m_keypad->SetTarget(m_lhs); }

void TestParametersDialog::OnRhsCtrlFocus(wxFocusEvent&) { m_keypad->SetTarget(m_rhs); }

void TestParametersDialog::OnLhsCtrlTextChanged(wxCommandEvent&) { ShowWhetherComplete(); }

void TestParametersDialog::OnRhsCtrlTextChanged(wxCommandEvent&) { ShowWhetherComplete(); }

void TestParametersDialog::OnAddButton(wxCommandEvent&)
{
    wxString condition = m_lhs->GetValue();
    if (m_operator->GetSelection() != wxNOT_FOUND)
        condition += " " + m_operator->GetStringSelection() + " ";
    condition += m_rhs->GetValue();
    m_conditions->SetSelection(m_conditions->Append(condition));
    for (auto* const field : {m_lhs, m_rhs})
        field->SetValue(wxEmptyString);
}

void TestParametersDialog::OnRemoveButton(wxCommandEvent&)
{
    zenqo::DeleteItems(m_conditions, zenqo::SelectionsOf(m_conditions));
    if (zenqo::SelectionsOf(m_conditions).empty())
        m_remove->Enable(false);
}

void TestParametersDialog::OnConditionsListSelected(wxCommandEvent&)
{
    if (!zenqo::SelectionsOf(m_conditions).empty())
        m_remove->Enable(true);
}
