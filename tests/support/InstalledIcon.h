#pragma once

#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include <catch2/catch.hpp>

#include <wx/bitmap.h>
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

/// Checks the picture that a window takes from the icon `file`: it is the source tree's, of `size`, and
/// none at all if the file is damaged or missing. `shown` makes the window and gives its picture.
inline void CheckIcon(std::string const& file, wxSize size, std::function<wxBitmap()> const& shown)
{
    auto const sizeWith = [&](std::string const& content)
    {
        InstalledIcon const installed(file, content);
        wxBitmap const picture = shown();
        return picture.IsOk() ? picture.GetSize() : wxSize(0, 0);
    };
    std::string const icon = IconInSource(file);
    REQUIRE(icon.size() > 60);
    CHECK(sizeWith(icon) == size);
    CHECK(sizeWith("") == wxSize(0, 0));
    CHECK(sizeWith("no picture at all") == wxSize(0, 0));
    CHECK(sizeWith(icon.substr(0, 60)) == wxSize(0, 0));
    InstalledIcon const other("another.png", icon);
    CHECK(!shown().IsOk());
}
