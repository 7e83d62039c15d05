#include "pickers/MatrixPicker.h"

#include <wx/choice.h>

#include "common/ChoiceRow.h"

namespace
{
constexpr int ID_CHOICE = 6081;
}

MatrixPicker::MatrixPicker(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_choice(zenqo::BuildChoiceRow(this, "Matrix:", ID_CHOICE))
{
    m_choice->Bind(wxEVT_CHOICE, &MatrixPicker::OnMatrixChanged, this, ID_CHOICE);
}

int MatrixPicker::GetSelection() const { return m_choice->GetSelection(); }

void MatrixPicker::SetSelection(int index) { zenqo::SelectEntry(m_choice, index); }

void MatrixPicker::SetCurrentSelection(int index) { m_currentSelection = index; }

void MatrixPicker::SetChoices(wxArrayString& names) { zenqo::FillChoice(m_choice, names); }

void MatrixPicker::SetChoice(wxString& name) { zenqo::SelectName(m_choice, name); }

void MatrixPicker::ClearChoices() { m_choice->Clear(); }

std::string MatrixPicker::GetSelectionString() const { return zenqo::SelectedKey(m_choice); }

void MatrixPicker::OnMatrixChanged(wxCommandEvent& event)
{
    zenqo::PassRealChange(event, m_choice, m_currentSelection);
}
