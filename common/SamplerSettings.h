#pragma once

#include <Eigen/Core>

#include "common/DialogFrame.h"

namespace zenqo
{
/// The number in a sampler's field, into which the user may have typed anything.
///@{

/// As the toolkit reads an unsigned number of 64 bits: 3.5 is 3, what can't be read or is too large is
/// 0, and what is negative wraps around.
unsigned long long LargeSetting(wxString const& text);

/// As the C library reads a number from narrow text, which stops where the digits end: what can't be
/// read is 0, and of what is too large for an int its low bits are left.
int SmallSetting(wxString const& text);
///@}

/// The user accepts the dialog, which is told the settings, valid or not. If `sampler`, the panel with
/// the fields, finds fault with one of them, the user is warned and the dialog stays.
template <class Dialog, class Sampler>
void AcceptSettings(Dialog* dialog, Sampler const* sampler, Eigen::VectorXd& settings,
                    wxCommandEvent& event)
{
    settings.resize(5);
    settings << static_cast<double>(dialog->GetSamples()), static_cast<double>(dialog->GetBurnin()),
        dialog->GetChains(), dialog->GetThin(), static_cast<double>(dialog->GetSeed());
    wxString complaint;
    sampler->ValidateInput(complaint);
    AcceptUnless(complaint, dialog, event);
}
} // namespace zenqo
