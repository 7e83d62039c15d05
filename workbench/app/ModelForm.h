#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "workbench/app/PriorForm.h"

class AdditionalPicker1;
class LagsPicker;
class PriorPicker;
class VariablePicker_YXS;
class VariablePicker_yX;
class wxTextCtrl;

namespace workbench
{
/// A check that a form's input must pass: the words for the user if it doesn't, else empty.
using Check = std::function<wxString()>;

/// The lower part of a form: the field for the name of what it makes, and the buttons. OK makes
/// `checks` in their order; the first that fails is shown, and the form stays open.
class FormEnd
{
public:
    FormEnd(wxDialog* form, wxSizer* sizer, wxString const& name, std::vector<Check> checks);

    /// The name as it was typed, which is a legal one once the form was accepted.
    std::string Name() const;

private:
    void OnAccept(wxCommandEvent& event);

    wxDialog* m_form;
    wxTextCtrl* m_name;
    std::vector<Check> m_checks;
};

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
