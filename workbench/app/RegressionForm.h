#pragma once

#include <string>

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "workbench/app/FormEnd.h"
#include "workbench/app/PriorForm.h"

class AdditionalPicker1;
class GibbsPicker;
class PriorPicker;
class VariablePicker_yX;

namespace workbench
{
/// The form in which a linear regression is specified: its variables, its prior, and how it is sampled.
class RegressionForm : public wxDialog
{
public:
    /// `datasets` outlives the form and is not empty. `name` is proposed for the model.
    RegressionForm(wxWindow* parent, DatasetMap* datasets, std::string const& name);

    /// The name of the model, a legal one once the form was accepted.
    std::string Name() const { return m_end.Name(); }

    /// The statement that estimates the model.
    std::string Script();

private:
    wxSizer* MakeContent();
    wxArrayString Coefficients() const;
    void OnDefinePrior(wxCommandEvent& event);

    VariablePicker_yX* m_variables;
    AdditionalPicker1* m_withConstant;
    PriorPicker* m_withPrior;
    CoefficientPrior m_prior;
    GibbsPicker* m_sampler;
    FormEnd m_end;
};
} // namespace workbench
