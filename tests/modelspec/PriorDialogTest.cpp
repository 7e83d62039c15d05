#include "modelspec/PriorDialog.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/html/htmlwin.h>
#include <wx/notebook.h>

#include "modelspec/PriorGrid.h"
#include "modelspec/RoleLayout.h"
#include "pickers/NotePanel.h"
#include "support/Find.h"
#include "support/ModalScript.h"
#include "support/Stage.h"

namespace
{
constexpr int ID_DEFAULT = 6023;

wxString Title() { return wxString::FromUTF8("Prior – d'après l'échantillon"); }

wxString LongNote()
{
    wxString note;
    for (int i = 0; i < 8; ++i)
        note += "The default prior is <b>vague</b>: a normal distribution with a precision near zero. ";
    return note;
}

/// A dialog on a stage; its title stays alive as the constructor's argument must.
struct Shown
{
    explicit Shown(wxString const& note = wxString())
        : title(Title()), dialog(stage.Frame(), title, note)
    {
    }

    PriorGrid* AddPage(wxString const& text, bool select)
    {
        auto* const notebook = dialog.GetNotebook();
        auto* const grid
            = new PriorGrid(notebook, role_checks::Names({"alpha", "beta"}), Eigen::MatrixXd::Ones(2, 1));
        notebook->AddPage(grid, text, select);
        return grid;
    }

    wxWindow* Button(int id) { return dialog.FindWindow(id); }

    /// Shows the dialog modally and does `what` with it. Gives what `ShowModal` returned, and -7 if
    /// the dialog was still open.
    int Run(std::function<void()> const& what)
    {
        ModalScript script;
        script.Then(wxID_NONE);
        dialog.CallAfter(
            [&]
            {
                PumpUntil([&] { return dialog.IsActive(); });
                Pump(100);
                what();
                Pump(100);
                if (dialog.IsModal())
                    dialog.EndModal(-7);
            });
        return dialog.ShowModal();
    }

    Stage stage;
    wxString title;
    PriorDialog dialog;
};

/// The row of buttons, which is the last item of the dialog's sizer.
void CheckButtons(Shown& shown, wxSizerItem const* item)
{
    CHECK(PlacementOf(item) == Placement{0, wxALIGN_RIGHT | wxALL, 5});
    auto* const row = role_checks::CheckGrid(item->GetSizer(), 1, 2, {}, {});
    REQUIRE(row->GetItemCount() == 2);
    int const flags = wxRIGHT | wxALIGN_RIGHT | wxALIGN_BOTTOM;
    CHECK(Item(row, 0)->GetWindow() == shown.Button(ID_DEFAULT));
    CHECK(PlacementOf(Item(row, 0)) == Placement{1, flags, 5});
    CHECK(Item(row, 1)->GetWindow() == shown.Button(wxID_OK));
    CHECK(PlacementOf(Item(row, 1)) == Placement{1, flags, 6});
    CHECK(shown.Button(ID_DEFAULT)->GetLabel() == "&Default");
    CHECK(shown.Button(wxID_OK)->GetLabel() == "&OK");
}

void CheckFrame(Shown& shown)
{
    CHECK(shown.dialog.GetTitle() == Title());
    CHECK(shown.dialog.GetSize() == wxSize(600, 400));
    long const style = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX | wxFRAME_FLOAT_ON_PARENT;
    CHECK((shown.dialog.GetWindowStyle() & style) == style);
    auto* const sizer = dynamic_cast<wxBoxSizer*>(shown.dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    CHECK(Item(sizer, 0)->GetWindow() == shown.dialog.GetNotebook());
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{6, wxEXPAND | wxALL, 5});
    CHECK(shown.dialog.GetNotebook()->GetMinSize() == wxSize(500, 300));
    CHECK(shown.dialog.GetNotebook()->GetPageCount() == 0);
}
} // namespace

TEST_CASE("prior dialog: without a note it is a notebook over two buttons")
{
    Shown shown;
    CheckFrame(shown);
    CHECK(!Find<NotePanel>(&shown.dialog));
    REQUIRE(shown.dialog.GetSizer()->GetItemCount() == 2);
    CheckButtons(shown, Item(shown.dialog.GetSizer(), 1));
}

TEST_CASE("prior dialog: a note stands between the pages and the buttons, in the same size")
{
    for (wxString const& note : {wxString("A <b>short</b> note."), LongNote()})
    {
        Shown shown(note);
        CheckFrame(shown);
        auto* const panel = Find<NotePanel>(&shown.dialog);
        REQUIRE(panel);
        REQUIRE(shown.dialog.GetSizer()->GetItemCount() == 3);
        CHECK(Item(shown.dialog.GetSizer(), 1)->GetWindow() == panel);
        CHECK(PlacementOf(Item(shown.dialog.GetSizer(), 1)) == Placement{0, wxEXPAND | wxALL, 10});
        CheckButtons(shown, Item(shown.dialog.GetSizer(), 2));
    }
}

