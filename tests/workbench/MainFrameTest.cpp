#include <catch2/catch.hpp>

#include <cstdlib>
#include <fstream>

#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/notebook.h>

#include "engine/Engine.h"
#include "support/Find.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "workbench/app/MainFrame.h"

using workbench::MainFrame;

namespace
{
enum Page
{
    START,
    CONSOLE,
    DATA,
    MATRICES
};

/// A workbench window with the sample data at hand.
struct Window
{
    Window() : samples(std::string(std::getenv("ZENQO_SOURCE_DIR")) + "/workbench/samples")
    {
        frame = new MainFrame(samples);
        frame->Show();
        Pump(200);
        pages = Find<wxNotebook>(frame);
        REQUIRE(pages);
    }

    ~Window()
    {
        frame->Destroy();
        Pump(20);
    }

    bool Import(std::string const& name)
    {
        return frame->Run(name + " = import(\"" + samples + "/" + name + ".csv\", \",\");");
    }

    void Show(Page page)
    {
        pages->SetSelection(page);
        Pump(50);
    }

    wxGrid* Grid(Page page) { return Find<wxGrid>(pages->GetPage(page)); }
    wxChoice* Choice(Page page) { return Find<wxChoice>(pages->GetPage(page)); }

    /// What a user does who picks an entry of a drop-down list.
    void Pick(Page page, int index)
    {
        wxChoice* const choice = Choice(page);
        choice->SetSelection(index);
        wxCommandEvent event(wxEVT_CHOICE, choice->GetId());
        event.SetEventObject(choice);
        choice->GetEventHandler()->ProcessEvent(event);
    }

    std::string samples;
    MainFrame* frame;
    wxNotebook* pages;
};
} // namespace

TEST_CASE("an imported dataset is the one that the grid shows")
{
    Window window;
    window.Show(DATA);
    CHECK(window.Grid(DATA)->GetNumberRows() == 0);
    REQUIRE(window.Import("longley"));
    CHECK(window.Choice(DATA)->GetStringSelection() == "longley");
    CHECK(window.Grid(DATA)->GetNumberRows() == 16);
    CHECK(window.Grid(DATA)->GetCellValue(0, 0) == "60323");
    REQUIRE(window.Import("airquality"));
    CHECK(window.Choice(DATA)->GetStringSelection() == "airquality");
    CHECK(window.Grid(DATA)->GetNumberRows() == 153);
    CHECK(window.Grid(DATA)->GetCellValue(4, 0) == ".");
}

TEST_CASE("every pick of a dataset is heard, the first entry after a choice by program included")
{
    Window window;
    window.Show(DATA);
    REQUIRE(window.Import("airquality"));
    REQUIRE(window.Import("longley"));
    REQUIRE(window.Choice(DATA)->GetStringSelection() == "longley");
    window.Pick(DATA, 0);
    CHECK(window.Grid(DATA)->GetNumberRows() == 153);
    window.Pick(DATA, 1);
    CHECK(window.Grid(DATA)->GetNumberRows() == 16);
}

TEST_CASE("a hidden grid is filled when it is shown")
{
    Window window;
    window.Show(CONSOLE);
    REQUIRE(window.Import("longley"));
    REQUIRE(window.frame->Run("m = [1, 2; 3, 4; 5, 6];"));
    CHECK(window.Grid(DATA)->GetNumberRows() == 0);
    CHECK(window.Grid(MATRICES)->GetNumberRows() == 0);
    window.Show(DATA);
    CHECK(window.Grid(DATA)->GetNumberRows() == 16);
    window.Show(MATRICES);
    CHECK(window.Grid(MATRICES)->GetNumberRows() == 3);
}

TEST_CASE("when the shown dataset is cleared the first one takes its place, and after the last an empty grid")
{
    Window window;
    window.Show(DATA);
    REQUIRE(window.Import("airquality"));
    REQUIRE(window.Import("longley"));
    REQUIRE(window.frame->Run("clear(longley);"));
    CHECK(window.Choice(DATA)->GetStringSelection() == "airquality");
    CHECK(window.Grid(DATA)->GetNumberRows() == 153);
    REQUIRE(window.frame->Run("clear(airquality);"));
    CHECK(window.Choice(DATA)->IsEmpty());
    CHECK(window.Grid(DATA)->GetNumberRows() == 0);
}

TEST_CASE("a matrix changed under its name is shown as it is now")
{
    Window window;
    window.Show(MATRICES);
    REQUIRE(window.frame->Run("a = [1];"));
    REQUIRE(window.frame->Run("b = [2];"));
    REQUIRE(window.frame->Run("a = [7, 8];"));
    CHECK(window.Choice(MATRICES)->GetStringSelection() == "a");
    CHECK(window.Grid(MATRICES)->GetCellValue(0, 1) == "8");
}

TEST_CASE("a command that a widget sends is echoed and run")
{
    Window window;
    wxCommandEvent event(wxEVT_PRINT_AND_RUN, 0);
    event.SetString("m = [1, 2];");
    window.Choice(DATA)->GetEventHandler()->ProcessEvent(event);
    window.Show(MATRICES);
    CHECK(window.Grid(MATRICES)->GetNumberCols() == 2);
}

TEST_CASE("the title tells the file and whether there are changes that it lacks")
{
    Window window;
    CHECK(window.frame->GetTitle() == "Untitled - Zenqo Workbench");
    REQUIRE(window.frame->Run("m = [1, 2];"));
    CHECK(window.frame->GetTitle() == "*Untitled - Zenqo Workbench");
    wxString const path = wxFileName::CreateTempFileName("zenqo") + ".zws";
    REQUIRE(window.frame->Run("save(\"" + path.ToStdString() + "\");"));
    CHECK(window.frame->GetTitle() == wxFileName(path).GetFullName() + " - Zenqo Workbench");
    REQUIRE(window.frame->Run("clear(m);"));
    CHECK(window.frame->GetTitle() == "*" + wxFileName(path).GetFullName() + " - Zenqo Workbench");
    REQUIRE(window.frame->OpenFile(path.ToStdString()));
    CHECK(window.frame->GetTitle() == wxFileName(path).GetFullName() + " - Zenqo Workbench");
    wxRemoveFile(path);
}

TEST_CASE("a script that fails leaves the workspace and its name for being saved")
{
    Window window;
    CHECK_FALSE(window.frame->Run("m = [1, 2; 3];"));
    CHECK_FALSE(window.frame->Run("load(\"/nowhere/at/all.zws\");"));
    CHECK_FALSE(window.frame->RunFile("/nowhere/at/all.zqs"));
    CHECK(window.frame->GetTitle() == "Untitled - Zenqo Workbench");
}

TEST_CASE("closing asks for unsaved changes: cancel keeps the window, no closes it")
{
    Window window;
    REQUIRE(window.frame->Run("m = [1, 2];"));
    ModalScript script;
    script.Then(wxID_CANCEL).Then(wxID_NO);
    CHECK_FALSE(window.frame->Close());
    CHECK(script.Shown().at(0).text
          == "The workspace has changes that are not saved.\n\nSave them before the workbench closes?");
    CHECK(script.Shown().at(0).style == (wxYES_NO | wxCANCEL | wxICON_QUESTION));
    CHECK(window.frame->IsShown());
    CHECK(window.frame->Close());
}

TEST_CASE("a window whose workspace is saved closes without a question")
{
    Window window;
    CHECK(window.frame->Close());
}
