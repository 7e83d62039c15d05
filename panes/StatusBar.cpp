#include "panes/StatusBar.h"

#include <vector>

#include <wx/gauge.h>
#include <wx/utils.h>

#include "common/RemainingTime.h"
#include "engine/Globals.h"
#include "panes/ProgressDialog.h"

namespace
{
constexpr int ID_TIMER = 6021;
constexpr int GAUGE_WIDTH = 200;
constexpr int RIGHT_MARGIN = 3;
constexpr int PROGRESS_HEIGHT = 63; ///< How far above the gauge the floating readout starts.
} // namespace

StatusBar::StatusBar(wxWindow* parent, wxString)
    : wxStatusBar(parent, wxID_ANY, wxSTB_DEFAULT_STYLE), m_gui(Zenqo_SYSTEM_NAMESPACE::RUN_GUI)
{
    SetFieldsCount(3);
    SetMinHeight(20);
    SetFields(0);

    m_gauge = new wxGauge(this, wxID_ANY, 90, wxDefaultPosition, wxDefaultSize,
                          wxGA_HORIZONTAL | wxGA_SMOOTH);
    m_gauge->SetValue(0);
    if (m_gui)
        m_gauge->Show(true);

    m_timer.SetOwner(this, ID_TIMER);
    Bind(wxEVT_TIMER, &StatusBar::OnTimer, this, ID_TIMER);
    Bind(wxEVT_SIZE, &StatusBar::OnSize, this);
}

void StatusBar::SetFields(int messageWidth)
{
    std::vector<int> widths{-1, GAUGE_WIDTH, RIGHT_MARGIN};
    if (m_hasMessage)
        widths.insert(widths.begin() + 1, messageWidth);
    std::vector<int> const styles(widths.size(), wxSB_FLAT);
    auto const count = static_cast<int>(widths.size());
    SetFieldsCount(count);
    SetStatusWidths(count, widths.data());
    SetStatusStyles(count, styles.data());
}

void StatusBar::ShowGauge()
{
    if (!m_gui)
        return;
    m_gaugeShown = true;
    m_gauge->SetValue(0);
    m_elapsed = 0;
    m_timer.Start(1000);
    ResetProgress();
}

void StatusBar::HideGauge()
{
    if (!m_gui)
        return;
    m_gaugeShown = false;
    m_gauge->SetValue(0);
    SetGaugeMessage(wxEmptyString);
    m_timer.Stop();
    ResetProgress();
    m_progress->Show(false);
}

void StatusBar::SetGaugeValue(int value)
{
    if (m_gui && value >= 0 && value <= m_gauge->GetRange())
        m_gauge->SetValue(value);
}

void StatusBar::SetGaugeRange(int range)
{
    if (m_gui && range >= 0)
        m_gauge->SetRange(range);
}

void StatusBar::SetGaugeMessage(wxString const& message)
{
    if (!m_gui)
        return;
    m_hasMessage = !message.empty();
    SetFields(m_hasMessage ? GetTextExtent(message).x + 10 : 0);
    SetStatusText(message, 1);
}

wxString StatusBar::SecsToTime(unsigned long seconds) const
{
    if (seconds > 215999)
        return "unknown";
    auto const whole = static_cast<int>(seconds);
    return wxString::Format("%02i:%02i:%02i", whole / 3600, whole / 60 % 60, whole % 60);
}

void StatusBar::OnTimer(wxTimerEvent&)
{
    if (m_gui)
        CountSecond();
    if (m_gaugeShown)
        FollowMouse();
}

void StatusBar::CountSecond()
{
    ++m_elapsed;
    m_remaining = zenqo::SmoothRemaining(zenqo::EstimateRemaining(m_gauge->GetValue(), m_elapsed),
                                         m_remaining);
    if (!m_progress)
        return;
    wxString elapsed = SecsToTime(m_elapsed);
    wxString remaining = SecsToTime(m_remaining);
    m_progress->SetElapsedTime(elapsed);
    m_progress->SetRemainingTime(remaining);
}

void StatusBar::FollowMouse()
{
    NeedProgress();
    wxRect const gauge(m_gauge->GetPosition(), m_gauge->GetSize());
    if (!gauge.Contains(wxGetMousePosition() - GetScreenPosition()))
    {
        m_progress->Show(false);
        return;
    }
    wxPoint const place = m_gauge->GetScreenPosition() - wxPoint(0, PROGRESS_HEIGHT);
    // By way of the screen's corner: to a place that the toolkit remembers it would not move. A
    // readout that stands right is left alone, else it would flicker each second.
    if (!m_progress->IsShown() || m_progress->ClientToScreen(wxPoint(0, 0)) != place)
    {
        m_progress->Move(0, 0);
        m_progress->Move(place);
    }
    // The readout must not take the keyboard from the window in which the user works.
    m_progress->ShowWithoutActivating();
}

void StatusBar::NeedProgress()
{
    if (m_progress)
        return;
    m_progress = new ProgressDialog(this);
    m_progress->SetTransparent(128);
}

void StatusBar::ResetProgress()
{
    NeedProgress();
    wxString unkown = "unkown";
    m_progress->SetElapsedTime(unkown);
    m_progress->SetRemainingTime(unkown);
}

void StatusBar::OnSize(wxSizeEvent& event)
{
    if (!m_gui)
        return;
    wxRect field;
    GetFieldRect(m_hasMessage ? 2 : 1, field);
    // A bar that is still being laid out can have a field of less than no height.
    if (field.width >= 0 && field.height >= 0)
        m_gauge->SetSize(field.x, field.y, field.width, field.height, wxSIZE_AUTO);
    event.Skip();
}
