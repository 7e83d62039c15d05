#include <wx/dialog.h>
#include <wx/radiobut.h>

#include "dialogs/analysis/AAD0_NotReady.h"
#include "dialogs/analysis/AAD1_StoreElement.h"
#include "dialogs/analysis/AAD2a_CalculateMFX.h"
#include "dialogs/analysis/AAD2b_CalculateMFX.h"
#include "dialogs/analysis/AAD2c_CalculateMFX.h"
#include "dialogs/analysis/AAD3_Forecast.h"
#include "dialogs/analysis/AAD4_PlotIRFs.h"
#include "dialogs/analysis/AAD5a_Predict.h"
#include "dialogs/analysis/AAD5b_Predict.h"
#include "engine/Sentinels.h"
#include "gallery/Entry.h"

namespace
{
using Arguments = std::vector<std::string>;

template <class Dialog>
Entry::Build With(Arguments arguments)
{
    return [arguments](Shelf&)
    {
        auto read = arguments;
        return new Dialog(nullptr, read);
    };
}

/// Chooses the button with `label` in one of the dialog's boxes, as the user does.
void ChooseRadio(wxDialog const* dialog, wxString const& label)
{
    for (auto* const box : dialog->GetChildren())
        for (auto* const control : box->GetChildren())
            if (auto* const radio = dynamic_cast<wxRadioButton*>(control))
                if (radio->GetLabel() == label)
                    Choose(radio, wxEVT_RADIOBUTTON);
}

wxTopLevelWindow* OwnPoint(Shelf&)
{
    Arguments arguments{"tobit_hours",
                        "Hours are censored at zero. The effects on the hours of those who work are smaller "
                        "than the coefficients.",
                        "constant", "educ", "age", "kids", zenqo::DEFAULT_STRING,
                        "P(y > 0)", "E(y | y > 0)", "E(y)"};
    auto* const dialog = new AAD2c_CalculateMFX(nullptr, arguments);
    ChooseRadio(dialog, "user-defined point");
    ChooseRadio(dialog, "E(y | y > 0)");
    return dialog;
}

wxTopLevelWindow* OwnValues(Shelf&)
{
    Arguments arguments{"var_macro",
                        "The mean of the data is one value for each variable, the same in all periods.",
                        "oil_price", "world_trade", ""};
    auto* const dialog = new AAD3_Forecast(nullptr, arguments);
    ChooseRadio(dialog, "user-defined values");
    return dialog;
}

Arguments const ELEMENT = {
    "inefficiency scores", "frontier_banks", "banks", "Variable name:", "eff_score",
    "One value is stored for each observation that was used in estimation; all others are missing."};

Arguments const EFFECTS = {
    "probit_transmission",
    "The effect of a <b>dummy variable</b> is the change of the probability when it goes from 0 to 1.",
    "constant", "mpg", "wt", "hp"};

Arguments const EFFECTS_BARE = {"probit_transmission", "", "constant", "mpg", "wt", "hp"};

Arguments const EFFECTS_OF_TWO = {
    "poisson_visits", "Effects on a probability are in percentage points.", "constant", "age", "income",
    zenqo::DEFAULT_STRING, "E(y)", "P(y = 0)"};

Arguments const RESPONSES = {
    "var_macro",
    "Errors are orthogonalized in the order in which the dependent variables were given."};

Arguments const PREDICTIONS = {
    "linear_employment", "longley", "Prefix:", "p_",
    "Predictions are stored under the prefix and the name of the dependent variable."};

Arguments const PREDICTIONS_OF_TWO = {
    "probit_transmission", "cars", "Prefix:", "p_",
    "Over the draws the mean and the standard deviation are stored.", "P(y = 1)", "x'b"};
} // namespace

std::vector<Entry> PostEstimationEntries()
{
    return {
        {"dialogs/analysis", "AAD0_NotReady", With<AAD0_NotReady>({})},
        {"dialogs/analysis", "AAD1_StoreElement", With<AAD1_StoreElement>(ELEMENT)},
        {"dialogs/analysis", "AAD2a_CalculateMFX", With<AAD2a_CalculateMFX>(EFFECTS)},
        {"dialogs/analysis", "AAD2a_CalculateMFX, without a note",
         With<AAD2a_CalculateMFX>(EFFECTS_BARE)},
        {"dialogs/analysis", "AAD2b_CalculateMFX", With<AAD2b_CalculateMFX>(EFFECTS_OF_TWO)},
        {"dialogs/analysis", "AAD2c_CalculateMFX", OwnPoint},
        {"dialogs/analysis", "AAD3_Forecast", OwnValues},
        {"dialogs/analysis", "AAD3_Forecast, no exogenous variables",
         With<AAD3_Forecast>({"var_macro", "", zenqo::DEFAULT_STRING})},
        {"dialogs/analysis", "AAD4_PlotIRFs", With<AAD4_PlotIRFs>(RESPONSES)},
        {"dialogs/analysis", "AAD5a_Predict", With<AAD5a_Predict>(PREDICTIONS)},
        {"dialogs/analysis", "AAD5b_Predict", With<AAD5b_Predict>(PREDICTIONS_OF_TWO)},
    };
}
