#include "workbench/SampleFolder.h"

#include <stdexcept>

#include <wx/utils.h>

namespace fs = std::filesystem;

SampleFolder::SampleFolder() : m_old(fs::current_path())
{
    wxString root;
    if (!wxGetEnv("ZENQO_SOURCE_DIR", &root))
        throw std::runtime_error("ZENQO_SOURCE_DIR does not tell where the sources are");
    fs::copy(root.ToStdString() + "/workbench/samples", m_scratch.Folder());
    fs::current_path(m_scratch.Folder());
}

SampleFolder::~SampleFolder() { fs::current_path(m_old); }
