#include "workbench/app/AnalysisForms.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>

#include "dialogs/analysis/AAD0_NotReady.h"
#include "dialogs/analysis/AAD1_StoreElement.h"
#include "dialogs/analysis/AAD2a_CalculateMFX.h"
#include "dialogs/analysis/AAD2b_CalculateMFX.h"
#include "dialogs/analysis/AAD2c_CalculateMFX.h"
#include "dialogs/analysis/AAD3_Forecast.h"
#include "dialogs/analysis/AAD5a_Predict.h"
#include "dialogs/analysis/AAD5b_Predict.h"
#include "dialogs/analysis/CompareModelsDialog.h"
#include "dialogs/analysis/PlotDrawsDialog.h"
#include "dialogs/analysis/TestParametersDialog.h"
#include "engine/Sentinels.h"
#include "pickers/DatasetPicker.h"
#include "workbench/analysis/PostEstimation.h"
#include "workbench/app/CallText.h"

namespace workbench
{
namespace
{
using Texts = std::vector<std::string>;

char const* const EFFECTS_NOTE
    = "A marginal effect is the change of the expected value of the dependent variable by one unit of a "
      "regressor. \"each data point\" gives the mean of the effects over all observations.";
char const* const FORECAST_NOTE
    = "One row for each period, one column for each regressor. The mean of the data is kept for all periods.";
char const* const PREDICT_NOTE
    = "At the posterior mean there is one new variable, and its name is the prefix with the dependent variable. "
      "Over the draws there are several, for the posterior mean, the standard deviation and quantiles.";

void Tell(wxWindow* parent, wxString const& text)
{
    wxMessageBox(text, "Zenqo Workbench", wxOK | wxICON_INFORMATION, parent);
}

/// Shows that a model of this kind has no such thing.
Asked NotReady(wxWindow* parent)
{
    Texts none;
    AAD0_NotReady(parent, none).ShowModal();
    return {};
}

/// The model's dataset; null, and the user is told, if it is gone.
Dataset const* DatasetOf(wxWindow* parent, Workspace const& workspace, Model const& model)
{
    auto const found = workspace.datasets.find(model.dataset);
    if (found != workspace.datasets.end())
        return found->second.get();
    Tell(parent, "The dataset " + Wide(model.dataset) + ", on which the model was estimated, is no longer in the "
                                                        "workspace.");
    return nullptr;
}

bool HasAll(Dataset const& dataset, Texts const& names)
{
    return std::all_of(names.begin(), names.end(), [&](std::string const& name)
                       { return dataset.varNames.Index(Wide(name)) != wxNOT_FOUND; });
}

/// The dataset for which there will be predictions: of those that have all regressors the only one, or
/// the one that the user chooses. Empty if there is none.
std::string PredictedDataset(wxWindow* parent, Workspace const& workspace, Model const& model)
{
    wxArrayString fit;
    for (auto const& [name, dataset] : workspace.datasets)
        if (HasAll(*dataset, VariablesOf(model)))
            fit.Add(Wide(name));
    if (fit.empty())
        Tell(parent, "No dataset in the workspace has all regressors of the model.");
    if (fit.size() < 2)
        return fit.empty() ? std::string() : Narrow(fit[0]);
    wxDialog dialog(parent, wxID_ANY, "Dataset of the Predictions");
    auto* const picker = new DatasetPicker(&dialog);
    picker->SetChoices(fit);
    picker->SetSelection(std::max(0, fit.Index(Wide(model.dataset))));
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(picker, 0, wxEXPAND | wxALL, 12);
    sizer->Add(dialog.CreateSeparatedButtonSizer(wxOK | wxCANCEL), 0, wxEXPAND | wxALL, 8);
    dialog.SetSizerAndFit(sizer);
    dialog.CentreOnParent();
    return dialog.ShowModal() == wxID_OK ? picker->GetSelectionString() : std::string();
}

Asked AskStore(wxWindow* parent, Workspace& workspace, std::string const& shown, char const* element,
               char const* label)
{
    auto const& model = *workspace.models.at(shown);
    if (!IsRegression(model))
        return NotReady(parent);
    if (!DatasetOf(parent, workspace, model))
        return {};
    Texts arguments{label, shown, model.dataset, "Name of the new variable:", element,
                    "They are computed at the posterior mean of the coefficients."};
    AAD1_StoreElement dialog(parent, arguments);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return CallText("store").Name(shown).Text(element).Name(model.dataset).Text(dialog.GetVarName()).Done();
}

/// The statement of a dialog on marginal effects, before its options.
CallText EffectsCall(std::string const& model) { return CallText("mfx").Name(model); }

template <class Dialog>
Asked AskEffectsOfTypes(wxWindow* parent, std::string const& shown, Texts& arguments)
{
    Dialog dialog(parent, arguments);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return EffectsCall(shown).Options(dialog.GetPoint()).Options(dialog.GetType()).Done();
}

template <class Dialog>
Asked FinishPrediction(Dialog& dialog, std::string const& model, std::string const& dataset,
                       std::string const& type)
{
    return CallText("predict")
        .Name(model)
        .Name(dataset)
        .Options(dialog.GetVarName())
        .Options(dialog.GetParameterPoint())
        .Options(type)
        .Done();
}
} // namespace

Asked AskTest(wxWindow* parent, Workspace& workspace, std::string const&)
{
    TestParametersDialog dialog(parent, &workspace.models);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    CallText call("test");
    call.Name(dialog.GetModelName());
    for (wxString const& condition : dialog.GetConditions())
        call.Text(Narrow(condition));
    return call.Done();
}

Asked AskCompare(wxWindow* parent, Workspace& workspace, std::string const&)
{
    CompareModelsDialog dialog(parent, &workspace.models);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    CallText call("compare");
    call.Text(Joined(dialog.GetModelsNames()));
    if (!dialog.GetDefaultPriors())
        call.Option("priors", dialog.GetCustomPriors());
    if (dialog.GetCJ())
        call.Option("approximation", "\"CJ\"");
    return call.Done();
}

Asked AskPlotDraws(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    static char const* const TYPES[] = {"histogram", "history", "all", "density", "correlogram"};
    PlotDrawsDialog dialog(parent, &workspace.models);
    dialog.SetSelection(static_cast<int>(
        std::distance(workspace.models.begin(), workspace.models.find(shown))));
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return CallText("plot")
        .Name(dialog.GetModelName())
        .Text(Joined(dialog.GetVarNames()))
        .Text(TYPES[dialog.GetPlotType()]).Done();
}

Asked AskStoreFitted(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    return AskStore(parent, workspace, shown, "fitted", "fitted values");
}

Asked AskStoreResiduals(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    return AskStore(parent, workspace, shown, "residuals", "residuals");
}

Asked AskEffects(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    auto const& model = *workspace.models.at(shown);
    if (!IsRegression(model))
        return NotReady(parent);
    auto const* const dataset = DatasetOf(parent, workspace, model);
    if (!dataset)
        return {};
    Texts arguments{shown, EFFECTS_NOTE};
    auto const names = VariablesOf(model);
    arguments.insert(arguments.end(), names.begin(), names.end());
    // Effects that make sense for these data only.
    int const types = EffectTypes(model, *dataset);
    if (types == 1)
    {
        AAD2a_CalculateMFX dialog(parent, arguments);
        if (dialog.ShowModal() != wxID_OK)
            return {};
        return EffectsCall(shown).Options(dialog.GetPoint()).Done();
    }
    arguments.insert(arguments.end(), {zenqo::DEFAULT_STRING, "marginal effects", "semi-elasticities"});
    if (types == 2)
        return AskEffectsOfTypes<AAD2b_CalculateMFX>(parent, shown, arguments);
    arguments.push_back("elasticities");
    return AskEffectsOfTypes<AAD2c_CalculateMFX>(parent, shown, arguments);
}

Asked AskForecast(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    auto const& model = *workspace.models.at(shown);
    if (!IsRegression(model))
        return NotReady(parent);
    if (!DatasetOf(parent, workspace, model))
        return {};
    Texts arguments{shown, FORECAST_NOTE};
    auto const names = VariablesOf(model);
    arguments.insert(arguments.end(), names.begin(), names.end());
    arguments.push_back(zenqo::DEFAULT_STRING);
    AAD3_Forecast dialog(parent, arguments);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    CallText call("forecast");
    call.Name(shown).Name(std::to_string(dialog.GetPeriods()));
    return (dialog.GetDefaultExog() ? call : call.Options(dialog.GetExogValues())).Done();
}

Asked AskResponses(wxWindow* parent, Workspace&, std::string const&)
{
    // They belong to models of several equations in time, which are not estimated here.
    return NotReady(parent);
}

Asked AskPredict(wxWindow* parent, Workspace& workspace, std::string const& shown)
{
    auto const& model = *workspace.models.at(shown);
    if (!IsRegression(model))
        return NotReady(parent);
    auto const target = PredictedDataset(parent, workspace, model);
    if (target.empty())
        return {};
    Texts arguments{shown, target, "Prefix of the new variables:", "p_", PREDICT_NOTE};
    if (PredictionTypes(model, *workspace.datasets.at(target)) == 1)
    {
        AAD5a_Predict dialog(parent, arguments);
        return dialog.ShowModal() == wxID_OK ? FinishPrediction(dialog, shown, target, "") : Asked();
    }
    arguments.insert(arguments.end(), {"expected value", "P(y <= observed)"});
    AAD5b_Predict dialog(parent, arguments);
    return dialog.ShowModal() == wxID_OK ? FinishPrediction(dialog, shown, target, dialog.GetType()) : Asked();
}
} // namespace workbench
