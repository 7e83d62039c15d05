#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/Dataset.h"

namespace workbench
{
/// Makes a column of text of its labels, one after the other.
class LabelMaker
{
public:
    /// Appends a label, empty if it is missing, and gives the number that stands for it.
    double Add(std::string_view text)
    {
        made.labels.emplace_back(text);
        if (text.empty())
            return std::numeric_limits<double>::quiet_NaN();
        auto const next = static_cast<int>(made.levels.size());
        auto const [entry, isNew] = m_numbers.try_emplace(made.labels.back(), next);
        if (isNew)
            made.levels.push_back(entry->first);
        return entry->second;
    }

    LabelledColumn made; ///< What came of them.

private:
    std::unordered_map<std::string, int> m_numbers; ///< Of the levels.
};
} // namespace workbench
