#include "common/MarginalEffects.h"

#include <tuple>
#include <utility>

#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "common/ActionOptions.h"

namespace zenqo
{
MarginalEffects::MarginalEffects(wxDialog* dialog, std::string const& model,
                                 std::vector<std::string> names)
    : m_sizer(BeginAction(dialog, "Calculating marginal effects for model \"" + ToWide(model) + "\".",
                          SentenceWidth::WIDE)),
      m_point(Eigen::VectorXd::Zero(static_cast<Eigen::Index>(names.size()))), m_names(std::move(names))
{
    auto* const box = AddLabelledBox(
        dialog, m_sizer, "Point at which marginal effects will be calculated", 0, wxALL, 7);
    auto* const grid = new wxFlexGridSizer(2, 2, 0, 0);
    grid->SetFlexibleDirection(wxVERTICAL);
    auto const add = [&](wxString const& label, int gaps)
    {
        auto* const button = new wxRadioButton(box->GetStaticBox(), wxID_ANY, label);
        grid->Add(button, 0, gaps, 5);
        return button;
    };
    m_mean = add("mean of data", wxLEFT | wxTOP);
    m_each = add("each data point", wxRIGHT | wxTOP);
    m_median = add("median of data", wxLEFT | wxBOTTOM);
    std::tie(m_custom, m_define) = AddDefineRow(box, grid, "user-defined point");
    m_mean->SetValue(true);
    box->Add(grid, 1, wxEXPAND, 5);
}

std::string MarginalEffects::PointOption() const
{
    return SelectedOption({m_mean, m_each, m_median, m_custom},
                          {", \"point\"=\"mean\"", ", \"point\"=\"x_i\"", ", \"point\"=\"median\"",
                           MatrixOption(",\n\t\"point\"=[", m_point.transpose())});
}
} // namespace zenqo
