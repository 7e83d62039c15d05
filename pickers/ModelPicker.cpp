#include "pickers/ModelPicker.h"

#include <wx/choice.h>

#include "common/ChoiceRow.h"

namespace
{
constexpr int ID_CHOICE = 6024;
}

ModelPicker::ModelPicker(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_choice(zenqo::BuildChoiceRow(this, "Model:", ID_CHOICE))
{
    m_choice->Bind(wxEVT_CHOICE, &ModelPicker::OnModelChanged, this, ID_CHOICE);
}

int ModelPicker::GetSelection() const { return m_choice->GetSelection(); }

void ModelPicker::SetSelection(int index) { zenqo::SelectEntry(m_choice, index); }

void ModelPicker::SetCurrentSelection(int index) { m_currentSelection = index; }

void ModelPicker::SetChoices(wxArrayString& names) { zenqo::FillChoice(m_choice, names); }

void ModelPicker::ClearChoices() { m_choice->Clear(); }

std::string ModelPicker::GetSelectionString() const { return zenqo::SelectedKey(m_choice); }

void ModelPicker::OnModelChanged(wxCommandEvent& event)
{
    zenqo::PassRealChange(event, m_choice, m_currentSelection);
}
