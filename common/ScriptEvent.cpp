#include "common/ScriptEvent.h"

#include <wx/window.h>

#include "engine/Events.h"

namespace zenqo
{
void SendScript(wxWindow* sender, wxString const& script)
{
    wxCommandEvent event(wxEVT_PRINT_AND_RUN, 0);
    event.SetString(script);
    sender->ProcessWindowEvent(event);
}
} // namespace zenqo
