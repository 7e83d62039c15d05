#include "workbench/engine/Progress.h"

#include <algorithm>

namespace workbench
{
Progress::~Progress() = default;

void Progress::Begin(std::string const&) {}

void Progress::Update(double) {}

void Progress::End() {}

ProgressScope::ProgressScope(Progress& progress, std::string const& message) : m_progress(progress)
{
    m_progress.Begin(message);
}

ProgressScope::~ProgressScope() { m_progress.End(); }

void ProgressScope::Update(std::uint64_t done, std::uint64_t total)
{
    Update(total == 0 ? 1.0 : std::min(1.0, static_cast<double>(done) / static_cast<double>(total)));
}
} // namespace workbench
