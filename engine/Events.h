#pragma once

#include <wx/event.h>

#include "engine/Export.h"

/// Asks the host to echo a script text on the console and to run it.
///
/// The text is the event's string; no other field is used. Widgets send it synchronously from their
/// panel, and it travels up the chain of parents to the host's frame. The host defines the event type.
wxDECLARE_EXPORTED_EVENT(ZENQO_API, wxEVT_PRINT_AND_RUN, wxCommandEvent);
