#pragma once

#include <string>
#include <vector>

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "workbench/app/FormEnd.h"
#include "workbench/app/PriorForm.h"

class AdditionalPicker1;
class LagsPicker;
class PriorPicker;
class VariablePicker_YXS;
class VariablePicker_yX;

namespace workbench
{
/// The form in which the variables of one equation are chosen, the lags of its dependent variable, and
/// the prior of its coefficients.
class DesignForm : public wxDialog
{
public:
    /// `datasets` outlives the form and is not empty.
    DesignForm(wxWindow* parent, DatasetMap* datasets);

    /// The statement that makes the matrix, and those that make the matrices of a custom prior.
    std::string Script();

private:
    wxSizer* MakeLags();
    wxSizer* MakePrior();
    std::vector<int> Lags() const;
    wxArrayString Coefficients() const;
    void OnDefinePrior(wxCommandEvent& event);

    VariablePicker_yX* m_variables;
    AdditionalPicker1* m_withLags;
    LagsPicker* m_lags;
    PriorPicker* m_withPrior;
    CoefficientPrior m_prior;
    FormEnd m_end;
};

/// The form in which the variables of a system of equations are chosen.
class SystemForm : public wxDialog
{
public:
    /// `datasets` outlives the form and is not empty.
    SystemForm(wxWindow* parent, DatasetMap* datasets);

    /// The statements that make one matrix for each equation, numbered behind the name.
    std::string Script() const;

private:
    wxString FirstIncomplete() const;

    VariablePicker_YXS* m_variables;
    FormEnd m_end;
};
} // namespace workbench
