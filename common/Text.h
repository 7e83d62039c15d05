#pragma once

#include <string>
#include <vector>

#include <wx/arrstr.h>
#include <wx/string.h>

namespace zenqo
{
/// Narrow text of the engine as wide text of the toolkit, through `wxConvLibc`.
/// A text that does not convert gives an empty string.
wxString ToWide(std::string const& text);

/// The same of each text, in their order.
wxArrayString ToWide(std::vector<std::string> const& texts);

/// Wide text of the toolkit as narrow text of the engine, through `wxConvLibc`.
/// A text that does not convert gives an empty string.
std::string ToNarrow(wxString const& text);
} // namespace zenqo
