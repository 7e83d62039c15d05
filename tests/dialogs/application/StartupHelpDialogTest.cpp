#include "dialogs/application/StartupHelpDialog.h"

#include <fstream>
#include <sstream>

#include <wx/checkbox.h>
#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>
#include <wx/utils.h>

#include "dialogs/application/DialogChecks.h"
#include "support/TabOrder.h"

namespace
{
/// A piece of the page's text that belongs to one link.
struct Link
{
    wxString text;
    wxString address;
    wxPoint place; ///< Of a point in it, in the window.
};

std::vector<Link> LinksOf(wxHtmlWindow const* html)
{
    std::vector<Link> links;
    auto const* const page = html->GetInternalRepresentation();
    wxHtmlTerminalCellsInterator cell(page->GetFirstTerminal(), page->GetLastTerminal());
    for (; cell; ++cell)
    {
        auto const* const link = cell->GetLink();
        if (!link)
            continue;
        if (links.empty() || links.back().address != link->GetHref())
            links.push_back({"", link->GetHref(), cell->GetAbsPos() + wxPoint(5, cell->GetHeight() / 2)});
        links.back().text += cell->ConvertToText(nullptr);
    }
    return links;
}

/// The page as text, with single blanks between the words.
wxString TextOf(wxHtmlWindow* html)
{
    std::istringstream words(html->ToText().ToStdString(wxConvUTF8));
    wxString text;
    for (std::string word; words >> word;)
        text += (text.empty() ? "" : " ") + wxString::FromUTF8(word);
    return text;
}

std::string ContentOf(std::string const& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}
} // namespace

TEST_CASE("quick start: layout")
{
    Stage stage;
    StartupHelpDialog const dialog(stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Quick Start", 0x20001818, 4);

    auto* const html = dynamic_cast<wxHtmlWindow*>(Item(sizer, 0)->GetWindow());
    REQUIRE(html);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{1, wxLEFT | wxRIGHT | wxTOP, 10});
    CHECK(html->GetName() == "htmlWindow");
    CHECK(html->GetId() < 0);
    CHECK(html->GetMinSize() == wxSize(460, 330));
    for (long const flag : {long(wxHW_SCROLLBAR_AUTO), long(wxHW_NO_SELECTION), long(wxBORDER_SUNKEN)})
        CHECK(html->HasFlag(static_cast<int>(flag)));
    CHECK(!html->HasFlag(wxHW_SCROLLBAR_NEVER));

    CHECK(Item(sizer, 1)->IsSpacer());
    CHECK(Item(sizer, 1)->GetMinSize().y == 2);
    CHECK(PlacementOf(Item(sizer, 2)) == Placement{0, wxEXPAND, 5});
    auto* const row = dynamic_cast<wxBoxSizer*>(Item(sizer, 2)->GetSizer());
    CHECK(row->GetOrientation() == wxHORIZONTAL);
    REQUIRE(row->GetItemCount() == 2);
    CHECK(Item(row, 0)->IsSpacer());
    CHECK(Item(row, 0)->GetProportion() == 1);
    auto* const box = dynamic_cast<wxCheckBox*>(Item(row, 1)->GetWindow());
    CHECK(box->GetLabel() == "Do not show this dialog again");
    CHECK(PlacementOf(Item(row, 1)) == Placement{0, wxLEFT | wxRIGHT | wxBOTTOM, 5});
    // The one button cancels; there is none to accept.
    CheckButtons(dialog, Item(sizer, 3), "", "&Close", AtTheEnd());
}

TEST_CASE("quick start: the page and its links")
{
    Stage stage;
    StartupHelpDialog const dialog(stage.Frame());
    auto* const html = Find<wxHtmlWindow>(&dialog);
    CHECK(TextOf(html)
          == "Welcome to Zenqo! For a quick start, consider going through the online video tutorials: "
             "1. An overview of the Zenqo desktop "
             "2. Importing, summarizing and plotting data "
             "3. Running models from the GUI "
             "4. Working with code: The Zenqo script editor "
             "5. Working with Zenqo from the command shell "
             "6. Writing and executing Zenqo functions "
             "For a complete overview, consider: "
             "looking at the sample code files, located within the \"Samples\" folder, in the Zenqo "
             "installation directory, or "
             "reading the online documentation.");

    auto const links = LinksOf(html);
    REQUIRE(links.size() == 7);
    wxString const site = "https://www.zenqo.example";
    std::vector<std::pair<wxString, wxString>> const expected{
        {"An overview of the Zenqo desktop", "/tutorials.html#desktopAnchor"},
        {"Importing, summarizing and plotting data", "/tutorials.html#dataAnchor"},
        {"Running models from the GUI", "/tutorials.html#modelsAnchor"},
        {"Working with code: The Zenqo script editor", "/tutorials.html#codeAnchor"},
        {"Working with Zenqo from the command shell", "/tutorials.html#batchAnchor"},
        {"Writing and executing Zenqo functions", "/tutorials.html#functionsAnchor"},
        {"online documentation.", "/html_documentation.html"},
    };
    for (std::size_t i = 0; i < 7; ++i)
    {
        CHECK(links[i].text.Strip(wxString::both) == expected[i].first);
        CHECK(links[i].address == site + expected[i].second);
    }
}

