#include "workbench/app/ModelForm.h"

#include <algorithm>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

#include "modelspec/LagsPicker.h"
#include "modelspec/PriorPicker.h"
#include "modelspec/VariablePicker_YXS.h"
#include "modelspec/VariablePicker_yX.h"
#include "pickers/AdditionalPicker1.h"
#include "workbench/app/CallText.h"

namespace workbench
{
namespace
{
constexpr int LIST_HEIGHT = 220;
constexpr int ID_DEFINE = 6022; ///< The prior picker's button "&Define".

/// `name = design(dataset, "dependent", "independent", [lags]);`
std::string DesignStatement(std::string const& name, std::string const& dataset, wxString const& dependent,
                            wxArrayString const& independent, std::vector<int> const& lags = {})
{
    CallText statement(name, "design");
    statement.Name(dataset).Text(Narrow(dependent)).Text(Joined(independent));
    return (lags.empty() ? statement : statement.Row(lags)).Done();
}

wxSizer* Around(wxWindow* window)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(window, 1, wxEXPAND);
    return sizer;
}
} // namespace

DesignForm::DesignForm(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Design Matrix", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_variables(new VariablePicker_yX(this, datasets, LIST_HEIGHT)),
      m_prior(this, CoefficientPrior::OfError::No),
      m_end(this,
            [this]
            {
                auto* const side = new wxBoxSizer(wxVERTICAL);
                side->Add(MakeLags(), 0, wxEXPAND | wxBOTTOM, 12);
                side->Add(MakePrior(), 0, wxEXPAND);
                auto* const content = new wxBoxSizer(wxHORIZONTAL);
                content->Add(m_variables, 1, wxEXPAND);
                content->Add(side, 0, wxALL, 12);
                return BeginForm(this, content);
            }(),
            "X",
            {[this]
             {
                 return m_variables->GetDepVar().empty() ? wxString("Choose a dependent variable.")
                                                         : wxString();
             },
             [this]
             {
                 bool const none = m_variables->GetIndVar()[0].empty() && Lags().empty();
                 return none ? wxString("Choose independent variables, or lags of the dependent one.")
                             : wxString();
             }})
{
}

wxSizer* DesignForm::MakeLags()
{
    auto* const box = new wxStaticBoxSizer(wxVERTICAL, this, "Lags");
    m_withLags = new AdditionalPicker1(box->GetStaticBox(), "Lags of the dependent variable");
    m_lags = new LagsPicker(box->GetStaticBox());
    m_lags->Disable();
    box->Add(m_withLags, 0, wxEXPAND);
    box->Add(m_lags, 0, wxALL, 8);
    m_withLags->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { m_lags->Enable(m_withLags->GetState1()); });
    return box;
}

wxSizer* DesignForm::MakePrior()
{
    auto* const box = new wxStaticBoxSizer(wxVERTICAL, this, "Prior of the Coefficients");
    m_withPrior = new PriorPicker(box->GetStaticBox());
    box->Add(m_withPrior, 0, wxEXPAND | wxALL, 8);
    Bind(wxEVT_BUTTON, &DesignForm::OnDefinePrior, this, ID_DEFINE);
    return box;
}

void DesignForm::OnDefinePrior(wxCommandEvent&)
{
    if (Coefficients().empty())
        wxMessageBox("Choose variables or lags first: each of them has a coefficient.", GetTitle(),
                     wxOK | wxICON_EXCLAMATION, this);
    else
        m_prior.Define(Coefficients());
}

std::vector<int> DesignForm::Lags() const
{
    std::vector<int> lags;
    if (m_withLags->GetState1())
        for (int const lag : m_lags->GetLags())
            if (std::find(lags.begin(), lags.end(), lag) == lags.end())
                lags.push_back(lag);
    return lags;
}

wxArrayString DesignForm::Coefficients() const
{
    wxArrayString names = m_variables->GetIndVar();
    if (names[0].empty())
        names.clear();
    for (int const lag : Lags())
        names.Add(wxString::Format("%s(%+d)", m_variables->GetDepVar(), -lag));
    return names;
}

std::string DesignForm::Script()
{
    std::string const script
        = DesignStatement(m_end.Name(), m_variables->GetDatasetName(), m_variables->GetDepVar(),
                          m_variables->GetIndVar(), Lags());
    bool const isDefault = m_withPrior->GetDefaultOption();
    return isDefault ? script : script + "\n" + m_prior.Script(m_end.Name(), Coefficients());
}

SystemForm::SystemForm(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "System of Equations", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_variables(new VariablePicker_YXS(this, datasets, LIST_HEIGHT)),
      m_end(this, BeginForm(this, Around(m_variables)), "X", {[this] { return FirstIncomplete(); }})
{
}

wxString SystemForm::FirstIncomplete() const
{
    auto const dependent = m_variables->GetDepVars();
    auto const independent = m_variables->GetIndVars();
    for (std::size_t i = 0; i < dependent.size(); ++i)
    {
        if (dependent[i].empty())
            return wxString::Format("Choose a dependent variable for equation %zu, or close its tab.", i + 1);
        if (independent[i][0].empty())
            return wxString::Format("Choose independent variables for equation %zu.", i + 1);
    }
    return wxString();
}

std::string SystemForm::Script() const
{
    auto const dependent = m_variables->GetDepVars();
    auto const independent = m_variables->GetIndVars();
    std::string script;
    for (std::size_t i = 0; i < dependent.size(); ++i)
        script += (i == 0 ? "" : "\n")
                  + DesignStatement(m_end.Name() + "_" + std::to_string(i + 1),
                                    m_variables->GetDatasetName(), dependent[i], independent[i]);
    return script;
}
} // namespace workbench
