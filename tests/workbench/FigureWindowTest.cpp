#include <catch2/catch.hpp>

#include <cstdlib>
#include <filesystem>

#include <wx/app.h>
#include <wx/button.h>
#include <wx/image.h>
#include <wx/listbox.h>
#include <wx/menu.h>
#include <wx/stattext.h>

#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "workbench/FakeProgram.h"
#include "workbench/Scratch.h"
#include "workbench/app/FigureView.h"
#include "workbench/app/FigureWindow.h"
#include "workbench/app/MainFrame.h"

using workbench::FigureView;
using workbench::FigureWindow;
using workbench::MainFrame;

namespace
{
constexpr int PATIENCE_MS = 30000;

/// A workbench with a dataset, and its window of figures.
struct Window
{
    Window() : frame(new MainFrame("."))
    {
        auto const data = scratch.Write("d.csv", "x,y\n1,2\n2,1\n3,4\n5,4\n4,6\n");
        frame->Show();
        Pump(200);
        REQUIRE(frame->Run("d = import(\"" + data + "\", \",\");"));
        figures = Find<FigureWindow>(frame);
        REQUIRE(figures);
        list = Find<wxListBox>(figures);
        view = Find<FigureView>(figures);
        message = Find<wxStaticText>(figures);
    }

    ~Window()
    {
        frame->Destroy();
        Pump(20);
    }

    /// Runs a plot and waits until it is drawn for the window.
    bool Plot(std::string const& variables, std::string const& type)
    {
        bool const done = frame->Run("plot(d, \"" + variables + "\", \"" + type + "\");");
        Rest();
        return done;
    }

    void Rest()
    {
        // Sizes come from the window manager, some time after they were asked for.
        Pump(250);
        CHECK(PumpUntil([this] { return !view->IsStale(); }, PATIENCE_MS));
        Pump(50);
    }

    void ClickButton(std::size_t n) { Click(Find<wxButton>(figures, n)); }

    bool Says(wxString const& text)
    {
        return PumpUntil([&] { return message->GetLabelText() == text; }, PATIENCE_MS);
    }

    Scratch scratch;
    MainFrame* frame;
    FigureWindow* figures;
    wxListBox* list;
    FigureView* view;
    wxStaticText* message;
};

/// What the clipboard holds as a PNG picture, read by another process while this one serves it.
wxImage ClipboardPicture(Scratch const& scratch)
{
    auto const file = scratch.Path("clipboard.png");
    auto const done = scratch.Path("done");
    std::string const command = "(timeout 20 xclip -selection clipboard -t image/png -o > " + file
                                + " 2>&1; touch " + done + ") &";
    REQUIRE(std::system(command.c_str()) == 0);
    REQUIRE(PumpUntil([&] { return std::filesystem::exists(done); }, PATIENCE_MS));
    return wxImage(file, wxBITMAP_TYPE_PNG);
}

/// The entry of the View menu.
wxMenuItem* FiguresEntry(MainFrame* frame)
{
    wxMenuBar* const bar = frame->GetMenuBar();
    wxMenu* const menu = bar->GetMenu(static_cast<std::size_t>(bar->FindMenu("View")));
    menu->UpdateUI();
    return menu->FindItem(menu->FindItem("Figures"));
}
} // namespace

TEST_CASE("a plot opens the window and is drawn as large as it shows")
{
    Window window;
    CHECK_FALSE(window.figures->IsShown());
    CHECK_FALSE(FiguresEntry(window.frame)->IsEnabled());
    REQUIRE(window.Plot("x", "histogram"));
    CHECK(window.figures->IsShown());
    CHECK(window.figures->GetTitle() == "d: histogram of x - Figures - Zenqo Workbench");
    CHECK(window.list->GetString(0) == "1  d: histogram of x");
    CHECK(window.view->GetPicture().GetSize() == window.view->GetClientSize());
    CHECK(window.message->GetLabelText().empty());
    CHECK(FiguresEntry(window.frame)->IsEnabled());
    wxImage const photograph = Photograph(window.figures);
    Keep(photograph, "figure-window");
    CHECK(photograph.CountColours() > 100);
}

