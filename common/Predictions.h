#pragma once

#include <string>
#include <vector>

class wxCommandEvent;
class wxDialog;
class wxRadioButton;
class wxSizer;
class wxTextCtrl;

namespace zenqo
{
/// The title of the dialogs that ask how predictions are generated.
inline constexpr char PREDICTIONS_TITLE[] = "Generate predictions";

/// Makes the dialog's sizer, with the sentence that tells what is predicted.
wxSizer* BeginPredictions(wxDialog* dialog, std::vector<std::string> const& arguments);

/// What these dialogs have in common: at which parameters it is predicted, and the prefix of the names
/// under which that is stored.
class Predictions
{
public:
    /// Adds the controls to the dialog's sizer; entries 2 and 3 of `arguments` are the label of the
    /// prefix and the prefix.
    Predictions(wxDialog* dialog, wxSizer* sizer, std::vector<std::string> const& arguments);

    /// Lets the dialog accept, or warns of the prefix.
    void Accept(wxDialog* dialog, wxCommandEvent& event) const;

    /// The choices as pieces of script.
    ///@{
    std::string PrefixOption() const;
    std::string ParameterOption() const;
    ///@}

private:
    wxTextCtrl* m_prefix;
    wxRadioButton* m_mean;
    wxRadioButton* m_draws;
};
} // namespace zenqo