TEST_CASE("prior dialog: a long note is shown whole, and so are the pages and the buttons")
{
    Shown shown(LongNote());
    shown.AddPage("Means", false);
    shown.Run(
        [&]
        {
            CHECK(shown.dialog.GetSize() == wxSize(600, 400));
            auto* const text = Find<wxHtmlWindow>(&shown.dialog);
            CHECK(text->GetSize().y >= text->GetInternalRepresentation()->GetHeight());
            auto const below = [&](wxWindow* window)
            { return window->GetScreenPosition().y + window->GetSize().y; };
            CHECK(below(text) <= shown.Button(wxID_OK)->GetScreenPosition().y);
            CHECK(below(shown.dialog.GetNotebook()) <= text->GetScreenPosition().y);
            CHECK(shown.dialog.GetNotebook()->GetSize().y > 150);
            CHECK(below(shown.Button(wxID_OK))
                  <= shown.dialog.GetScreenPosition().y + shown.dialog.GetSize().y);
            Keep(Photograph(&shown.dialog), "PriorDialog, note");
        });
}

TEST_CASE("prior dialog: opens without a page")
{
    Shown shown;
    int const result = shown.Run(
        [&]
        {
            CHECK(shown.Button(wxID_OK)->HasFocus());
            CHECK(shown.dialog.GetNotebook()->IsShownOnScreen());
            Click(shown.Button(wxID_OK));
        });
    CHECK(result == wxID_OK);
}

TEST_CASE("prior dialog: the keyboard is at OK whenever it opens, whatever pages were added")
{
    for (bool const select : {false, true})
    {
        Shown shown;
        shown.AddPage("Means", select);
        shown.AddPage("Precision", select);
        for (int time = 0; time < 2; ++time)
        {
            INFO("select " << select << ", time " << time);
            int const result = shown.Run(
                [&]
                {
                    CHECK(shown.Button(wxID_OK)->HasFocus());
                    Press(WXK_RETURN);
                });
            CHECK(result == wxID_OK);
        }
    }
}

TEST_CASE("prior dialog: keeps its pages and what was typed into them")
{
    Shown shown;
    auto* const means = shown.AddPage("Means", false);
    auto* const more = shown.AddPage("Precision", false);
    auto* const notebook = shown.dialog.GetNotebook();
    CHECK(notebook->GetPage(0) == means);
    CHECK(notebook->GetPage(1) == more);
    CHECK(notebook->GetSelection() == 0);
    int const result = shown.Run(
        [&]
        {
            // Enter in a cell belongs to the cell, not to the button.
            means->SetFocus();
            means->SetGridCursor(0, 0);
            Pump();
            TypeText("2.5");
            Press(WXK_RETURN);
            CHECK(shown.dialog.IsModal());
            CHECK(means->GetCellValue(0, 0) == "2.5");
            Keep(Photograph(&shown.dialog), "PriorDialog");
            Click(shown.Button(wxID_OK));
        });
    CHECK(result == wxID_OK);
    CHECK(means->ReadFields() == Eigen::Vector2d(2.5, 1));
    shown.Run([&] { CHECK(means->GetCellValue(0, 0) == "2.5"); });
}

TEST_CASE("prior dialog: Default does nothing by itself and reaches who binds it, on the dialog alone")
{
    Shown shown;
    auto* const grid = shown.AddPage("Means", true);
    grid->SetCellValue(0, 0, "3");
    int atParent = 0;
    shown.stage.Frame()->Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ++atParent; });
    int const open = shown.Run([&] { Click(shown.Button(ID_DEFAULT)); });
    CHECK(open == -7);
    CHECK(grid->GetCellValue(0, 0) == "3");
    CHECK(shown.dialog.GetNotebook()->GetPageCount() == 1);

    int heard = 0;
    shown.dialog.Bind(wxEVT_BUTTON, [&](wxCommandEvent&) { ++heard; }, ID_DEFAULT);
    int const result = shown.Run(
        [&]
        {
            Click(shown.Button(ID_DEFAULT));
            CHECK(heard == 1);
            CHECK(shown.dialog.IsModal());
            Press(WXK_TAB);
            CHECK(shown.Button(wxID_OK)->HasFocus());
            Press(WXK_SPACE);
        });
    CHECK(result == wxID_OK);
    CHECK(heard == 1);
    CHECK(atParent == 0);
}

TEST_CASE("prior dialog: there is nothing to cancel, so Escape and a closed window are OK")
{
    Shown shown;
    shown.AddPage("Means", false);
    CHECK(shown.Run([] { Press(WXK_ESCAPE); }) == wxID_OK);
    CHECK(shown.Run([&] { shown.dialog.Close(); }) == wxID_OK);
}

TEST_CASE("prior dialog: can be made larger, and the pages take the room")
{
    Shown shown;
    shown.AddPage("Means", false);
    shown.Run(
        [&]
        {
            int const before = shown.dialog.GetNotebook()->GetSize().y;
            int const button = shown.Button(wxID_OK)->GetSize().y;
            shown.dialog.SetSize(700, 500);
            PumpUntil([&] { return shown.dialog.GetNotebook()->GetSize().y > before; });
            CHECK(shown.dialog.GetNotebook()->GetSize().y == before + 100);
            CHECK(shown.Button(wxID_OK)->GetSize().y == button);
        });
}
