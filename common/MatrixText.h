#pragma once

#include <string>

#include <Eigen/Core>

namespace zenqo
{
/// The text that Eigen's stream printing writes of `matrix` with `format` into a stream of default
/// settings, to the letter.
///
/// Eigen makes a stream for each coefficient to find the width of the columns, which takes longer
/// than a text control needs to show the text.
std::string MatrixText(Eigen::Ref<Eigen::MatrixXd const> const& matrix, Eigen::IOFormat const& format);
} // namespace zenqo
