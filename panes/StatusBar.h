#pragma once

#include <wx/statusbr.h>
#include <wx/timer.h>

#include "engine/Export.h"

class ProgressDialog;
class wxGauge;

/// The main window's status bar, with a gauge of the engine's progress and room for a message.
///
/// During a run it counts the seconds, estimates how many remain, and shows both above the gauge
/// while the mouse rests there. The host drives it: ShowGauge, SetGaugeValue and SetGaugeMessage,
/// HideGauge. In a run without a window (`RUN_GUI` false) all of them do nothing.
class ZENQO_API StatusBar : public wxStatusBar
{
public:
    /// `text` has no effect.
    StatusBar(wxWindow* parent, wxString text);

    /// A run begins: gauge and elapsed time go to 0, the clock starts.
    void ShowGauge();

    /// The run has ended: the gauge goes to 0, message, clock and floating readout away.
    void HideGauge();

    /// Moves the gauge, from 0 to its range; a value outside is ignored.
    void SetGaugeValue(int value);

    /// Sets the value at which the gauge is full, 90 at first; a negative one is ignored. The
    /// remaining time is estimated as if it were 90 all the same.
    void SetGaugeRange(int range);

    /// Shows `message` in a field of its own left of the gauge; an empty one takes the field away.
    /// The gauge follows when the bar gets its next size.
    void SetGaugeMessage(wxString const& message);

    /// Seconds as "hh:mm:ss"; "unknown" from 60 hours on.
    wxString SecsToTime(unsigned long seconds) const;

    /// A second has passed: counts, estimates, and shows or hides the floating readout.
    void OnTimer(wxTimerEvent& event);

    /// Keeps the gauge in its field.
    void OnSize(wxSizeEvent& event);

private:
    /// Three fields, or four if there is a message, `messageWidth` pixels wide.
    void SetFields(int messageWidth);
    void NeedProgress();
    void ResetProgress();
    void CountSecond();
    void FollowMouse();

    wxGauge* m_gauge;
    ProgressDialog* m_progress = nullptr; ///< Made when first needed; the window tree owns it.
    bool m_hasMessage = false;
    bool m_gui;
    bool m_gaugeShown = false; ///< A run is in progress.
    wxTimer m_timer;
    unsigned long m_elapsed = 0;   ///< Seconds since the run began.
    unsigned long m_remaining = 0; ///< The last estimate, smoothed. It outlives the run on purpose.
};
