#include "common/Text.h"

#include <algorithm>

#include <wx/strconv.h>

namespace zenqo
{
namespace
{
/// Most names are ASCII, which needs no converter; a workspace's lists hold thousands of them.
bool IsAscii(std::string const& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}
} // namespace

wxString ToWide(std::string const& text)
{
    if (IsAscii(text))
        return wxString::FromAscii(text.data(), text.size());
    return wxString(text.data(), wxConvLibc, text.size());
}

std::string ToNarrow(wxString const& text)
{
    wxScopedCharBuffer const narrow = text.mb_str(wxConvLibc);
    return narrow ? std::string(narrow.data(), narrow.length()) : std::string();
}
} // namespace zenqo
