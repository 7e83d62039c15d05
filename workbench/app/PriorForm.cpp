#include "workbench/app/PriorForm.h"

#include <wx/notebook.h>

#include "modelspec/PriorDialog.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/PriorGridSym.h"
#include "workbench/app/CallText.h"

namespace workbench
{
namespace
{
constexpr int ID_DEFAULT = 6023; ///< The dialog's button "&Default".
constexpr double PRECISION = 0.0001;

Eigen::MatrixXd DefaultPrecision(std::size_t count)
{
    auto const size = static_cast<Eigen::Index>(count);
    return PRECISION * Eigen::MatrixXd::Identity(size, size);
}

Eigen::MatrixXd DefaultMean(std::size_t count)
{
    return Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(count), 1);
}

wxArrayString ErrorNames()
{
    wxArrayString names;
    names.Add("shape");
    names.Add("rate");
    return names;
}

/// Says next to nothing: a mean of 1 and a variance of 1000.
Eigen::MatrixXd DefaultError() { return Eigen::MatrixXd::Constant(2, 1, 0.001); }
} // namespace

CoefficientPrior::CoefficientPrior(wxWindow* owner, OfError ofError)
    : m_owner(owner), m_ofError(ofError == OfError::Yes)
{
}

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

CallText& CoefficientPrior::AddOptions(CallText& call, wxArrayString const& coefficients)
{
    ShowFor(coefficients);
    call.Option("mean", m_mean->ReadFields()).Option("precision", m_precision->ReadFields());
    if (m_error)
    {
        auto const error = m_error->ReadFields();
        call.Option("shape", error(0, 0)).Option("rate", error(1, 0));
    }
    return call;
}

void CoefficientPrior::MakeDialog()
{
    wxString title = m_ofError ? "Prior of the Parameters" : "Prior of the Coefficients";
    wxString note = "The coefficients are normal a priori. The precision matrix is the inverse of their "
                    "covariance matrix.";
    if (m_ofError)
        note += " The precision of the error, which is the inverse of its variance, has a gamma distribution "
                "a priori; its mean is the shape divided by the rate.";
    m_dialog = new PriorDialog(m_owner, title, note);
    auto* const pages = m_dialog->GetNotebook();
    m_mean = new PriorGrid(pages, {}, DefaultMean(0));
    m_precision = new PriorGridSym(pages, {}, DefaultPrecision(0));
    pages->AddPage(m_mean, "Mean", true);
    pages->AddPage(m_precision, "Precision");
    if (m_ofError)
    {
        m_error = new PriorGrid(pages, ErrorNames(), DefaultError());
        pages->AddPage(m_error, "Error");
    }
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
    if (m_error)
        m_error->RedrawGrid(ErrorNames(), DefaultError());
}
} // namespace workbench
