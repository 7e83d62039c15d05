#include <catch2/catch.hpp>

#include <iostream>
#include <locale>
#include <stdexcept>

#include <wx/dcscreen.h>
#include <wx/filename.h>
#include <wx/sizer.h>

#include "console/ConsoleFixture.h"
#include "support/ModalScript.h"

namespace
{
/// What a span must look like; an unset part is not checked.
struct Look
{
    wxColour text;
    wxColour background = wxColour(254, 254, 254);
    int size = 9;
    wxFontWeight weight = wxFONTWEIGHT_NORMAL;
    wxFontStyle style = wxFONTSTYLE_NORMAL;
};

void CheckLook(ConsoleOnStage const& on, long position, Look const& look)
{
    CAPTURE(position);
    wxTextAttr const attr = on.StyleAt(position);
    if (look.text.IsOk())
        CHECK(attr.GetTextColour() == look.text);
    CHECK(attr.GetBackgroundColour() == look.background);
    CHECK(attr.GetFont().GetPointSize() == look.size);
    CHECK(attr.GetFont().GetWeight() == look.weight);
    CHECK(attr.GetFont().GetStyle() == look.style);
    CHECK(attr.GetFont().IsFixedWidth());
}

void DropFiles(ConsoleOnStage& on, std::vector<wxString> const& paths)
{
    auto* const files = new wxString[paths.size()];
    std::copy(paths.begin(), paths.end(), files);
    wxDropFilesEvent event(wxEVT_DROP_FILES, static_cast<int>(paths.size()), files);
    on.text->GetEventHandler()->ProcessEvent(event);
}

/// A locale's numbers that throw when they are written.
class BrokenNumbers : public std::num_put<char>
{
    iter_type do_put(iter_type, std::ios_base&, char_type, double) const override
    {
        throw std::runtime_error("in the middle of a print");
    }
};

/// Collects the scripts that reach the frame.
struct ScriptCatcher
{
    explicit ScriptCatcher(wxFrame* frame)
    {
        frame->Bind(wxEVT_PRINT_AND_RUN, [this](wxCommandEvent& event) { scripts.push_back(event.Clone()); });
    }
    ~ScriptCatcher()
    {
        for (auto* event : scripts)
            delete event;
    }
    wxCommandEvent& At(std::size_t i) { return static_cast<wxCommandEvent&>(*scripts.at(i)); }
    std::vector<wxEvent*> scripts;
};
} // namespace

TEST_CASE("the console is a panel around a text control")
{
    ConsoleOnStage on;
    CHECK(on.console->GetWindowStyle() == (wxTAB_TRAVERSAL | wxBORDER_NONE));
    CHECK(on.console->GetBackgroundColour() == wxColour(254, 254, 254));
    CHECK(on.text->GetBackgroundColour() == wxColour(254, 254, 254));
    CHECK(on.text->GetFont().GetPointSize() == 9);
    CHECK(on.text->GetFont().IsFixedWidth());

    auto* const sizer = dynamic_cast<wxBoxSizer*>(on.console->GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == 1);
    wxSizerItem* const item = sizer->GetItem(std::size_t(0));
    CHECK(item->GetWindow() == on.text);
    CHECK(item->GetProportion() == 1);
    CHECK(item->GetFlag() == (wxEXPAND | wxLEFT));
    CHECK(item->GetBorder() == 10);
}

TEST_CASE("plain prints append their text in the default style")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("mean "));
    on.console->PrintOnConsole(42);
    on.console->PrintOnConsole(std::string(" "));
    on.console->PrintOnConsole(0.123456789);
    on.console->PrintOnConsole(wxString::FromUTF8(" \xCE\xB2"));
    on.console->PrintOnConsoleNewLine();
    CHECK(on.Value() == "mean 42 0.123457 \xCE\xB2\n");
    CheckLook(on, 1, {});
}

TEST_CASE("narrow text outside ASCII shows as written")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("\xCF\x83\xC2\xB2 = \xE2\x88\x9E, Z\xC3\xBCrich"));
    CHECK(on.Value() == "\xCF\x83\xC2\xB2 = \xE2\x88\x9E, Z\xC3\xBCrich");
    on.console->PrintOnConsoleError("caf\xC3\xA9");
    CHECK(on.Value().find("ERROR: caf\xC3\xA9\n") != std::string::npos);
}

