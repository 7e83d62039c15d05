#pragma once

#include <optional>

#include <wx/arrstr.h>
#include <wx/string.h>

class wxDropFilesEvent;
class wxWindow;

namespace zenqo
{
/// What a drop target takes, and its words for what it does not take.
struct DropRule
{
    wxArrayString extensions; ///< Compared case-sensitively.
    wxString folderText;
    wxString manyText;
    wxString extensionText;
};

/// The path of the one dropped file if `rule` takes it.
///
/// Otherwise one warning with `parent` is shown and nothing returned. The order is fixed: a folder
/// that comes first wins over the count of files, and that over the extension. An empty drop is
/// ignored silently.
std::optional<wxString> TakeDroppedFile(wxDropFilesEvent const& event, DropRule const& rule,
                                        wxWindow* parent);
} // namespace zenqo
