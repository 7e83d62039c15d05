#include "dialogs/data/MarkDatasetDialog.h"

#include "common/DialogFrame.h"
#include "modelspec/VariablePickerMark.h"
#include "pickers/NotePanel.h"

namespace
{
constexpr char NOTE[]
    = "Leave the \"Group Id Variable\" field empty to mark the dataset as time-series. Leave both the "
      "\"Time Variable\" and \"Group Id Variable\" fields empty to remove any structure from the dataset "
      "(mark the dataset as cross-sectional).";
}

MarkDatasetDialog::MarkDatasetDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Set Dataset Structure")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_structure = zenqo::AddBoxedPicker<VariablePickerMark>(
        this, sizer, "Select Dataset && Structure Variables", datasets);
    auto* const note = new NotePanel(this, NOTE, wxDefaultSize, false);
    sizer->Add(note, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 10);
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutAroundNote(this, sizer, note);
    Bind(wxEVT_BUTTON, &MarkDatasetDialog::OnButtonOk, this, wxID_OK);
}

std::string MarkDatasetDialog::GetDatasetName() const { return m_structure->GetDatasetName(); }

wxString MarkDatasetDialog::GetTimeVar() const { return m_structure->GetTimeVar(); }

wxString MarkDatasetDialog::GetGroupVar() const { return m_structure->GetGroupVar(); }

int MarkDatasetDialog::GetTimeFormat() const { return m_structure->GetTSFormat(); }

void MarkDatasetDialog::SetDataset(int index) { m_structure->SetDataset(index); }

void MarkDatasetDialog::OnButtonOk(wxCommandEvent& event) { event.Skip(); }
