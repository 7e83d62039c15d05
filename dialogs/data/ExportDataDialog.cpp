#include "dialogs/data/ExportDataDialog.h"

#include <wx/filepicker.h>
#include <wx/radiobox.h>

#include "common/Delimiter.h"
#include "common/DialogFrame.h"
#include "common/FilePath.h"
#include "common/MapKeys.h"
#include "common/SaveFileBox.h"
#include "common/Text.h"
#include "pickers/DatasetPicker.h"

ExportDataDialog::ExportDataDialog(wxWindow* parent, DatasetMap* datasets, int selection, bool)
    : wxDialog(parent, wxID_ANY, "Export Data"), m_names(zenqo::KeysOf(*datasets))
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Dataset to export");
    m_dataset = new DatasetPicker(box->GetStaticBox());
    box->Add(m_dataset, 2, wxEXPAND, 5);
    m_file = zenqo::AddSaveFileBox(this, sizer, wxEmptyString);
    m_delimiter = zenqo::AddDelimiterBox(this, sizer);
    zenqo::AddExportButtons(this, sizer);

    m_dataset->SetChoices(m_names);
    auto const count = static_cast<int>(m_names.size());
    Select(selection < count ? selection : 0);
    ProposeFile(zenqo::ToWide(GetDatasetName()));
    zenqo::LayOutDialog(this, sizer);
}

std::string ExportDataDialog::GetDatasetName() const { return m_dataset->GetSelectionString(); }

wxString ExportDataDialog::GetPath() const { return zenqo::FolderOf(m_file); }

std::string ExportDataDialog::GetFileName() const { return zenqo::ToNarrow(m_file->GetPath()); }

char ExportDataDialog::GetDelimiter() const { return zenqo::SelectedDelimiter(m_delimiter); }

void ExportDataDialog::SetDataset(int index)
{
    if (index < 0 || index >= static_cast<int>(m_names.size()))
        return;
    Select(index);
    ProposeFile(m_names[static_cast<std::size_t>(index)]);
}

void ExportDataDialog::Select(int index)
{
    m_dataset->SetSelection(index);
    m_dataset->SetCurrentSelection(index);
}

void ExportDataDialog::ProposeFile(wxString const& name)
{
    m_file->SetPath(zenqo::ProposedFile(name));
}