// Run in a light and in a dark theme: see CMakeLists.txt.
TEST_CASE("quick start: the page has the colours of a list, and all of it is in sight")
{
    Stage stage;
    StartupHelpDialog dialog(stage.Frame());
    auto* const html = Find<wxHtmlWindow>(&dialog);
    auto const colour = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX);
    CHECK(html->GetParser()->GetSource()->Contains("<body bgcolor=\"" + colour.GetAsString(wxC2S_CSS_SYNTAX)
                                                   + "\""));
    CHECK(html->GetBackgroundColour() == colour);
    RunDialog(dialog,
              [&]
              {
                  CheckFits(dialog);
                  CHECK(!html->HasScrollbar(wxVERTICAL));
                  CHECK(html->GetInternalRepresentation()->GetHeight() <= html->GetClientSize().y);
                  wxImage const picture = Photograph(&dialog);
                  wxString theme = "default";
                  wxGetEnv("GTK_THEME", &theme);
                  theme.Replace(":", "-");
                  Keep(picture, "StartupHelpDialog-" + theme);
                  wxPoint const corner = html->GetPosition() + wxPoint(5, 5);
                  CHECK(picture.GetRed(corner.x, corner.y) == colour.Red());
                  CHECK(picture.GetGreen(corner.x, corner.y) == colour.Green());
                  CHECK(picture.GetBlue(corner.x, corner.y) == colour.Blue());
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("quick start: a click on a link opens the default browser, and the page stays")
{
    // The browser of this test writes the address that it is given into this file.
    wxString given;
    REQUIRE(wxGetEnv("ZENQO_TEST_BROWSER", &given));
    auto const path = given.ToStdString();
    Stage stage;
    StartupHelpDialog dialog(stage.Frame());
    auto* const html = Find<wxHtmlWindow>(&dialog);
    auto const text = TextOf(html);
    int const answer = RunDialog(
        dialog,
        [&]
        {
            for (auto const& link : LinksOf(html))
            {
                std::ofstream(path, std::ios::trunc).flush();
                ClickAt(html, link.place);
                PumpUntil([&] { return !ContentOf(path).empty(); });
                CHECK(ContentOf(path) == link.address + "\n");
                CHECK(html->GetOpenedPage().empty());
                CHECK(TextOf(html) == text);
            }
            // Beside the links nothing happens.
            std::ofstream(path, std::ios::trunc).flush();
            ClickAt(html, wxPoint(230, 20));
            Pump(200);
            CHECK(ContentOf(path).empty());
            CHECK(dialog.IsModal());
            Click(dialog.FindWindow(wxID_CANCEL));
        });
    CHECK(answer == wxID_CANCEL);
}

TEST_CASE("quick start: the check box is the user's, however the dialog is closed")
{
    Stage stage;
    StartupHelpDialog dialog(stage.Frame());
    auto* const box = Find<wxCheckBox>(&dialog);
    CHECK(!dialog.GetCheckBoxState());
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        CHECK(wxWindow::FindFocus() == dialog.FindWindow(wxID_CANCEL));
                        Click(box);
                        Press(WXK_ESCAPE);
                    })
          == wxID_CANCEL);
    CHECK(dialog.GetCheckBoxState());
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        box->SetFocus();
                        Press(WXK_SPACE);
                        Press(WXK_TAB);
                        CHECK(wxWindow::FindFocus() == dialog.FindWindow(wxID_CANCEL));
                        Press(WXK_SPACE);
                    })
          == wxID_CANCEL);
    CHECK(!dialog.GetCheckBoxState());
    CHECK(RunDialog(dialog, [&] { dialog.Close(); }) == wxID_CANCEL);
}
