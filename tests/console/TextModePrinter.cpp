// Prints with a console in text mode, every operation once, between lines that name the operation.

#include <clocale>
#include <functional>
#include <iostream>
#include <utility>
#include <vector>

#include <wx/app.h>
#include <wx/frame.h>

#include "console/ZenqoConsole.h"
#include "engine/Engine.h"

namespace
{
void PrintAll(ZenqoConsole& console)
{
    wxColour const colour(1, 2, 3);
    Eigen::MatrixXd matrix(700, 1);
    for (int i = 0; i < matrix.rows(); ++i)
        matrix(i, 0) = i;

    std::vector<std::pair<char const*, std::function<void()>>> const operations{
        {"string", [&] { console.PrintOnConsole(std::string("b\xC3\xA9ta")); }},
        {"int", [&] { console.PrintOnConsole(-7); }},
        {"double", [&] { console.PrintOnConsole(1234567.0); }},
        {"wide", [&] { console.PrintOnConsole(wxString::FromUTF8("b\xC3\xA9ta")); }},
        {"newline", [&] { console.PrintOnConsoleNewLine(); }},
        {"colour", [&] { console.PrintOnConsole(std::string("c"), colour); }},
        {"background", [&] { console.PrintOnConsoleBG("bg", colour); }},
        {"bold", [&] { console.PrintOnConsoleBF("bf", colour); }},
        {"error", [&] { console.PrintOnConsoleError("e"); }},
        {"warning", [&] { console.PrintOnConsoleWarning("w"); }},
        {"code", [&] { console.PrintOnConsoleCode("print(d);"); }},
        {"rule", [&] { console.PrintOnConsoleLine(); }},
        {"coloured rule", [&] { console.PrintOnConsoleLine(colour); }},
        {"model", [&] { console.PrintOnConsoleModel("m"); }},
        {"model with detail", [&] { console.PrintOnConsoleModel("t:", "d"); }},
        {"terminal", [&] { console.PrintOnConsoleTerminal("t"); }},
        {"clear", [&] { console.ClearConsole(); }},
        {"last point", [&] { console.SetLastPointVisible(); }},
        {"exit", [&] { console.PrintOnExit("x"); }},
        {"startup", [&] { console.PrintOnStartup(); }},
        {"matrix", [&] { console.PrintOnConsole(matrix); }},
    };
    for (auto const& [name, print] : operations)
    {
        std::cout << "@" << name << "\n";
        print();
        std::cout << "\n";
    }
}

class PrinterApp : public wxApp
{
    bool OnInit() override
    {
        std::setlocale(LC_ALL, "");
        std::setlocale(LC_NUMERIC, "C");
        Zenqo_SYSTEM_NAMESPACE::RUN_GUI = false;
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "hidden");
        PrintAll(*new ZenqoConsole(frame));
        frame->Destroy();
        return false;
    }
};
} // namespace

wxIMPLEMENT_APP(PrinterApp);
