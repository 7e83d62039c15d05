#include "workbench/app/GaugeProgress.h"

#include <cmath>

#include <wx/evtloop.h>

#include "panes/StatusBar.h"
#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
/// The bar estimates the remaining time for a gauge of this range, the one it is made with.
constexpr double GAUGE_RANGE = 90.0;

constexpr long SHOW_AFTER_MS = 300;
constexpr long YIELD_EVERY_MS = 40;
} // namespace

void GaugeProgress::Begin(std::string const& message)
{
    m_message = wxString::FromUTF8(message.c_str());
    m_sinceBegin.Start();
    m_sinceYield.Start();
    m_stop = false;
}

void GaugeProgress::Update(double fraction)
{
    if (m_sinceYield.Time() < YIELD_EVERY_MS)
        return;
    if (!m_shown && m_sinceBegin.Time() >= SHOW_AFTER_MS)
        Show();
    if (m_shown)
    {
        m_bar.SetGaugeValue(static_cast<int>(std::lround(GAUGE_RANGE * fraction)));
        if (auto* const loop = wxEventLoopBase::GetActive())
            loop->YieldFor(wxEVT_CATEGORY_ALL);
    }
    m_sinceYield.Start();
    if (m_stop)
        throw Interrupted();
}

void GaugeProgress::End()
{
    if (!m_shown)
        return;
    m_shown = false;
    m_bar.HideGauge();
    m_bar.SendSizeEvent();
}

void GaugeProgress::Show()
{
    m_shown = true;
    m_bar.ShowGauge();
    m_bar.SetGaugeMessage(m_message);
    // The gauge moves to its new field when the bar hears of a size.
    m_bar.SendSizeEvent();
}
} // namespace workbench
