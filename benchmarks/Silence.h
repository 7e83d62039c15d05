#pragma once

#include <stdexcept>
#include <string>

#include "workbench/script/Output.h"

namespace benchmarks
{
/// Takes what a script prints, and shows it to nobody.
class Silence : public workbench::Output
{
public:
    void Code(std::string const&) override {}
    void Text(std::string const&) override {}
    void Terminal(std::string const&) override {}
    void Matrix(Eigen::MatrixXd const&) override {}
    void Warning(std::string const&) override {}
    void Error(std::string const& text) override { throw std::runtime_error(text); }
    void Line() override {}
};
} // namespace benchmarks
