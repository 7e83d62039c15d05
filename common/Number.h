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

/// Writes number after number into one text, for whoever writes very many: a new text for each would
/// cost as much as all the rest.
class NumberText
{
public:
    /// The same text as FormatNumberWide gives; it lasts until the next call.
    wxString const& Of(double value);

private:
    std::wstring m_wide;
    wxString m_text;
};
} // namespace zenqo
