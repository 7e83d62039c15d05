#pragma once

#include <vector>

#include <wx/panel.h>

#include "engine/Export.h"

class wxButton;
class wxListBox;
class wxSpinCtrl;

/// Assembles a set of lags from single values and ranges.
///
/// Two spin controls give a range from -99 to 99, and a press of the button adds it to the list in a
/// short text form, "3", "1:4" or "4:1". The button's label follows the user: touching a spin control
/// makes it ">>", and a press adds; clicking an entry makes it "<<", and a press removes what is
/// selected.
class ZENQO_API LagsPicker : public wxPanel
{
public:
    /// The list starts with the one entry "1".
    explicit LagsPicker(wxWindow* parent);

    /// The lags that the list stands for, entry by entry from top to bottom, each range in its own
    /// direction. Nothing is sorted, and what was added twice comes twice. Empty if the list is.
    std::vector<int> GetLags() const;

    /// True once the button was pressed, whether or not anything moved, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// The user has clicked on an entry: a press of the button will remove.
    void OnLagsSelected(wxCommandEvent& event);

    /// The user has touched a spin control: nothing is selected any more, and a press will add.
    void OnSpinChanged(wxCommandEvent& event);

    /// The user has entered a spin control, which is the same as touching it.
    void OnSetFocusToSpin(wxFocusEvent& event);

    /// The user has pressed the button: it does what its label shows.
    void OnButton(wxCommandEvent& event);

private:
    wxSpinCtrl* MakeSpin();
    void LayOut();

    wxSpinCtrl* m_from;
    wxSpinCtrl* m_to;
    wxListBox* m_list;
    wxButton* m_button;
    bool m_changed = false;
};
