#pragma once

#include <string>

#include <Eigen/Core>
#include <wx/arrstr.h>

class PriorDialog;
class PriorGrid;
class PriorGridSym;
class wxWindow;

namespace workbench
{
class CallText;

/// The normal prior of a model's coefficients, which the user defines in a dialog: the mean, and the
/// precision matrix. By default the mean is zero and the precision 0.0001 for each coefficient. If the
/// model has one error, the gamma prior of the error's precision can be there, too: its shape and its
/// rate, by default 0.001 each.
///
/// What was typed is kept between openings, also while coefficients come and go.
class CoefficientPrior
{
public:
    /// Whether the dialog has a page for the precision of the error.
    enum class OfError
    {
        No,
        Yes
    };

    /// `owner` is the window over which the dialog is shown, and which owns it.
    CoefficientPrior(wxWindow* owner, OfError ofError);

    /// Lets the user define the prior of `coefficients`.
    void Define(wxArrayString const& coefficients);

    /// Two statements that make the matrices NAME_mean and NAME_precision for `coefficients`.
    std::string Script(std::string const& name, wxArrayString const& coefficients);

    /// Adds the options "mean" and "precision", with a prior of the error "shape" and "rate".
    CallText& AddOptions(CallText& call, wxArrayString const& coefficients);

private:
    void MakeDialog();
    void ShowFor(wxArrayString const& coefficients);
    void ShowDefault();

    wxWindow* m_owner;
    bool m_ofError;
    PriorDialog* m_dialog = nullptr; ///< Made when it is first needed.
    PriorGrid* m_mean = nullptr;
    PriorGridSym* m_precision = nullptr;
    PriorGrid* m_error = nullptr; ///< Null without a page for it.
    wxArrayString m_coefficients; ///< Those that the grids show.
};
} // namespace workbench
