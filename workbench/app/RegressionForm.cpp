#include "workbench/app/RegressionForm.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

#include "modelspec/PriorPicker.h"
#include "modelspec/VariablePicker_yX.h"
#include "pickers/AdditionalPicker1.h"
#include "pickers/GibbsPicker.h"
#include "workbench/app/CallText.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
namespace
{
constexpr int LIST_HEIGHT = 330;
constexpr int ID_DEFINE = 6022; ///< The prior picker's button "&Define".

/// A box around one panel, made by `make` from the box.
template <class Make>
auto AddBoxed(wxSizer* sizer, wxWindow* form, wxString const& title, Make make)
{
    auto* const box = new wxStaticBoxSizer(wxVERTICAL, form, title);
    auto* const panel = make(box->GetStaticBox());
    box->Add(panel, 0, wxEXPAND | wxALL, 5);
    sizer->Add(box, 0, wxEXPAND | wxBOTTOM, 10);
    return panel;
}

/// What is wrong with a field of the sampler's; empty if it is a whole number.
wxString CheckWhole(wxString const& text, char const* what)
{
    unsigned long long value = 0;
    return text.ToULongLong(&value) ? wxString() : wxString(what) + " must be a whole number.";
}
} // namespace

RegressionForm::RegressionForm(wxWindow* parent, DatasetMap* datasets, std::string const& name)
    : wxDialog(parent, wxID_ANY, "Linear Regression", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_variables(new VariablePicker_yX(this, datasets, LIST_HEIGHT)),
      m_prior(this, CoefficientPrior::OfError::Yes),
      m_end(this, BeginForm(this, MakeContent()), Wide(name),
            {[this]
             {
                 return m_variables->GetDepVar().empty() ? wxString("Choose a dependent variable.")
                                                         : wxString();
             },
             [this]
             {
                 return Coefficients().empty() ? wxString("Choose independent variables, or a constant.")
                                               : wxString();
             },
             [this] { return CheckWhole(m_sampler->GetSamples(), "The number of draws"); },
             [this]
             {
                 wxString message;
                 m_sampler->ValidateInput(message);
                 return message;
             }})
{
    Bind(wxEVT_BUTTON, &RegressionForm::OnDefinePrior, this, ID_DEFINE);
}

wxSizer* RegressionForm::MakeContent()
{
    auto* const side = new wxBoxSizer(wxVERTICAL);
    m_withConstant = AddBoxed(side, this, "Model",
                              [](wxWindow* box) { return new AdditionalPicker1(box, "Include a constant"); });
    m_withPrior = AddBoxed(side, this, "Prior of the Parameters", [](wxWindow* box) { return new PriorPicker(box); });
    m_sampler = AddBoxed(side, this, "Gibbs Sampler", [](wxWindow* box) { return new GibbsPicker(box); });
    auto* const content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(m_variables, 1, wxEXPAND);
    content->Add(side, 0, wxALL, 12);
    return content;
}

wxArrayString RegressionForm::Coefficients() const
{
    wxArrayString names = m_variables->GetIndVar();
    if (names[0].empty())
        names.clear();
    if (m_withConstant->GetState1())
        names.Insert(CONSTANT, 0);
    return names;
}

void RegressionForm::OnDefinePrior(wxCommandEvent&)
{
    if (Coefficients().empty())
        wxMessageBox("Choose variables or the constant first: each of them has a coefficient.", GetTitle(),
                     wxOK | wxICON_EXCLAMATION, this);
    else
        m_prior.Define(Coefficients());
}

std::string RegressionForm::Script()
{
    CallText call(Name(), "regress");
    call.Name(m_variables->GetDatasetName())
        .Text(Narrow(m_variables->GetDepVar()))
        .Text(Joined(m_variables->GetIndVar()));
    if (m_withConstant->GetState1())
        call.Option("constant", "true");
    if (!m_withPrior->GetDefaultOption())
        m_prior.AddOptions(call, Coefficients());
    // The texts are numbers that the sampler's fields have checked.
    auto const option = [&call](char const* key, wxString const& text) { call.Option(key, Narrow(text)); };
    option("draws", m_sampler->GetSamples());
    option("burnin", m_sampler->GetBurnin());
    option("chains", m_sampler->GetChains());
    option("thin", m_sampler->GetThin());
    option("seed", m_sampler->GetSeed());
    return call.Done();
}
} // namespace workbench
