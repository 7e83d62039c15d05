#include "workbench/app/Preferences.h"

#include <utility>

#include <wx/checkbox.h>
#include <wx/filefn.h>

#include "dialogs/application/DirectoriesDialog.h"
#include "dialogs/application/OptionsDialog.h"
#include "dialogs/application/StartupHelpDialog.h"
#include "engine/Globals.h"
#include "workbench/engine/Error.h"

namespace workbench
{
Preferences::Preferences(std::string const& file, std::function<void(std::string const&)> warn)
    : m_file(file), m_warn(std::move(warn))
{
    if (m_file.empty())
        return;
    std::string warning;
    m_settings = LoadSettings(m_file, warning);
    if (!warning.empty())
        m_warn(warning);
    ApplyPrograms(m_settings);
}

void Preferences::Edit(wxWindow* parent)
{
    OptionsDialog dialog(parent, m_settings.promptWorkspace, m_settings.promptScripts, m_settings.dirOnImport,
                         m_settings.dirOnExport, m_settings.dirOnLoadWorkspace, m_settings.dirOnSaveWorkspace,
                         m_settings.dirOnOpenScript, m_settings.dirOnSaveScript);
    if (dialog.ShowModal() != wxID_OK)
        return;
    m_settings.promptWorkspace = dialog.m_promptWorkspace->GetValue();
    m_settings.promptScripts = dialog.m_promptScripts->GetValue();
    m_settings.dirOnImport = dialog.m_dirOnImport->GetValue();
    m_settings.dirOnExport = dialog.m_dirOnExport->GetValue();
    m_settings.dirOnLoadWorkspace = dialog.m_dirOnLoadWorkspace->GetValue();
    m_settings.dirOnSaveWorkspace = dialog.m_dirOnSaveWorkspace->GetValue();
    m_settings.dirOnOpenScript = dialog.m_dirOnOpenScript->GetValue();
    m_settings.dirOnSaveScript = dialog.m_dirOnSaveScript->GetValue();
    Keep();
}

void Preferences::EditPaths(wxWindow* parent)
{
    namespace System = Zenqo_SYSTEM_NAMESPACE;
    DirectoriesDialog dialog(parent);
    if (dialog.ShowModal() != wxID_OK)
        return;
    System::GLOBAL_DirectoryJAGS = dialog.GetJAGSDir();
    System::GLOBAL_DirectoryBUGS = dialog.GetBUGSDir();
    System::GLOBAL_DirectorySTAN = dialog.GetSTANDir();
    System::GLOBAL_DirectoryMATLAB = dialog.GetMATLABDir();
    System::GLOBAL_DirectoryOCTAVE = dialog.GetOCTAVEDir();
    System::GLOBAL_DirectoryR = dialog.GetRDir();
    System::GLOBAL_DirectorySTATA = dialog.GetSTATADir();
    TakePrograms(m_settings);
    Keep();
}

void Preferences::ShowQuickStart(wxWindow* parent)
{
    StartupHelpDialog dialog(parent);
    dialog.ShowModal();
    // Whoever opens the page from the menu finds the box empty, which takes nothing back.
    if (!dialog.GetCheckBoxState())
        return;
    m_settings.showQuickStart = false;
    Keep();
}

void Preferences::FollowTo(wxString const& path, bool Settings::*setting) const
{
    auto const folder = wxPathOnly(path);
    if (m_settings.*setting && !folder.empty())
        wxSetWorkingDirectory(folder);
}

void Preferences::Keep() const
{
    if (m_file.empty())
        return;
    try
    {
        SaveSettings(m_settings, m_file);
    }
    catch (Error const& error)
    {
        m_warn(error.what());
    }
}
} // namespace workbench
