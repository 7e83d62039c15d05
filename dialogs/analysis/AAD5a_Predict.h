#pragma once

#include <memory>
#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

namespace zenqo
{
class Predictions;
}

/// Asks how predictions of a model are generated and stored as new variables of a dataset.
class ZENQO_API AAD5a_Predict : public wxDialog
{
public:
    /// `arguments` are five texts: [0] the model, [1] the dataset, [2] the label of the prefix's field,
    /// [3] the prefix that is proposed, [4] a note, which is shown even if it is empty.
    AAD5a_Predict(wxWindow* parent, std::vector<std::string>& arguments);
    ~AAD5a_Predict() override;

    /// The prefix of the new variables' names as a piece of script, `, "prefix" = abc`; empty for the
    /// engine's own, "p_".
    std::string GetVarName() const;

    /// At which parameters is predicted, as a piece of script: empty for their posterior mean,
    /// `, "stats"=true` for each draw.
    std::string GetParameterPoint() const;

    /// The user accepts: a prefix that is missing or no legal name is answered by a warning and the
    /// dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    std::unique_ptr<zenqo::Predictions> m_predictions;
};
