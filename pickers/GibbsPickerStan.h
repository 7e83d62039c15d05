#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxTextCtrl;

/// The lengths of the runs of a sampler that reports its progress: GibbsPicker and one row more.
///
/// The defaults are `GLOBAL_Gibbs`, read once, when the panel is made, and 1000 for the reports. The
/// host sees to it that there are five of them: fewer end the program.
class ZENQO_API GibbsPickerStan : public wxPanel
{
public:
    explicit GibbsPickerStan(wxWindow* parent);

    /// The text of a field exactly as it stands, neither trimmed nor converted.
    ///@{
    wxString GetSamples() const; ///< Draws that are retained of each chain.
    wxString GetBurnin() const;  ///< Draws that each chain makes and drops first.
    wxString GetChains() const;  ///< How many chains run.
    wxString GetThin() const;    ///< Of so many draws one is retained.
    wxString GetSeed() const;    ///< Of the random numbers; may be too large for a double.
    wxString GetRefresh() const; ///< Draws between two reports of progress.
    ///@}

    /// Looks at burn-in, chains, thinning, seed and refresh, in this order, and stops at the first
    /// that is no whole number of the machine's range. Returns true, with `message` empty, if all are;
    /// otherwise false, with what is to be told the user in `message`. Zero passes, and so does a sign
    /// that the conversion takes. The retained draws are not looked at. The picker shows nothing
    /// itself: the owner calls this before it accepts, and shows the message.
    bool ValidateInput(wxString& message) const;

    /// Lets the user edit a field or not. All can be edited at first; a field that can't is shown,
    /// read and validated as before.
    ///@{
    void EnableBurnin(bool enable);
    void EnableChains(bool enable);
    void EnableThin(bool enable);
    ///@}

private:
    wxTextCtrl* m_samples;
    wxTextCtrl* m_chains;
    wxTextCtrl* m_burnin;
    wxTextCtrl* m_thin;
    wxTextCtrl* m_seed;
    wxTextCtrl* m_refresh;
};
