#include <cstdio>

#include <wx/frame.h>

#include "console/ZenqoConsole.h"
#include "gallery/Entry.h"
#include "gallery/Shelf.h"

namespace
{
wxSize const CONSOLE_SIZE(820, 440);

void PrintRegression(ZenqoConsole& console, Shelf& shelf)
{
    console.PrintOnConsoleCode("employment = lm(TOTEMP ~ constant GNPDEFL GNP UNEMP ARMED POP YEAR);");

    auto const posterior = Regress(*shelf.datasets.at("longley"), "TOTEMP");
    console.PrintOnConsoleModel("Linear model ", "normal errors, flat prior, 16 observations");
    console.PrintOnConsole(std::string("\n"));
    console.PrintOnConsoleLine();
    // Cells of one width between tabs: straight on the screen, and a table when copied.
    char line[120];
    std::snprintf(line, sizeof line, "%-12s\t%12s\t%12s\n", "", "Mean", "Std. dev.");
    console.PrintOnConsoleBF(line, wxColour(0, 0, 0));
    console.PrintOnConsoleLine();
    for (std::size_t i = 0; i < posterior.names.size(); ++i)
    {
        auto const row = static_cast<Eigen::Index>(i);
        std::snprintf(line, sizeof line, "%-12s\t%12.6g\t%12.6g\n", posterior.names[i].c_str(),
                      posterior.moments(row, 0), posterior.moments(row, 1));
        console.PrintOnConsole(std::string(line));
    }
    console.PrintOnConsoleLine(wxColour(200, 0, 0));
    std::snprintf(line, sizeof line, "sigma = %.6g\n", posterior.sigma);
    console.PrintOnConsole(std::string(line), wxColour(80, 80, 80));
}

wxTopLevelWindow* Results(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const console = new ZenqoConsole(frame);
            console->PrintOnStartup();
            PrintRegression(*console, shelf);
            return console;
        },
        CONSOLE_SIZE);
}

wxTopLevelWindow* Messages(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const console = new ZenqoConsole(frame);
            console->PrintOnConsoleCode("print(weights);");
            console->PrintOnConsole(*shelf.matrices.at("weights"));
            console->PrintOnConsoleModel("Probit model");
            console->PrintOnConsoleWarning("The variable AM takes the values 0 and 1 only, but one of its "
                                           "values was observed fewer than fifteen times in this dataset.");
            console->PrintOnConsoleError("There is no variable called \"weigth\" in the dataset \"cars\".");
            console->PrintOnConsole(std::string("A plain line, a number: "));
            console->PrintOnConsole(1.0 / 3.0);
            console->PrintOnConsoleNewLine();
            console->PrintOnConsole(std::string("in colour, "), wxColour(0, 0, 200));
            console->PrintOnConsoleBG("on a ground of its own, ", wxColour(255, 240, 150));
            console->PrintOnConsoleBF("and bold", wxColour(120, 0, 120));
            console->PrintOnConsoleTerminal("\nwhat an outside program says\n");
            console->PrintOnExit("");
            console->PrintOnExit("");
            return console;
        },
        wxSize(CONSOLE_SIZE.x, 310));
}
} // namespace

std::vector<Entry> ConsoleEntries()
{
    return {{"console", "ZenqoConsole", Results}, {"console", "ZenqoConsole, messages", Messages}};
}
