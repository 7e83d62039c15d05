#pragma once

#include <cstdint>
#include <string>

namespace workbench
{
/// Is told how far a long piece of work has come. This one does nothing with it.
///
/// The engine reports often (about once for each quarter of a megabyte); whoever draws the progress
/// decides which reports to show.
class Progress
{
public:
    virtual ~Progress();

    /// A piece of work begins; `message` says which, in a few words.
    virtual void Begin(std::string const& message);

    /// `fraction` of it is done, from 0 to 1. May throw `Interrupted`: the work then ends and
    /// changes nothing.
    virtual void Update(double fraction);

    /// The work is over, by success or failure. Comes once for each `Begin`. Must not throw.
    virtual void End();
};

/// Pairs `Begin` with `End` on every way out.
class ProgressScope
{
public:
    ProgressScope(Progress& progress, std::string const& message);
    ~ProgressScope();
    ProgressScope(ProgressScope const&) = delete;
    ProgressScope& operator=(ProgressScope const&) = delete;

    void Update(double fraction) { m_progress.Update(fraction); }

    /// Reports `done` of `total` units of work.
    void Update(std::uint64_t done, std::uint64_t total);

private:
    Progress& m_progress;
};
} // namespace workbench
