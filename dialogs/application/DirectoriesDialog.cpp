#include "dialogs/application/DirectoriesDialog.h"

#include <wx/filepicker.h>
#include <wx/stattext.h>

#include "common/DialogFrame.h"
#include "common/FilePath.h"
#include "common/FittedDialog.h"
#include "common/Text.h"
#include "engine/Globals.h"
#include "engine/Sentinels.h"

namespace
{
std::string PathOrDefault(wxFilePickerCtrl const* picker)
{
    std::string const path = zenqo::ToNarrow(picker->GetPath());
    return path.empty() ? zenqo::DEFAULT_STRING : path;
}
} // namespace

DirectoriesDialog::DirectoriesDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Paths to Binaries of External Programs", wxDefaultPosition,
               wxSize(400, 300), zenqo::SETTINGS_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Paths to binaries of external programs");
    auto* const grid = new wxFlexGridSizer(7, 2, 0, 0);
    grid->AddGrowableCol(0);
    box->Add(grid, 0, wxEXPAND | wxALL, 5);
    auto const addRow = [=](wxString const& label, std::string const& path)
    {
        wxWindow* const inBox = box->GetStaticBox();
        grid->Add(new wxStaticText(inBox, wxID_ANY, label), 0, wxALIGN_BOTTOM | wxTOP | wxLEFT, 5);
        auto* const picker = new wxFilePickerCtrl(
            inBox, wxID_ANY, wxEmptyString, "Path to " + label, "All files |*.*;*", wxDefaultPosition,
            wxDefaultSize, wxFLP_USE_TEXTCTRL | wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_SMALL);
        zenqo::ShowPath(picker, path == zenqo::DEFAULT_STRING ? wxString() : zenqo::ToWide(path));
        // Room to read a path in: the column of the labels is the one that grows.
        picker->SetMinSize(wxSize(280, -1));
        grid->Add(picker, 0, wxALL, 5);
        return picker;
    };

    namespace engine = Zenqo_SYSTEM_NAMESPACE;
    m_jags = addRow("JAGS binary:", engine::GLOBAL_DirectoryJAGS);
    m_bugs = addRow("OpenBUGS binary:", engine::GLOBAL_DirectoryBUGS);
    m_stan = addRow("Stan compiler:", engine::GLOBAL_DirectorySTAN);
    m_matlab = addRow(L"MATLAB® binary:", engine::GLOBAL_DirectoryMATLAB);
    m_octave = addRow("GNU Octave binary:", engine::GLOBAL_DirectoryOCTAVE);
    m_r = addRow("R-project binary:", engine::GLOBAL_DirectoryR);
    m_stata = addRow(L"STATA® binary:", engine::GLOBAL_DirectorySTATA);

    zenqo::AddFocusedButtonRow(this, sizer, "&OK");
    zenqo::FitDialog(this, sizer);
}

std::string DirectoriesDialog::GetJAGSDir() const { return PathOrDefault(m_jags); }

std::string DirectoriesDialog::GetBUGSDir() const { return PathOrDefault(m_bugs); }

std::string DirectoriesDialog::GetSTANDir() const { return PathOrDefault(m_stan); }

std::string DirectoriesDialog::GetMATLABDir() const { return PathOrDefault(m_matlab); }

std::string DirectoriesDialog::GetOCTAVEDir() const { return PathOrDefault(m_octave); }

std::string DirectoriesDialog::GetRDir() const { return PathOrDefault(m_r); }

std::string DirectoriesDialog::GetSTATADir() const { return PathOrDefault(m_stata); }
