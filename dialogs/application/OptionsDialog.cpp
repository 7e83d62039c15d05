#include "dialogs/application/OptionsDialog.h"

#include <wx/checkbox.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "common/DialogFrame.h"
#include "common/FittedDialog.h"

OptionsDialog::OptionsDialog(wxWindow* parent, bool promptWorkspace, bool promptScripts, bool dirOnImport,
                             bool dirOnExport, bool dirOnLoadWorkspace, bool dirOnSaveWorkspace,
                             bool dirOnOpenScript, bool dirOnSaveScript)
    : wxDialog(parent, wxID_ANY, "Preferences", wxDefaultPosition, wxDefaultSize,
               zenqo::SETTINGS_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Working directory && prompts on exit");
    auto const addCheckBox = [box](wxSizer* to, wxString const& label, bool value, int sides)
    {
        auto* const check = new wxCheckBox(box->GetStaticBox(), wxID_ANY, label);
        check->SetValue(value);
        to->Add(check, 0, sides, 5);
        return check;
    };

    auto* const column = new wxBoxSizer(wxVERTICAL);
    box->Add(column, 0, wxEXPAND | wxALL, 5);
    column->Add(new wxStaticText(box->GetStaticBox(), wxID_ANY, "Change working directory when:"), 0,
                wxTOP, 5);
    auto* const grid = new wxGridSizer(3, 2, 0, 0);
    column->Add(grid, 0, wxEXPAND | wxALL, 5);
    m_dirOnImport = addCheckBox(grid, "importing data", dirOnImport, wxRIGHT);
    m_dirOnExport = addCheckBox(grid, "exporting data", dirOnExport, wxLEFT | wxRIGHT);
    m_dirOnLoadWorkspace = addCheckBox(grid, "loading a workspace", dirOnLoadWorkspace, wxRIGHT);
    m_dirOnSaveWorkspace = addCheckBox(grid, "saving a workspace", dirOnSaveWorkspace, wxLEFT | wxRIGHT);
    m_dirOnOpenScript = addCheckBox(grid, "opening a script", dirOnOpenScript, wxRIGHT);
    m_dirOnSaveScript = addCheckBox(grid, "saving a script", dirOnSaveScript, wxLEFT | wxRIGHT);
    m_line = new wxStaticLine(box->GetStaticBox());
    column->Add(m_line, 0, wxEXPAND | wxTOP | wxBOTTOM, 5);
    m_promptWorkspace = addCheckBox(column, "Prompt to save workspace on exit", promptWorkspace,
                                    wxLEFT | wxRIGHT);
    m_promptScripts = addCheckBox(column, "Prompt to save unsaved scripts on closing or exit",
                                  promptScripts, wxLEFT | wxRIGHT);

    zenqo::AddFocusedButtonRow(this, sizer, "&OK");
    zenqo::FitDialog(this, sizer);
}
