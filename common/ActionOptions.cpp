#include "common/ActionOptions.h"

#include <algorithm>

#include <wx/radiobut.h>

#include "common/MatrixText.h"
#include "engine/Globals.h"

namespace zenqo
{
std::string SelectedOption(std::vector<wxRadioButton*> const& group,
                           std::vector<std::string> const& options)
{
    auto const selected = std::find_if(group.begin(), group.end(),
                                       [](wxRadioButton const* button) { return button->GetValue(); });
    if (selected == group.end())
        return "This is a Zenqo internal error!";
    return options[static_cast<std::size_t>(selected - group.begin())];
}

std::string TypeOption(std::vector<wxRadioButton*> const& types)
{
    return SelectedOption(types, {", \"type\"=1", ", \"type\"=2", ", \"type\"=3"});
}

std::string MatrixOption(std::string const& opening, Eigen::Ref<Eigen::MatrixXd const> const& values)
{
    return opening + MatrixText(values, Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatInput) + "]\n\t";
}
} // namespace zenqo
