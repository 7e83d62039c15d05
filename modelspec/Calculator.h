#pragma once

#include <array>

#include <wx/panel.h>

#include "engine/Export.h"

class wxButton;
class wxTextCtrl;

/// A keypad that types into a text field of its owner: a help in writing expressions.
///
/// Each key writes its text at the caret of the target, as `WriteText` does, gives the target the
/// keyboard and leaves the caret behind the text, or between the brackets of a function. It computes
/// and checks nothing.
class ZENQO_API Calculator : public wxPanel
{
public:
    /// `target` is the field that is typed into. It must live as long as the keys are pressed.
    Calculator(wxWindow* parent, wxTextCtrl* target);

    /// From now on the keys type into `target`, for an owner with several fields.
    void SetTarget(wxTextCtrl* target);

    /// The keys.
    ///@{
    void OnZero(wxCommandEvent& event);
    void OnOne(wxCommandEvent& event);
    void OnTwo(wxCommandEvent& event);
    void OnThree(wxCommandEvent& event);
    void OnFour(wxCommandEvent& event);
    void OnFive(wxCommandEvent& event);
    void OnSix(wxCommandEvent& event);
    void OnSeven(wxCommandEvent& event);
    void OnEight(wxCommandEvent& event);
    void OnNine(wxCommandEvent& event);
    void OnDot(wxCommandEvent& event);
    void OnPlus(wxCommandEvent& event);
    void OnMinus(wxCommandEvent& event);
    void OnTimes(wxCommandEvent& event);
    void OnOver(wxCommandEvent& event);
    void OnDotTimes(wxCommandEvent& event);
    void OnDotOver(wxCommandEvent& event);
    void OnPower(wxCommandEvent& event);
    void OnDotPower(wxCommandEvent& event);
    void OnOnes(wxCommandEvent& event);
    void OnSqrt(wxCommandEvent& event);
    void OnExp(wxCommandEvent& event);
    void OnLog(wxCommandEvent& event);
    ///@}

private:
    void Type(char const* text, long caret);

    wxTextCtrl* m_target;
    std::array<wxButton*, 23> m_buttons; ///< In the order of the rows of keys, from left to right.
};
