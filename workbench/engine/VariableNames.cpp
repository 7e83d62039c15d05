#include "workbench/engine/VariableNames.h"

#include "engine/Functions.h"
#include "workbench/engine/InputFile.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
namespace
{
/// The most changes that are told one by one.
constexpr std::size_t LISTED = 10;
} // namespace

VariableNames::VariableNames() { m_taken.insert(CONSTANT); }

void VariableNames::Add(std::string_view written)
{
    std::string name(written);
    ProcessID(name);
    // The count of each name makes a header of thousands of equal names no slower than others.
    std::string unique = name;
    for (auto& count = m_counts.try_emplace(name, 1).first->second; m_taken.count(unique) > 0;)
        unique = name + "_" + std::to_string(++count);
    m_taken.insert(unique);
    m_names.push_back(unique);
    if (unique != written)
        NoteChange(written, unique);
}

std::string VariableNames::Warning(std::string const& source) const
{
    if (m_changed == 0)
        return {};
    auto const rest = m_changed > LISTED ? " and " + std::to_string(m_changed - LISTED) + " more" : "";
    return "Names in " + Quoted(source) + " were changed to make them legal and unique: " + m_changes
           + rest + ".";
}

void VariableNames::NoteChange(std::string_view written, std::string const& unique)
{
    if (++m_changed <= LISTED)
        m_changes +=
            (m_changes.empty() ? "" : ", ") + Quoted(std::string(written)) + " to " + Quoted(unique);
}
} // namespace workbench
