#include "pickers/DatasetPicker.h"

#include <wx/choice.h>

#include "common/ChoiceRow.h"

namespace
{
constexpr int ID_CHOICE = 6079;
}

DatasetPicker::DatasetPicker(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0),
      m_choice(zenqo::BuildChoiceRow(this, "Dataset:", ID_CHOICE))
{
    m_choice->Bind(wxEVT_CHOICE, &DatasetPicker::OnDatasetChanged, this, ID_CHOICE);
}

int DatasetPicker::GetSelection() const { return m_choice->GetSelection(); }

void DatasetPicker::SetSelection(int index) { zenqo::SelectEntry(m_choice, index); }

void DatasetPicker::SetCurrentSelection(int index) { m_currentSelection = index; }

void DatasetPicker::SetChoices(wxArrayString& names) { zenqo::FillChoice(m_choice, names); }

void DatasetPicker::SetChoice(wxString& name) { zenqo::SelectName(m_choice, name); }

void DatasetPicker::ClearChoices() { m_choice->Clear(); }

std::string DatasetPicker::GetSelectionString() const { return zenqo::SelectedKey(m_choice); }

void DatasetPicker::OnDatasetChanged(wxCommandEvent& event)
{
    zenqo::PassRealChange(event, m_choice, m_currentSelection);
}
