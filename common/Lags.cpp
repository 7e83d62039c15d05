#include "common/Lags.h"

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

#include "common/Text.h"

namespace zenqo
{
namespace
{
/// The integer with which `text` begins, if there is one and an int holds it.
std::optional<int> LeadingInteger(std::string const& text)
{
    char* end = nullptr;
    errno = 0;
    long const value = std::strtol(text.c_str(), &end, 10);
    using Limits = std::numeric_limits<int>;
    if (end == text.c_str() || errno == ERANGE || value < Limits::min() || value > Limits::max())
        return std::nullopt;
    return static_cast<int>(value);
}

void AddRange(std::vector<int>& lags, int from, int to)
{
    int const step = from < to ? 1 : -1;
    for (int lag = from; lag != to; lag += step)
        lags.push_back(lag);
    lags.push_back(to);
}
} // namespace

wxString LagEntry(int from, int to)
{
    return from == to ? wxString::Format("%d", from) : wxString::Format("%d:%d", from, to);
}

std::vector<int> ExpandLags(wxArrayString const& entries)
{
    std::vector<int> lags;
    for (wxString const& entry : entries)
    {
        std::string const text = ToNarrow(entry);
        auto const colon = text.find(':');
        // The number before the colon ends there by itself.
        auto const from = LeadingInteger(text);
        auto const to = colon == std::string::npos ? from : LeadingInteger(text.substr(colon + 1));
        if (from && to)
            AddRange(lags, *from, *to);
    }
    return lags;
}
} // namespace zenqo
