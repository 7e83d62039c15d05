#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>

class wxRadioButton;

/// The pieces of script that the dialogs about an action on an estimated model give to the host, which
/// appends them behind the fixed arguments of a command.
namespace zenqo
{
/// The entry of `options` that belongs to the first selected button of `group`. A group with nothing
/// selected is broken, and the text says so.
std::string SelectedOption(std::vector<wxRadioButton*> const& group,
                           std::vector<std::string> const& options);

/// Which of `types` is selected, counted from 1: `, "type"=1`.
std::string TypeOption(std::vector<wxRadioButton*> const& types);

/// `values` in the engine's format for input, between `opening` and the end of a list in brackets.
std::string MatrixOption(std::string const& opening, Eigen::Ref<Eigen::MatrixXd const> const& values);
} // namespace zenqo
