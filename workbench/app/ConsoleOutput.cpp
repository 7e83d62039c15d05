#include "workbench/app/ConsoleOutput.h"

#include "console/ZenqoConsole.h"
#include "engine/Globals.h"

namespace workbench
{
void ConsoleOutput::Code(std::string const& text) { m_console.PrintOnConsoleCode(text); }

void ConsoleOutput::Text(std::string const& text) { m_console.PrintOnConsole(text); }

void ConsoleOutput::Terminal(std::string const& text) { m_console.PrintOnConsoleTerminal(text); }

void ConsoleOutput::Matrix(Eigen::MatrixXd const& matrix) { m_console.PrintOnConsole(matrix); }

void ConsoleOutput::Warning(std::string const& text) { m_console.PrintOnConsoleWarning(text); }

void ConsoleOutput::Error(std::string const& text) { m_console.PrintOnConsoleError(text); }

void ConsoleOutput::Line() { m_console.PrintOnConsoleLine(); }

void ConsoleOutput::ShowFigure(std::shared_ptr<Figure const> const& figure, std::string const& picture)
{
    m_viewer(figure, picture);
}

int ConsoleOutput::MaxLines() const
{
    // The console on the screen keeps 600 lines; standard output takes all.
    return Zenqo_SYSTEM_NAMESPACE::RUN_GUI ? 600 : 0;
}
} // namespace workbench
