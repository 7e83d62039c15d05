#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

class wxPanel;
class wxStaticText;

/// The small floating readout of elapsed and remaining time above the status bar's gauge.
/// StatusBar makes, moves, fills, shows and hides it; the user does nothing with it.
class ZENQO_API ProgressDialog : public wxDialog
{
public:
    /// Both times read "unknown" at first. The dialog is not shown.
    explicit ProgressDialog(wxWindow* parent);

    /// Shows `text` as the elapsed time. The window keeps its size.
    void SetElapsedTime(wxString& text);

    /// Shows `text` as the remaining time. The window keeps its size.
    void SetRemainingTime(wxString& text);

private:
    wxSizer* BuildColumn(wxStaticText* upper, wxStaticText* lower);

    wxPanel* m_panel;
    wxStaticText* m_elapsedText;
    wxStaticText* m_remainingText;
};
