#pragma once

#include <wx/stopwatch.h>
#include <wx/string.h>

#include "workbench/engine/Progress.h"

class StatusBar;

namespace workbench
{
/// Shows the progress of long work in the status bar's gauge and lets the window live meanwhile.
///
/// Work that is over in the blink of an eye never shows the gauge. While the window lives the user
/// can do anything but start another command, which whoever owns this has to see to.
class GaugeProgress : public Progress
{
public:
    explicit GaugeProgress(StatusBar& bar) : m_bar(bar) {}

    void Begin(std::string const& message) override;
    void Update(double fraction) override;
    void End() override;

    /// Makes the running work end at its next report.
    void Stop() { m_stop = true; }

private:
    void Show();

    StatusBar& m_bar;
    wxString m_message;
    wxStopWatch m_sinceBegin;
    wxStopWatch m_sinceYield;
    bool m_shown = false;
    bool m_stop = false;
};
} // namespace workbench