TEST_CASE("the list shows any figure of the session again, by real clicks")
{
    Window window;
    REQUIRE(window.Plot("x", "histogram"));
    REQUIRE(window.Plot("x y", "scatter"));
    REQUIRE(window.Plot("y", "correlogram"));
    REQUIRE(window.list->GetCount() == 3);
    CHECK(window.list->GetSelection() == 2);
    wxImage const third = window.view->GetPicture().ConvertToImage();
    ClickEntry(window.list, 1);
    window.Rest();
    CHECK(window.figures->GetTitle() == "d: scatter of x against y - Figures - Zenqo Workbench");
    wxImage const second = window.view->GetPicture().ConvertToImage();
    REQUIRE(second.GetSize() == third.GetSize());
    CHECK(std::memcmp(second.GetData(), third.GetData(), 3u * second.GetWidth() * second.GetHeight()) != 0);
    Press(WXK_DOWN);
    window.Rest();
    CHECK(window.figures->GetTitle() == "d: correlogram of y - Figures - Zenqo Workbench");
}

TEST_CASE("the keys choose among the figures as soon as they are shown")
{
    Window window;
    REQUIRE(window.Plot("x", "histogram"));
    REQUIRE(window.Plot("y", "histogram"));
    REQUIRE(window.Plot("x y", "histogram"));
    REQUIRE(PumpUntil([&] { return window.figures->IsActive(); }, PATIENCE_MS));
    Press(WXK_UP);
    CHECK(window.list->GetSelection() == 1);
    Press(WXK_UP);
    CHECK(window.list->GetSelection() == 0);
    window.Rest();
    CHECK(window.figures->GetTitle() == "d: histogram of x - Figures - Zenqo Workbench");
}

TEST_CASE("a figure is drawn anew when the window gets another size")
{
    Window window;
    REQUIRE(window.Plot("x", "density"));
    wxSize const before = window.view->GetClientSize();
    window.figures->SetSize(700, 420);
    REQUIRE(PumpUntil([&] { return window.view->GetClientSize() != before; }, PATIENCE_MS));
    window.Rest();
    CHECK(window.view->GetPicture().GetSize() == window.view->GetClientSize());
}

TEST_CASE("the copied picture is what another program gets of the clipboard")
{
    Window window;
    REQUIRE(window.Plot("x y", "lines"));
    window.ClickButton(0);
    CHECK(window.Says("The picture is on the clipboard."));
    wxImage const pasted = ClipboardPicture(window.scratch);
    REQUIRE(pasted.IsOk());
    wxImage const shown = window.view->GetPicture().ConvertToImage();
    REQUIRE(pasted.GetSize() == shown.GetSize());
    CHECK(std::memcmp(pasted.GetData(), shown.GetData(), 3u * shown.GetWidth() * shown.GetHeight()) == 0);
    CHECK(pasted.CountColours() > 20);
}

namespace
{
wxSize const SIZE(400, 250);
} // namespace

TEST_CASE("a figure is exported as PNG, SVG and PDF of the given size, though its dataset is gone")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    REQUIRE(window.frame->Run("clear(d);"));
    auto const saved = [&](std::string const& name)
    {
        auto const path = window.scratch.Path(name);
        window.figures->ExportTo(wxString(path), wxSize(500, 300));
        CHECK(window.Says("The figure is written to " + path + "."));
        return ReadFile(path);
    };
    saved("f.png");
    CHECK(wxImage(window.scratch.Path("f.png"), wxBITMAP_TYPE_PNG).GetSize() == wxSize(500, 300));
    auto const svg = saved("f.svg");
    CHECK(svg.find("<text>Observation</text>") != std::string::npos);
    CHECK(svg.find("width=\"500\" height=\"300\"") != std::string::npos);
    auto const pdf = saved("f.pdf");
    CHECK(pdf.compare(0, 5, "%PDF-") == 0);
    CHECK(pdf.find("/MediaBox [ 0 0 400 240 ]") != std::string::npos);
}

TEST_CASE("a name without an ending gets one, and an existing file is replaced after a question only")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    wxString const path = window.scratch.Path("f");
    auto const file = window.scratch.Write("f.png", "old");
    ModalScript script;
    script.Then(wxID_NO).Then(wxID_YES).Then(wxID_NO);
    window.figures->ExportTo(path, SIZE);
    CHECK(script.Shown().at(0).text == "f.png exists. Replace it?");
    CHECK(script.Shown().at(0).caption == "Export Figure");
    CHECK(script.Shown().at(0).style == (wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION));
    CHECK(script.Shown().at(0).parent == window.figures);
    CHECK(ReadFile(file) == "old");
    window.figures->ExportTo(path, SIZE);
    CHECK(window.Says("The figure is written to " + file + "."));
    CHECK(ReadFile(file).compare(1, 3, "PNG") == 0);
    window.figures->ExportTo(wxString(file), SIZE);
    CHECK(script.Shown().size() == 3);
}

