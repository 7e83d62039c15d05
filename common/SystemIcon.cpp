#include "common/SystemIcon.h"

#include <wx/image.h>
#include <wx/imagpng.h>
#include <wx/log.h>
#include <wx/wfstream.h>

#include "common/Text.h"
#include "engine/Globals.h"

namespace zenqo
{
wxBitmap SystemIcon(char const* file)
{
    wxString const path = ToWide(Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM + "/System Files/Icons/" + file);
    // Whatever is wrong with the file is an entry in the log, which a host shows as a box.
    wxLogNull const noLog;
    wxFFileInputStream stream(path);
    wxImage picture;
    if (!stream.IsOk())
        return wxNullBitmap;
    if (!wxPNGHandler().LoadFile(&picture, stream, false))
        return wxNullBitmap;
    return wxBitmap(picture);
}
} // namespace zenqo
