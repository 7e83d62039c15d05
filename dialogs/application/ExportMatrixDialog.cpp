#include "dialogs/application/ExportMatrixDialog.h"

#include <wx/filepicker.h>
#include <wx/radiobox.h>

#include "common/Delimiter.h"
#include "common/DialogFrame.h"
#include "common/FilePath.h"
#include "common/FittedDialog.h"
#include "common/SaveFileBox.h"
#include "common/Text.h"

ExportMatrixDialog::ExportMatrixDialog(wxWindow* parent, wxString title, bool, std::string const& name)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxDefaultSize, zenqo::EXPORT_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_filePicker = zenqo::AddSaveFileBox(this, sizer, zenqo::ProposedFile(zenqo::ToWide(name)));
    m_delimiter = zenqo::AddDelimiterBox(this, sizer);
    zenqo::AddExportButtons(this, sizer);
    zenqo::LayOutDialog(this, sizer);
}

std::string ExportMatrixDialog::GetFileName() const { return zenqo::ToNarrow(m_filePicker->GetPath()); }

wxString ExportMatrixDialog::GetPath() const { return zenqo::FolderOf(m_filePicker); }

char ExportMatrixDialog::GetDelimiter() const { return zenqo::SelectedDelimiter(m_delimiter); }
