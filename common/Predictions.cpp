#include "common/Predictions.h"

#include <tuple>

#include <wx/textctrl.h>

#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "common/ActionOptions.h"

namespace zenqo
{
namespace
{
/// The engine's own prefix, which it need not be told.
constexpr char DEFAULT_PREFIX[] = "p_";
} // namespace

wxSizer* BeginPredictions(wxDialog* dialog, std::vector<std::string> const& arguments)
{
    return BeginAction(dialog,
                       "Generating predictions for model \"" + ToWide(arguments[0])
                           + "\" and storing them in dataset \"" + ToWide(arguments[1]) + "\".",
                       SentenceWidth::WIDE);
}

Predictions::Predictions(wxDialog* dialog, wxSizer* sizer, std::vector<std::string> const& arguments)
{
    auto* const box
        = AddLabelledBox(dialog, sizer, "Parameter values to be used for generating predictions", 0,
                         wxEXPAND | wxALL, 7);
    auto* const grid = new wxFlexGridSizer(2, 1, 0, 0);
    grid->SetFlexibleDirection(wxVERTICAL);
    std::tie(m_mean, m_draws)
        = AddRadioPair(box, grid, "posterior mean of the parameters", "each draw from the posterior");
    m_prefix = AddNameRow(dialog, sizer, arguments[2], arguments[3]);
}

void Predictions::Accept(wxDialog* dialog, wxCommandEvent& event) const
{
    auto const complaint = ComplainOfName(
        m_prefix->GetValue(), "Please provide a prefix for the new variable names.",
        "The variable name prefix must not contain\nspaces or special characters and it must "
        "not\nbegin with a number.");
    AcceptUnless(complaint, dialog, event);
}

std::string Predictions::PrefixOption() const
{
    auto const prefix = ToNarrow(m_prefix->GetValue());
    if (prefix == DEFAULT_PREFIX)
        return std::string();
    return ", \"prefix\" = " + prefix;
}

std::string Predictions::ParameterOption() const
{
    return SelectedOption({m_mean, m_draws}, {"", ", \"stats\"=true"});
}
} // namespace zenqo
