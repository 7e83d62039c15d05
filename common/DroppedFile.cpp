#include "common/DroppedFile.h"

#include <wx/event.h>
#include <wx/filefn.h>
#include <wx/filename.h>

#include "common/Warning.h"

namespace zenqo
{
std::optional<wxString> TakeDroppedFile(wxDropFilesEvent const& event, DropRule const& rule,
                                        wxWindow* parent)
{
    if (event.GetNumberOfFiles() < 1)
        return std::nullopt;

    wxString const path = event.GetFiles()[0];
    if (wxDirExists(path))
        ShowWarning(parent, rule.folderText);
    else if (event.GetNumberOfFiles() > 1)
        ShowWarning(parent, rule.manyText);
    else if (rule.extensions.Index(wxFileName(path).GetExt(), true) == wxNOT_FOUND)
        ShowWarning(parent, rule.extensionText);
    else
        return path;
    return std::nullopt;
}
} // namespace zenqo
