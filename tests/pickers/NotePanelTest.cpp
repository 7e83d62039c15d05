#include "pickers/NotePanel.h"

#include <catch2/catch.hpp>

#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "support/AsciiLocale.h"
#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"

namespace
{
wxString const LONG_NOTE = "The burn-in is dropped. " + wxString('n', 30) + " "
                           + wxString::FromUTF8("Pr\xC3\xA9" "cisez <i>thinning</i> and the rest, ")
                           + "and choose as many draws as the sampler needs to forget where it began.";

/// A colour as a web page names it.
std::string HtmlName(wxColour const& colour)
{
    return wxString::Format("#%02X%02X%02X", colour.Red(), colour.Green(), colour.Blue()).ToStdString();
}

std::string PageOf(NotePanel const* panel)
{
    return Find<wxHtmlWindow>(panel)->GetParser()->GetSource()->ToStdString(wxConvUTF8);
}

std::string ExpectedPage(NotePanel const* panel, std::string const& note)
{
    auto const frame = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWFRAME);
    auto const text = panel->GetForegroundColour();
    return "<html>\n<body bgcolor=\"" + HtmlName(frame)
           + "\">\n\t<p style=\"text-align:justify;\">\n\t<font color=\""
           + HtmlName(text) + "\">\n" + note + "\n\t</font>\n\t</p>\n</body>\n</html>";
}

int TextHeight(NotePanel const* panel)
{
    return Find<wxHtmlWindow>(panel)->GetInternalRepresentation()->GetHeight();
}

/// How many pixels of a photograph have exactly this colour.
int Count(wxImage const& image, wxColour const& colour)
{
    int count = 0;
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x)
            if (image.GetRed(x, y) == colour.Red() && image.GetGreen(x, y) == colour.Green()
                && image.GetBlue(x, y) == colour.Blue())
                ++count;
    return count;
}
} // namespace

TEST_CASE("note panel: the word and the page beside it")
{
    Stage stage;
    bool const flag = GENERATE(false, true);
    wxString const text = "Some <b>bold</b> words & more";
    auto* const panel = new NotePanel(stage.Frame(), text, wxDefaultSize, flag);
    auto* const word = Find<wxStaticText>(panel);
    auto* const note = Find<wxHtmlWindow>(panel);
    CHECK(word->GetLabel() == "Note:");
    CHECK(word->GetMinSize() == wxSize(40, 23));
    CHECK(FontOf(word) == "9 points, modern, bold");
    CHECK(note->HasFlag(wxHW_SCROLLBAR_NEVER));
    CHECK(note->HasFlag(wxHW_NO_SELECTION));
    CHECK(note->GetName() == "htmlWindow");

    auto* const grid = panel->GetSizer();
    CHECK(Shape(grid) == "1 row, 2 columns, column 1 grows");
    REQUIRE(grid->GetItemCount() == 2);
    CHECK(Item(grid, 0)->GetWindow() == word);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{0, wxTOP, 0});
    CHECK(Item(grid, 1)->GetWindow() == note);
    CHECK(PlacementOf(Item(grid, 1)) == Placement{1, wxEXPAND | wxALL, 0});
    CHECK(PageOf(panel) == ExpectedPage(panel, "Some <b>bold</b> words & more"));
}

TEST_CASE("note panel: the initial size is that of the page")
{
    Stage stage;
    auto* const panel = new NotePanel(stage.Frame(), "x", wxSize(300, 90), false);
    CHECK(Find<wxHtmlWindow>(panel)->GetMinSize() == wxSize(300, 90));
    CHECK(panel->GetMinSize().x >= 340);
}

