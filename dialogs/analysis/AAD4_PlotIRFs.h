#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

class wxRadioButton;
class wxSpinCtrl;

/// Asks what the plots of a model's impulse responses show.
class ZENQO_API AAD4_PlotIRFs : public wxDialog
{
public:
    /// `arguments` are two texts: [0] the model, [1] a note, which may be empty.
    AAD4_PlotIRFs(wxWindow* parent, std::vector<std::string>& arguments);

    /// The horizon in periods, 1 to 999; 10 at first.
    int GetPeriods() const;

    /// True if the shocks hit the orthogonalized errors, as they do at first; false for the raw ones.
    bool GetOrthogonal() const;

    /// True if a shock is one standard deviation, as it is at first; false for one unit.
    bool GetScaled() const;

private:
    wxSpinCtrl* m_periods;
    wxRadioButton* m_raw;
    wxRadioButton* m_orthogonal;
    wxRadioButton* m_unit;
    wxRadioButton* m_scaled;
};
