#pragma once

class wxString;
class wxWindow;

namespace zenqo
{
/// Asks the host to echo and run `script`: a `wxEVT_PRINT_AND_RUN` with id 0 goes synchronously
/// from `sender` up its chain of parents. Returns when the host has run the command.
void SendScript(wxWindow* sender, wxString const& script);
} // namespace zenqo