TEST_CASE("coloured prints change what they name and nothing else")
{
    ConsoleOnStage on;
    wxColour const colour(10, 200, 30);
    on.console->PrintOnConsole(std::string("plain|"));
    on.console->PrintOnConsole(std::string("colour|"), colour);
    on.console->PrintOnConsoleBG("background|", colour);
    on.console->PrintOnConsoleBF("bold|", colour);
    on.console->PrintOnConsole(std::string("after"));
    CHECK(on.Value() == "plain|colour|background|bold|after");

    CheckLook(on, on.Find("colour|"), {colour});
    CheckLook(on, on.Find("background|"), {wxColour(0, 0, 0), colour});
    CheckLook(on, on.Find("bold|"), {colour, wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});
    // A style is put on the span alone: what comes after has the default style again.
    CHECK(on.StyleAt(on.Find("after")).GetTextColour() != colour);
    CheckLook(on, on.Find("after"), {});
}

TEST_CASE("an error stands behind a bold prefix and takes its message as it comes")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleError("no such dataset");
    CHECK(on.Value() == "\n\nERROR: no such dataset\n");
    wxColour const red(225, 0, 0);
    CheckLook(on, on.Find("ERROR"), {red, wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});
    CheckLook(on, on.Find("no such"), {red});
}

TEST_CASE("a warning stands behind a bold prefix and is broken into lines")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleWarning("slow mixing");
    CHECK(on.Value() == "\n\nWARNING: <slow mixing|true>\n");
    wxColour const green(10, 120, 10);
    CheckLook(on, on.Find("WARNING"), {green, wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});
    CheckLook(on, on.Find("slow"), {green});
}

TEST_CASE("an echoed command is styled with its prompt")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleCode("print(d);");
    CHECK(on.Value() == "\n >> print(d);\n\n");
    CheckLook(on, on.Find(">>"), {wxColour(0, 40, 0)});
    CheckLook(on, on.Find("print"), {wxColour(0, 40, 0)});
}

TEST_CASE("a model's heading is bold, its detail is shown in the long form")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleModel("Linear model");
    CHECK(on.Value() == "\n\nLinear model");
    CheckLook(on, 2, {wxColour(80, 5, 5), wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});

    on.console->ClearConsole();
    on.console->PrintOnConsoleModel("Model: ", "m1");
    CHECK(on.Value() == "\n\nModel: <<m1>>");
    CheckLook(on, on.Find("Model"), {wxColour(80, 5, 5), wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});
    CheckLook(on, on.Find("<<m1"), {wxColour(0, 80, 0), wxColour(254, 254, 254), 9, wxFONTWEIGHT_BOLD});
}

TEST_CASE("an outside program's words are blue and light")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleTerminal("Compiling model graph");
    CHECK(on.Value() == "Compiling model graph");
    CheckLook(on, 0, {wxColour(0, 0, 80), wxColour(254, 254, 254), 9, wxFONTWEIGHT_LIGHT});
}

TEST_CASE("a horizontal rule is 92 blanks with an attribute of its own")
{
    ConsoleOnStage on;
    on.console->PrintOnConsoleLine();
    on.console->PrintOnConsoleLine(wxColour(200, 0, 0));
    CHECK(on.Value() == std::string(92, ' ') + "\n" + std::string(92, ' ') + "\n");

    wxTextAttr const rule = on.StyleAt(5);
    CHECK(rule.GetFont().GetStrikethrough());
    CHECK(rule.GetFont().GetWeight() == wxFONTWEIGHT_BOLD);
    CHECK(rule.GetTextColour() == wxColour(30, 30, 180));
    CHECK(rule.GetBackgroundColour() == wxColour(253, 253, 254));
    wxTextAttr const coloured = on.StyleAt(100);
    CHECK(coloured.GetFont().GetStrikethrough());
    CHECK(coloured.GetTextColour() == wxColour(200, 0, 0));
    CHECK(coloured.GetBackgroundColour() == wxColour(253, 253, 254));
}

