#pragma once

#include "workbench/script/Output.h"

class ZenqoConsole;

namespace workbench
{
/// A script's output on the library's console, on the screen or on standard output.
class ConsoleOutput : public Output
{
public:
    explicit ConsoleOutput(ZenqoConsole& console) : m_console(console) {}

    void Code(std::string const& text) override;
    void Text(std::string const& text) override;
    void Matrix(Eigen::MatrixXd const& matrix) override;
    void Warning(std::string const& text) override;
    void Error(std::string const& text) override;
    void Line() override;
    int MaxLines() const override;

private:
    ZenqoConsole& m_console;
};
} // namespace workbench
