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

wxArrayString ToWide(std::vector<std::string> const& texts)
{
    wxArrayString wide;
    wide.Alloc(texts.size());
    for (std::string const& text : texts)
        wide.Add(ToWide(text));
    return wide;
}

std::string ToNarrow(wxString const& text)
{
    wxScopedCharBuffer const narrow = text.mb_str(wxConvLibc);
    return narrow ? std::string(narrow.data(), narrow.length()) : std::string();
}
} // namespace zenqo
