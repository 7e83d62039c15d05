#include "workbench/app/CallText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace workbench
{
namespace
{
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
} // namespace

std::string MatrixText(Eigen::MatrixXd const& matrix)
{
    std::string text = "[";
    for (Eigen::Index row = 0; row < matrix.rows(); ++row)
        for (Eigen::Index col = 0; col < matrix.cols(); ++col)
            text += (col > 0 ? ", " : row > 0 ? "; " : "") + NumberText(matrix(row, col));
    return text + "]";
}

CallText& CallText::Option(std::string const& key, std::string const& value)
{
    return Add('"' + key + "\"=" + value);
}

CallText& CallText::Option(std::string const& key, double value) { return Option(key, NumberText(value)); }

CallText& CallText::Option(std::string const& key, Eigen::MatrixXd const& value)
{
    return Option(key, MatrixText(value));
}
} // namespace workbench