TEST_CASE("tab stops are eight characters apart, more of them than the control is wide")
{
    ConsoleOnStage on;
    on.text->SetSize(600, 400);
    on.console->OnSetTabStops();

    double const mmPerPixel = 25.4 / wxScreenDC().GetPPI().x;
    double const tabWidth = on.text->GetTextExtent(" ").x * 80.0 * mmPerPixel;
    wxTextAttr const attr = on.text->GetDefaultStyle();
    REQUIRE(attr.HasTabs());
    wxArrayInt const& tabs = attr.GetTabs();
    CHECK(tabs.GetCount() == static_cast<std::size_t>(std::lround(600 * 10.0 / mmPerPixel / tabWidth)));
    REQUIRE(tabs.GetCount() > 3);
    CHECK(tabs[0] == std::lround(tabWidth));
    CHECK(tabs[2] == std::lround(3 * tabWidth));
}

TEST_CASE("601 lines stay, of 602 exactly the first goes")
{
    ConsoleOnStage on;
    std::string text = "first";
    for (int i = 2; i <= 601; ++i)
        text += "\nline" + std::to_string(i);
    on.console->PrintOnConsole(text);
    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(0) == "first");

    on.console->PrintOnConsole(std::string("\nlast"));
    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(0) == "line2");
    CHECK(on.text->GetLineText(600) == "last");

    on.console->PrintOnConsole(std::string("\na\nb\nc"));
    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(0) == "line5");
    CHECK(on.text->GetLineText(600) == "c");
}

TEST_CASE("the trim counts characters, not bytes")
{
    ConsoleOnStage on;
    std::string text;
    for (int i = 1; i <= 700; ++i)
        text += "\xCE\xB2\xCE\xB2 " + std::to_string(i) + "\n";
    on.console->PrintOnConsole(text);
    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(0) == wxString::FromUTF8("\xCE\xB2\xCE\xB2 101"));
}

TEST_CASE("the control shows the last 600 rows of a long matrix")
{
    ConsoleOnStage on;
    Eigen::MatrixXd matrix(10000, 2);
    for (int i = 0; i < matrix.rows(); ++i)
        matrix.row(i) << i, -i;
    on.console->PrintOnConsole(matrix);
    // 600 rows, the empty line behind them, and the line on which the next print begins: the trim
    // leaves 601 of these 602.
    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(0) == " 9401\t-9401");
    CHECK(on.text->GetLineText(598) == " 9999\t-9999");
    CHECK(on.text->GetLineText(599) == "");
}

TEST_CASE("a matrix follows the engine's format of the moment")
{
    ConsoleOnStage on;
    auto const before = Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatConsole;
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatConsole
        = Eigen::IOFormat(3, Eigen::DontAlignCols, "; ", "|\n", "", "", "{", "}");
    on.console->PrintOnConsole(Eigen::MatrixXd((Eigen::MatrixXd(2, 2) << 1, 2.12345, 3, 4).finished()));
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatConsole = before;
    CHECK(on.Value() == "{1; 2.12|\n3; 4}\n\n");
}

TEST_CASE("an empty matrix prints its two line ends")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(Eigen::MatrixXd(0, 3));
    CHECK(on.Value() == "\n\n");
}

TEST_CASE("clearing empties the control")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("text"));
    on.console->ClearConsole();
    CHECK(on.Value() == "");
    on.console->ClearConsole();
    CHECK(on.Value() == "");
}

TEST_CASE("the banner names product and version on the end of the buffer")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("before\n"));
    on.console->PrintOnStartup();
    CHECK(on.Value()
          == "before\nZenqo \n           Zenqo Statistical Workbench\n           Running Version 2.5\n\n\n");
    CheckLook(on, on.Find("Zenqo "), {wxColour(96, 16, 16), wxColour(254, 254, 254), 41});
    CheckLook(on, on.Find("Zenqo Stat"),
              {wxColour(96, 16, 16), wxColour(254, 254, 254), 12, wxFONTWEIGHT_BOLD, wxFONTSTYLE_ITALIC});
    CheckLook(on, on.Find("Running"),
              {wxColour(0, 80, 0), wxColour(254, 254, 254), 12, wxFONTWEIGHT_BOLD, wxFONTSTYLE_ITALIC});
}

TEST_CASE("shutting down prints one dot in the control in either mode")
{
    bool const gui = GENERATE(true, false);
    CAPTURE(gui);
    ConsoleOnStage on(gui);
    on.console->PrintOnExit("ignored");
    on.console->PrintOnExit("ignored");
    CHECK(on.Value() == "..");
    CheckLook(on, 1, {wxColour(80, 10, 10), wxColour(254, 254, 254), 10, wxFONTWEIGHT_BOLD});
}