TEST_CASE("the button and its key ask for a file, and nothing is written if there is none")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    int const files = window.scratch.CountFiles();
    ModalScript script;
    script.Then(wxID_CANCEL).Then(wxID_CANCEL);
    window.ClickButton(1);
    Press('E', wxMOD_CONTROL);
    REQUIRE(PumpUntil([&] { return script.Shown().size() == 2; }, PATIENCE_MS));
    CHECK(script.Shown()[1].parent == window.figures);
    CHECK(window.scratch.CountFiles() == files);
    CHECK(window.message->GetLabelText().empty());
}

TEST_CASE("an export that fails says why and leaves the file")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    window.figures->ExportTo(wxString("/nowhere/at/all.png"), SIZE);
    CHECK(window.Says("\"/nowhere/at/all.png\" cannot be written: No such file or directory"));
    auto const path = window.scratch.Path("f.jpg");
    window.figures->ExportTo(wxString(path), SIZE);
    CHECK(window.Says("a figure is written as .png, .svg or .pdf, but \"" + path + "\" has none of these endings"));
    auto const old = window.scratch.Write("old.png", "old");
    FakeGnuplot const failing("echo 'no memory' >&2; exit 1");
    ModalScript script;
    script.Then(wxID_YES);
    window.figures->ExportTo(wxString(old), SIZE);
    CHECK(window.Says("gnuplot could not draw the figure: no memory"));
    CHECK(ReadFile(old) == "old");
}

TEST_CASE("when it can't be drawn anew the picture stays, stretched, and the window says why")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    wxSize const before = window.view->GetClientSize();
    {
        FakeGnuplot const none;
        window.figures->SetSize(700, 420);
        REQUIRE(PumpUntil([&] { return window.view->GetClientSize() != before; }, PATIENCE_MS));
        CHECK(window.Says("gnuplot, which draws the figures, cannot be started: No such file or directory; is it "
                          "installed?"));
        CHECK(window.view->GetPicture().GetSize() == before);
        // Another plot is refused on the console and adds nothing.
        CHECK_FALSE(window.frame->Run("plot(d, \"x\", \"history\");"));
        CHECK(window.list->GetCount() == 1);
    }
    CHECK(Photograph(window.view).CountColours() > 20);
}

TEST_CASE("a gnuplot that hangs keeps nobody from using and closing the window")
{
    Window window;
    REQUIRE(window.Plot("x", "history"));
    FakeGnuplot const hanging("exec sleep 1000");
    wxSize const before = window.view->GetClientSize();
    window.figures->SetSize(700, 420);
    REQUIRE(PumpUntil([&] { return window.view->GetClientSize() != before; }, PATIENCE_MS));
    Pump(400);
    CHECK(window.view->IsStale());
    window.ClickButton(0);
    CHECK(window.Says("The picture is on the clipboard."));
}

TEST_CASE("a plot during which gnuplot hangs is stopped, and nothing is shown")
{
    Window window;
    FakeGnuplot const hanging("exec sleep 1000");
    // The stop of the Script menu, pressed while the command waits.
    wxTimer timer;
    timer.Bind(wxEVT_TIMER,
               [&](wxTimerEvent&)
               {
                   int const id = window.frame->GetMenuBar()->FindMenuItem("Script", "Stop");
                   wxCommandEvent event(wxEVT_MENU, id);
                   window.frame->ProcessWindowEvent(event);
               });
    timer.Start(300);
    CHECK_FALSE(window.frame->Run("plot(d, \"x\", \"history\");"));
    timer.Stop();
    CHECK_FALSE(window.figures->IsShown());
    CHECK(window.figures->IsEmpty());
}

TEST_CASE("closing hides the window, and the View menu shows it again with all its figures")
{
    Window window;
    REQUIRE(window.Plot("x", "histogram"));
    REQUIRE(window.Plot("y", "histogram"));
    window.ClickButton(2);
    CHECK_FALSE(window.figures->IsShown());
    wxCommandEvent event(wxEVT_MENU, FiguresEntry(window.frame)->GetId());
    window.frame->ProcessWindowEvent(event);
    window.Rest();
    CHECK(window.figures->IsShown());
    CHECK(window.list->GetCount() == 2);
    Press(WXK_ESCAPE);
    CHECK(PumpUntil([&] { return !window.figures->IsShown(); }, PATIENCE_MS));
}

TEST_CASE("the workbench closes with the window of figures open")
{
    Window window;
    REQUIRE(window.frame->Run("save(\"" + window.scratch.Path("w.zws") + "\");"));
    REQUIRE(window.Plot("x", "histogram"));
    CHECK(window.frame->Close());
}
