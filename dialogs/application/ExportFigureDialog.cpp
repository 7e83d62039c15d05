#include "dialogs/application/ExportFigureDialog.h"

#include <wx/filepicker.h>
#include <wx/spinctrl.h>

#include "common/DialogFrame.h"
#include "common/FittedDialog.h"
#include "common/SaveFileBox.h"
#include "common/Text.h"
#include "common/TextLabel.h"

namespace
{
wxSpinCtrl* AddCount(wxStaticBoxSizer* box, wxString const& label, int initial)
{
    auto* const row = new wxFlexGridSizer(1, 2, 0, 0);
    row->AddGrowableCol(0, 1);
    box->Add(row, 0, wxEXPAND | wxALL, 5);
    row->Add(zenqo::MakeTextLabel(box->GetStaticBox(), label, wxDefaultSize), 0, wxALIGN_BOTTOM, 5);
    auto* const count = new wxSpinCtrl(box->GetStaticBox(), wxID_ANY, wxEmptyString, wxDefaultPosition,
                                       wxDefaultSize, wxSP_ARROW_KEYS, 1, 10000, initial);
    row->Add(count, 0, 0, 5);
    return count;
}
} // namespace

ExportFigureDialog::ExportFigureDialog(wxWindow* parent, bool, std::string const& path)
    : wxDialog(parent, wxID_ANY, "Export Figure", wxDefaultPosition, wxDefaultSize,
               zenqo::EXPORT_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_filePicker = zenqo::AddSaveFileBox(this, sizer, zenqo::ToWide(path));
    auto* const sides = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(sides, 0, wxEXPAND, 5);
    auto* const dimensions = zenqo::AddLabelledBox(this, sides, "Plot dimensions (pixels)");
    m_width = AddCount(dimensions, "Width:", 400);
    m_height = AddCount(dimensions, "Height:", 250);
    auto* const resolution = zenqo::AddLabelledBox(this, sides, "Resolution");
    m_dpiX = AddCount(resolution, "x dpi:", 90);
    m_dpiY = AddCount(resolution, "y dpi:", 90);
    m_dpiX->Enable(false);
    m_dpiY->Enable(false);
    zenqo::AddExportButtons(this, sizer);
    zenqo::LayOutDialog(this, sizer);
}

wxString ExportFigureDialog::GetFileName() const { return m_filePicker->GetPath(); }

int ExportFigureDialog::GetSize1() const { return m_width->GetValue(); }

int ExportFigureDialog::GetSize2() const { return m_height->GetValue(); }

int ExportFigureDialog::GetDPI1() const { return m_dpiX->GetValue(); }

int ExportFigureDialog::GetDPI2() const { return m_dpiY->GetValue(); }
