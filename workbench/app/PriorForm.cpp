#include "workbench/app/PriorForm.h"

#include <array>
#include <charconv>
#include <cmath>

#include <wx/notebook.h>

#include "modelspec/PriorDialog.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/PriorGridSym.h"

namespace workbench
{
namespace
{
constexpr int ID_DEFAULT = 6023; ///< The dialog's button "&Default".
constexpr double PRECISION = 0.0001;

/// A number as the script language writes it, with all its digits.
std::string NumberText(double number)
{
    if (std::isnan(number))
        return "nan";
    if (std::isinf(number))
        return number < 0 ? "-inf" : "inf";
    std::array<char, 32> text;
    auto const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

std::string MatrixText(Eigen::MatrixXd const& matrix)
{
    std::string text = "[";
    for (Eigen::Index row = 0; row < matrix.rows(); ++row)
        for (Eigen::Index col = 0; col < matrix.cols(); ++col)
            text += (col > 0 ? ", " : row > 0 ? "; " : "") + NumberText(matrix(row, col));
    return text + "]";
}

Eigen::MatrixXd DefaultPrecision(std::size_t count)
{
    auto const size = static_cast<Eigen::Index>(count);
    return PRECISION * Eigen::MatrixXd::Identity(size, size);
}

Eigen::MatrixXd DefaultMean(std::size_t count)
{
    return Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(count), 1);
}
} // namespace

CoefficientPrior::CoefficientPrior(wxWindow* owner) : m_owner(owner) {}

void CoefficientPrior::Define(wxArrayString const& coefficients)
{
    ShowFor(coefficients);
    m_dialog->ShowModal();
}

std::string CoefficientPrior::Script(std::string const& name, wxArrayString const& coefficients)
{
    ShowFor(coefficients);
    return name + "_mean = " + MatrixText(m_mean->ReadFields()) + ";\n" + name
           + "_precision = " + MatrixText(m_precision->ReadFields()) + ";";
}

void CoefficientPrior::MakeDialog()
{
    wxString title = "Prior of the Coefficients";
    m_dialog = new PriorDialog(m_owner, title,
                               "The coefficients are normal a priori. The precision matrix is the inverse of "
                               "their covariance matrix.");
    auto* const pages = m_dialog->GetNotebook();
    m_mean = new PriorGrid(pages, {}, DefaultMean(0));
    m_precision = new PriorGridSym(pages, {}, DefaultPrecision(0));
    pages->AddPage(m_mean, "Mean", true);
    pages->AddPage(m_precision, "Precision");
    m_dialog->Bind(
        wxEVT_BUTTON, [this](wxCommandEvent&) { ShowDefault(); }, ID_DEFAULT);
}

void CoefficientPrior::ShowFor(wxArrayString const& coefficients)
{
    if (!m_dialog)
        MakeDialog();
    if (coefficients == m_coefficients)
        return;
    // The numbers of the coefficients that stay are kept.
    auto const mean = m_mean->ReadFields();
    auto const precision = m_precision->ReadFields();
    auto newMean = DefaultMean(coefficients.size());
    auto newPrecision = DefaultPrecision(coefficients.size());
    for (std::size_t i = 0; i < coefficients.size(); ++i)
    {
        int const oldI = m_coefficients.Index(coefficients[i]);
        if (oldI == wxNOT_FOUND)
            continue;
        auto const row = static_cast<Eigen::Index>(i);
        newMean(row, 0) = mean(oldI, 0);
        for (std::size_t j = 0; j < coefficients.size(); ++j)
            if (int const oldJ = m_coefficients.Index(coefficients[j]); oldJ != wxNOT_FOUND)
                newPrecision(row, static_cast<Eigen::Index>(j)) = precision(oldI, oldJ);
    }
    m_coefficients = coefficients;
    m_mean->RedrawGrid(coefficients, newMean);
    m_precision->RedrawGrid(coefficients, newPrecision);
}

void CoefficientPrior::ShowDefault()
{
    m_mean->RedrawGrid(m_coefficients, DefaultMean(m_coefficients.size()));
    m_precision->RedrawGrid(m_coefficients, DefaultPrecision(m_coefficients.size()));
}
} // namespace workbench
