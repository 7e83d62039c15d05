#include "common/VariableName.h"

#include <algorithm>
#include <utility>

namespace zenqo
{
void splitName(std::string const& full, std::string& stem, std::string& suffix)
{
    auto const underscore = full.rfind('_');
    // Either of the parts may be written where the name stands.
    std::string before = full.substr(0, underscore);
    suffix = underscore == std::string::npos ? std::string() : full.substr(underscore + 1);
    stem = std::move(before);
}

bool IsNumericSuffix(std::string const& suffix)
{
    return !suffix.empty()
           && std::all_of(suffix.begin(), suffix.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool FamilyOf(std::string const& full, std::string& stem)
{
    std::string suffix;
    splitName(full, stem, suffix);
    return IsNumericSuffix(suffix);
}
} // namespace zenqo
