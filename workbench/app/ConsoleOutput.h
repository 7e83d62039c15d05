#pragma once

#include <functional>
#include <memory>
#include <string>

#include "workbench/script/Output.h"

class ZenqoConsole;

namespace workbench
{
/// A script's output on the library's console, on the screen or on standard output.
class ConsoleOutput : public Output
{
public:
    /// Is handed a figure, and its drawing as the bytes of a PNG picture.
    using FigureViewer = std::function<void(std::shared_ptr<Figure const> const&, std::string const&)>;

    explicit ConsoleOutput(ZenqoConsole& console) : m_console(console) {}

    void Code(std::string const& text) override;
    void Text(std::string const& text) override;
    void Terminal(std::string const& text) override;
    void Matrix(Eigen::MatrixXd const& matrix) override;
    void Warning(std::string const& text) override;
    void Error(std::string const& text) override;
    void Line() override;
    bool ShowsFigures() const override { return m_viewer != nullptr; }
    void ShowFigure(std::shared_ptr<Figure const> const& figure, std::string const& picture) override;
    int MaxLines() const override;

    /// Where figures are shown from now on.
    void SetFigureViewer(FigureViewer viewer) { m_viewer = std::move(viewer); }

private:
    ZenqoConsole& m_console;
    FigureViewer m_viewer;
};
} // namespace workbench
