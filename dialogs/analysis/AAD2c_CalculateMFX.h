#pragma once

#include <memory>
#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

class UserPointDialog;
class wxRadioButton;

namespace zenqo
{
class MarginalEffects;
}

/// Asks at which point of the data marginal effects of a model are calculated, and of which of three
/// types.
class ZENQO_API AAD2c_CalculateMFX : public wxDialog
{
public:
    /// `arguments` are [0] the model, [1] a note, which may be empty, then the names of the variables
    /// that make up a point, zenqo::DEFAULT_STRING, and the labels of the three types.
    AAD2c_CalculateMFX(wxWindow* parent, std::vector<std::string>& arguments);
    ~AAD2c_CalculateMFX() override;

    /// The point as a piece of script that begins with a comma: one of three words, or the user's own
    /// numbers in the format of `GLOBAL_IOFormatInput`.
    std::string GetPoint() const;

    /// The chosen type as a piece of script, `, "type"=1` for the first.
    std::string GetType() const;

    /// What the user does with the point. Only one of the user's own can be defined; it begins at zero,
    /// and stays while another one is chosen.
    ///@{
    void OnDefaultPoint(wxCommandEvent& event);
    void OnCustomPoint(wxCommandEvent& event);
    void OnDefinePointButton(wxCommandEvent& event);
    ///@}

private:
    std::unique_ptr<zenqo::MarginalEffects> m_effects;
    std::vector<wxRadioButton*> m_types;
    UserPointDialog* m_pointDialog = nullptr;
};
