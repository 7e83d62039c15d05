#pragma once

#include <string>

#include <wx/string.h>

namespace zenqo
{
/// The text that a default narrow stream writes of `value`: six significant digits in the general
/// notation, "nan" or "-nan", "inf" or "-inf". The global locale has no say in it.
std::string FormatNumber(double value);

/// The same as text of the toolkit.
wxString FormatNumberWide(double value);
} // namespace zenqo
