#pragma once

#include <string>
#include <vector>

#include "engine/Dataset.h"

namespace workbench
{
class Progress;

/// What the observations of a dataset are in time, and to which group each belongs.
struct Structure
{
    std::string time;   ///< The variable that tells the time; empty if none does.
    std::string format; ///< How that is written, one of TimeFormats(); empty without a time variable.
    std::string group;  ///< The variable that tells the groups of a panel; empty if none does.

    /// A dataset without structure: each observation stands by itself.
    bool IsEmpty() const { return time.empty() && group.empty(); }

    bool RestsOn(std::string const& variable) const { return time == variable || group == variable; }

    bool operator==(Structure const& other) const
    {
        return time == other.time && format == other.format && group == other.group;
    }
};

/// "index" (whole numbers), "yyyyqx" (2001q4), "yyyymxx" (2001m12), "yyyy/mm/dd" (2001/12/31), in the
/// order in which a choice of them offers them.
std::vector<std::string> const& TimeFormats();

/// Throws an Error if `structure` does not fit `dataset`: a variable is not there, both are the same,
/// the format is none, the time variable holds what is no time in its format, or an observation
/// belongs to no group. Bad values are named with their rows, which begin at 1.
void CheckStructure(Dataset const& dataset, Structure const& structure, Progress& progress);
} // namespace workbench
