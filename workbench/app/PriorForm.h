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
/// The normal prior of a model's coefficients, which the user defines in a dialog: the mean, and the
/// precision matrix. By default the mean is zero and the precision 0.0001 for each coefficient.
///
/// What was typed is kept between openings, also while coefficients come and go.
class CoefficientPrior
{
public:
    /// `owner` is the window over which the dialog is shown, and which owns it.
    explicit CoefficientPrior(wxWindow* owner);

    /// Lets the user define the prior of `coefficients`.
    void Define(wxArrayString const& coefficients);

    /// Two statements that make the matrices NAME_mean and NAME_precision for `coefficients`.
    std::string Script(std::string const& name, wxArrayString const& coefficients);

private:
    void MakeDialog();
    void ShowFor(wxArrayString const& coefficients);
    void ShowDefault();

    wxWindow* m_owner;
    PriorDialog* m_dialog = nullptr; ///< Made when it is first needed.
    PriorGrid* m_mean = nullptr;
    PriorGridSym* m_precision = nullptr;
    wxArrayString m_coefficients; ///< Those that the grids show.
};
} // namespace workbench
