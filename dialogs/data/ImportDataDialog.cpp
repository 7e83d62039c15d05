#include "dialogs/data/ImportDataDialog.h"

#include <wx/button.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "common/Delimiter.h"
#include "common/DialogFrame.h"
#include "common/SizerItem.h"
#include "common/Text.h"

ImportDataDialog::ImportDataDialog(wxWindow* parent, wxString& name)
    : wxDialog(parent, wxID_ANY, "Import Data")
{
    auto* const label = new wxStaticText(this, wxID_ANY, "Dataset name:", wxDefaultPosition,
                                         wxSize(100, 23));
    label->Wrap(-1);
    m_name = new wxTextCtrl(this, wxID_ANY, name, wxDefaultPosition, wxSize(160, 23));
    m_name->SetFocus();

    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    zenqo::AddWithFlags(row, label, 1, wxEXPAND | wxALIGN_BOTTOM, 0);
    row->Add(m_name, 2, wxEXPAND, 0);
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(row, 0, wxEXPAND);

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(rows, 0, wxEXPAND | wxALL, 5);
    m_delimiter = zenqo::AddDelimiterBox(this, sizer);
    auto* const import = zenqo::AddButtonRow(this, sizer, "&Import", 1,
                                             wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM);
    // Enter in the name field accepts.
    import->SetDefault();
    zenqo::LayOutDialog(this, sizer);

    import->Bind(wxEVT_BUTTON, &ImportDataDialog::OnButtonImport, this, wxID_OK);
}

wxString ImportDataDialog::GetDatasetName() const { return m_name->GetLineText(0); }

char ImportDataDialog::GetDelimiter() const { return zenqo::SelectedDelimiter(m_delimiter); }

bool ImportDataDialog::CheckIDString(wxString name) const
{
    return zenqo::ToNarrow(name).find_first_of("\t\n\r ,.") == std::string::npos;
}

void ImportDataDialog::OnButtonImport(wxCommandEvent& event)
{
    wxString complaint;
    if (!CheckIDString(GetDatasetName()))
        complaint = "A dataset name must start with a letter\nand cannot contain spaces or any "
                    "special\ncharacters (dots, commas, quotes, etc.).";
    zenqo::AcceptUnless(complaint, this, event);
}
