#include "workbench/script/Nearest.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace workbench
{
namespace
{
constexpr std::size_t LISTED = 20;

char Lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

/// How many characters must be put in, taken out or replaced to make `a` of `b`; upper and lower
/// case are the same.
std::size_t Distance(std::string const& a, std::string const& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        auto diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j)
        {
            auto const replaced = diagonal + (Lower(a[i]) == Lower(b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}
} // namespace

std::string Nearest(std::string const& name, std::vector<std::string> const& known)
{
    // Of a short name half could be wrong and mean anything.
    auto best = std::min<std::size_t>(2, (name.size() + 1) / 3) + 1;
    std::string nearest;
    for (auto const& candidate : known)
    {
        auto const longer = std::max(candidate.size(), name.size());
        if (longer - std::min(candidate.size(), name.size()) >= best)
            continue;
        auto const distance = Distance(name, candidate);
        if (distance < best)
        {
            best = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string Suggestion(std::string const& name, std::vector<std::string> const& known,
                       std::string const& what)
{
    auto const nearest = Nearest(name, known);
    if (!nearest.empty())
        return "; did you mean \"" + nearest + "\"?";
    if (known.empty())
        return "; there are no " + what;
    std::string list;
    for (std::size_t i = 0; i < std::min(LISTED, known.size()); ++i)
        list += (i > 0 ? ", " : "") + known[i];
    if (known.size() > LISTED)
        list += " and " + std::to_string(known.size() - LISTED) + " more";
    return "; the " + what + " are: " + list;
}
} // namespace workbench
