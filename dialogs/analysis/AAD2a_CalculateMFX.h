#pragma once

#include <memory>
#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

class UserPointDialog;

namespace zenqo
{
class MarginalEffects;
}

/// Asks at which point of the data marginal effects of a model are calculated.
class ZENQO_API AAD2a_CalculateMFX : public wxDialog
{
public:
    /// `arguments` are two texts and more: [0] the model, [1] a note, which may be empty, and then the
    /// names of the variables that make up a point.
    AAD2a_CalculateMFX(wxWindow* parent, std::vector<std::string>& arguments);
    ~AAD2a_CalculateMFX() override;

    /// The point as a piece of script that begins with a comma: one of three words, or the user's own
    /// numbers in the format of `GLOBAL_IOFormatInput`.
    std::string GetPoint() const;

    /// What the user does with the point. Only one of the user's own can be defined; it begins at zero,
    /// and stays while another one is chosen.
    ///@{
    void OnDefaultPoint(wxCommandEvent& event);
    void OnCustomPoint(wxCommandEvent& event);
    void OnDefinePointButton(wxCommandEvent& event);
    ///@}

private:
    std::unique_ptr<zenqo::MarginalEffects> m_effects;
    UserPointDialog* m_pointDialog = nullptr;
};
