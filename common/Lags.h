#pragma once

#include <vector>

#include <wx/arrstr.h>

namespace zenqo
{
/// The entry for the lags from `from` to `to`: "3" if they are equal, otherwise a range in the order
/// in which they are given, "1:4" or "4:1".
wxString LagEntry(int from, int to);

/// The lags that the entries stand for, entry by entry: nothing is sorted, and what comes twice stays
/// twice. A range runs from its first number to its second, up or down. An entry in which a number
/// is missing or too large for an int adds nothing.
std::vector<int> ExpandLags(wxArrayString const& entries);
} // namespace zenqo