TEST_CASE("note panel: a bold tag makes the text bold, and isn't shown")
{
    Stage stage;
    auto* const plain = new NotePanel(stage.Frame(), "mmmmmmmm", wxDefaultSize, false);
    auto* const bold = new NotePanel(stage.Frame(), "<b>mmmmmmmm</b>", wxDefaultSize, false);
    CHECK(Find<wxHtmlWindow>(bold)->ToText().Strip(wxString::both) == "mmmmmmmm");
    auto const widthOf = [](NotePanel const* panel)
    {
        int width = 0;
        auto const* const page = Find<wxHtmlWindow>(panel)->GetInternalRepresentation();
        wxHtmlTerminalCellsInterator cell(page->GetFirstTerminal(), page->GetLastTerminal());
        for (; cell; ++cell)
            width = std::max(width, cell->GetWidth());
        return width;
    };
    CHECK(widthOf(plain) > 0);
    CHECK(widthOf(bold) > widthOf(plain));
}

TEST_CASE("note panel: resized, it is as tall as its text and at least 200 wide")
{
    wxString const text = GENERATE(wxString(), wxString("x"), LONG_NOTE, wxString('m', 400));
    int const width = GENERATE(260, 800);
    CAPTURE(text, width);
    Stage stage;
    auto* const panel = new NotePanel(stage.Frame(), text, wxDefaultSize, false);
    panel->SetSize(width, 100);
    panel->Layout();
    int const height = TextHeight(panel);
    CHECK((height > 0) == !text.empty());
    panel->ResizeNoteWindow();
    CHECK(panel->GetMinSize() == wxSize(200, height));
    CHECK(panel->GetSize() == wxSize(200, height));
    CHECK(Find<wxHtmlWindow>(panel)->GetMinSize() == wxSize(-1, height));
}

TEST_CASE("note panel: a long text takes more lines in less room")
{
    Stage stage;
    auto const heightIn = [&](int width)
    {
        auto* const panel = new NotePanel(stage.Frame(), LONG_NOTE, wxDefaultSize, false);
        panel->SetSize(width, 100);
        panel->Layout();
        panel->ResizeNoteWindow();
        return panel->GetMinSize().y;
    };
    CHECK(heightIn(1200) > 0);
    CHECK(heightIn(260) >= 3 * heightIn(1200));
}

TEST_CASE("note panel: a text of many kinds of characters, and one that does not convert")
{
    Stage stage;
    auto const noteOf = [&](std::string const& text)
    { return new NotePanel(stage.Frame(), wxString::FromUTF8(text), wxDefaultSize, false); };
    for (auto const* text :
         {"", "\xCE\xB2 \xF0\x9D\x9C\x8E", "a\n\tb", "100 % of \"x\"", "</html>"})
    {
        auto* const panel = noteOf(text);
        CHECK(PageOf(panel) == ExpectedPage(panel, text));
    }
    AsciiLocale const ascii;
    auto* const panel = noteOf("\xCE\xB2");
    CHECK(PageOf(panel) == ExpectedPage(panel, ""));
}

// Run in a light and in a dark theme: see CMakeLists.txt.
TEST_CASE("note panel: the colours on the screen are those that the page and the panel name")
{
    Stage stage(wxSize(480, 160));
    // Full blocks are drawn without soft edges.
    auto const blocks = wxString::FromUTF8("\xE2\x96\x88\xE2\x96\x88\xE2\x96\x88 ");
    auto* const panel = new NotePanel(stage.Frame(), blocks + LONG_NOTE, wxDefaultSize, false);
    auto const background = panel->GetBackgroundColour();
    auto const frame = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWFRAME);
    CHECK(background == wxColour(frame.Red(), frame.Green(), frame.Blue(), 255));
    stage.Fill(panel);
    panel->ResizeNoteWindow();
    stage.Frame()->Layout();
    Pump(100);

    auto* const note = Find<wxHtmlWindow>(panel);
    auto const photograph = Photograph(stage.Frame());
    wxString theme = "default";
    wxGetEnv("GTK_THEME", &theme);
    theme.Replace(":", "-");
    Keep(photograph, "NotePanel-" + theme);
    auto const page = photograph.GetSubImage(wxRect(note->GetPosition(), note->GetSize()));
    int const pixels = page.GetWidth() * page.GetHeight();
    CHECK(Count(page, background) > pixels / 2);
    CHECK(Count(page, panel->GetForegroundColour()) > 50);
}
