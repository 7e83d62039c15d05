#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace workbench
{
/// Makes legal, unique names of variables of those that are written somewhere, and keeps account of the
/// changes.
class VariableNames
{
public:
    VariableNames();

    /// The next name, as it is written.
    void Add(std::string_view written);

    /// The names of the variables.
    std::vector<std::string> const& Names() const { return m_names; }

    /// What was changed, for the user, who knows the place as `source`; empty if nothing was.
    std::string Warning(std::string const& source) const;

private:
    void NoteChange(std::string_view written, std::string const& unique);

    std::vector<std::string> m_names;
    std::unordered_set<std::string> m_taken;
    std::unordered_map<std::string, int> m_counts;
    std::size_t m_changed = 0;
    std::string m_changes;
};
} // namespace workbench
