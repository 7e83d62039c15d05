#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include "engine/Globals.h"

/// A root of an installation with one icon of the name `file` and the bytes `content`, while it lives.
class InstalledIcon
{
public:
    InstalledIcon(std::string const& file, std::string const& content)
        : m_before(Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM), m_root(wxFileName::CreateTempFileName("zenqo-icon"))
    {
        wxRemoveFile(m_root);
        wxString const folder = m_root + "/System Files/Icons";
        wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream(folder.ToStdString() + "/" + file, std::ios::binary) << content;
        Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = m_root.ToStdString();
    }
    ~InstalledIcon()
    {
        Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = m_before;
        wxFileName::Rmdir(m_root, wxPATH_RMDIR_RECURSIVE);
    }
    InstalledIcon(InstalledIcon const&) = delete;
    InstalledIcon& operator=(InstalledIcon const&) = delete;

private:
    std::string m_before;
    wxString m_root;
};

/// The bytes of an icon of the source tree; empty if there is none.
inline std::string IconInSource(std::string const& file)
{
    wxString source;
    wxGetEnv("ZENQO_SOURCE_DIR", &source);
    std::ifstream stream(source.ToStdString() + "/workbench/icons/" + file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
