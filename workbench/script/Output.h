#pragma once

#include <memory>
#include <string>

#include <Eigen/Core>

namespace workbench
{
struct Figure;

/// Where a script's output goes: the console of a window, or the standard output.
class Output
{
public:
    virtual ~Output() = default;

    /// Echoes the source of a statement before it runs.
    virtual void Code(std::string const& text) = 0;

    /// Plain text, line ends included.
    virtual void Text(std::string const& text) = 0;

    /// What a program of others writes, line ends included.
    virtual void Terminal(std::string const& text) = 0;

    virtual void Matrix(Eigen::MatrixXd const& matrix) = 0;
    virtual void Warning(std::string const& text) = 0;
    virtual void Error(std::string const& text) = 0;

    /// A horizontal rule.
    virtual void Line() = 0;

    /// Whether there is a window that shows figures.
    virtual bool ShowsFigures() const { return false; }

    /// Shows a figure, which is also handed drawn, as the bytes of a PNG picture.
    virtual void ShowFigure(std::shared_ptr<Figure const> const&, std::string const&) {}

    /// The most lines that are worth printing, since older ones are dropped; 0 for no limit.
    virtual int MaxLines() const { return 0; }
};
} // namespace workbench