TEST_CASE("standard output is its own again after a print, also when the print throws")
{
    ConsoleOnStage on;
    auto* const before = std::cout.rdbuf();
    on.console->PrintOnConsoleError("x");
    CHECK(std::cout.rdbuf() == before);

    // A number that can't be written makes the stream throw in the middle of the print.
    std::locale const locale = std::cout.imbue(std::locale(std::cout.getloc(), new BrokenNumbers));
    std::cout.exceptions(std::ios_base::badbit);
    CHECK_THROWS_AS(on.console->PrintOnConsole(1.5), std::runtime_error);
    std::cout.exceptions(std::ios_base::goodbit);
    std::cout.imbue(locale);
    CHECK(std::cout.rdbuf() == before);
}

TEST_CASE("showing the last point is safe on a short and on a long text")
{
    ConsoleOnStage on;
    on.console->SetLastPointVisible();
    for (int i = 0; i < 300; ++i)
        on.console->PrintOnConsole(std::string("line\n"));
    on.text->ShowPosition(0);
    Pump(400);
    on.console->SetLastPointVisible();
    Pump(400);
    long column = 0;
    long line = 0;
    on.text->HitTest(wxPoint(5, on.text->GetClientSize().y - 10), &column, &line);
    CHECK(line >= 295);
}

TEST_CASE("a dropped workspace file becomes a load command")
{
    ConsoleOnStage on;
    ScriptCatcher catcher(on.stage.Frame());
    DropFiles(on, {"/data/my work/wages.2.zws"});
    REQUIRE(catcher.scripts.size() == 1);
    CHECK(catcher.At(0).GetString() == "load(\"/data/my work/wages.2.zws\");");
    CHECK(catcher.At(0).GetId() == 0);
}

TEST_CASE("a path goes into the load command unescaped")
{
    ConsoleOnStage on;
    ScriptCatcher catcher(on.stage.Frame());
    DropFiles(on, {"/data/say \"hi\"\\.zws"});
    REQUIRE(catcher.scripts.size() == 1);
    CHECK(catcher.At(0).GetString() == "load(\"/data/say \"hi\"\\.zws\");");
}

TEST_CASE("what is not one workspace file is refused in a fixed order")
{
    struct Case
    {
        std::vector<wxString> paths;
        wxString text;
    };
    wxString const folder = wxFileName::GetTempDir();
    wxString const folderText = "Zenqo' panes cannot accept folders dropped\nto them."
                                "\n\nDrag and drop only single files.";
    wxString const manyText = "Zenqo' panes cannot accept mutliple files\ndropped to them."
                              "\n\nDrag and drop only single files.";
    wxString const typeText = "Zenqo' main window can only accept Zenqo\nworkspace files (\".zws\").";
    auto const drop = GENERATE_COPY(values<Case>({{{folder}, folderText},
                                                  {{folder, "/data/a.zws"}, folderText},
                                                  {{"/data/a.zws", folder}, manyText},
                                                  {{"/data/a.zws", "/data/b.zws"}, manyText},
                                                  {{"/data/a.csv", "/data/b.csv"}, manyText},
                                                  {{"/data/a.ZWS"}, typeText},
                                                  {{"/data/a.csv"}, typeText},
                                                  {{"/data/zws"}, typeText},
                                                  {{"/data/a.zws.bak"}, typeText}}));
    CAPTURE(drop.paths);
    ConsoleOnStage on;
    ScriptCatcher catcher(on.stage.Frame());
    ModalScript script;
    script.Then(wxID_OK);
    DropFiles(on, drop.paths);

    CHECK(catcher.scripts.empty());
    REQUIRE(script.Shown().size() == 1);
    CHECK(script.Shown()[0].text == drop.text);
    CHECK(script.Shown()[0].caption == "Warning");
    CHECK(script.Shown()[0].style == (wxOK | wxICON_EXCLAMATION));
    CHECK(script.Shown()[0].parent == on.stage.Frame());
}

TEST_CASE("an empty drop is ignored")
{
    ConsoleOnStage on;
    ScriptCatcher catcher(on.stage.Frame());
    DropFiles(on, {});
    CHECK(catcher.scripts.empty());
}
