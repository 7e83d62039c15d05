// What the user sees, photographed: text that reads back right can still be drawn wrong.

#include <catch2/catch.hpp>

#include <algorithm>

#include "console/ConsoleFixture.h"

namespace
{
/// True where something is drawn on the light background.
bool IsInk(wxImage const& image, int x, int y)
{
    return image.GetRed(x, y) < 200 || image.GetGreen(x, y) < 200 || image.GetBlue(x, y) < 200;
}

/// Height of the area that holds text, scroll bars left out.
int TextHeight(wxImage const& image) { return image.GetHeight() - 20; }

/// True if two photographs show the same in the text's area, but for the scroll bars.
bool SameText(wxImage const& one, wxImage const& other)
{
    if (one.GetSize() != other.GetSize())
        return false;
    for (int y = 0; y < TextHeight(one); ++y)
        for (int x = 0; x < one.GetWidth() - 30; ++x)
            if (IsInk(one, x, y) != IsInk(other, x, y))
                return false;
    return true;
}

int InkPixels(wxImage const& image)
{
    int count = 0;
    for (int y = 0; y < TextHeight(image); ++y)
        for (int x = 0; x < image.GetWidth() - 30; ++x)
            count += IsInk(image, x, y);
    return count;
}

/// Lets scrolling, which is animated, come to rest.
void Settle() { Pump(700); }

/// What a freshly drawn control shows of the same text: the picture to compare with.
wxImage DrawnAfresh(ConsoleOnStage& on)
{
    on.text->Refresh();
    on.console->Refresh();
    Settle();
    return Photograph(on.text);
}
} // namespace

TEST_CASE("a horizontal rule is seen")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("\n"));
    Settle();
    int const before = InkPixels(Photograph(on.text));
    on.console->PrintOnConsoleLine();
    on.console->PrintOnConsoleLine(wxColour(200, 0, 0));
    Settle();
    wxImage const picture = Photograph(on.text);
    Keep(picture, "console-rules");

    int longRows = 0;
    bool red = false;
    for (int y = 0; y < TextHeight(picture); ++y)
    {
        int ink = 0;
        for (int x = 0; x < picture.GetWidth() - 30; ++x)
        {
            ink += IsInk(picture, x, y);
            // A thin line between two rows of pixels is drawn paler than its colour.
            red = red || picture.GetRed(x, y) > picture.GetBlue(x, y) + 60;
        }
        longRows += ink > 92 * 5;
    }
    CHECK(before == 0);
    CHECK(longRows >= 2);
    CHECK(red);
}

TEST_CASE("after 10,000 prints the last lines stand on the screen, drawn once each, and no stale line")
{
    // Each print repaints the control, so a small window keeps the test short.
    ConsoleOnStage on(true, wxSize(360, 240));
    wxColour const blue(0, 0, 160);
    for (int i = 1; i <= 10000; ++i)
    {
        std::string const line = "draw " + std::to_string(i) + "\n";
        if (i % 3 == 0)
            on.console->PrintOnConsoleBF(line, blue);
        else
            on.console->PrintOnConsole(line);
    }
    // The picture as the user has it, before anything redraws it.
    wxImage const atOnce = Photograph(on.text);
    Settle();
    wxImage const settled = Photograph(on.text);
    Keep(atOnce, "console-10000-prints-at-once");
    Keep(settled, "console-10000-prints");

    CHECK(on.text->GetNumberOfLines() == 601);
    CHECK(on.text->GetLineText(599) == "draw 10000");
    CHECK(SameText(settled, DrawnAfresh(on)));

    // The last line of text is the one near the bottom of the view.
    long column = 0;
    long line = 0;
    on.text->HitTest(wxPoint(5, on.text->GetClientSize().y - 12), &column, &line);
    CHECK(line >= 598);
}

TEST_CASE("prints of many lines past the trim leave no stale line")
{
    ConsoleOnStage on(true, wxSize(800, 400));
    for (int i = 1; i <= 400; ++i)
    {
        on.console->PrintOnConsoleCode("print(m" + std::to_string(i) + ");");
        on.console->PrintOnConsole(Eigen::MatrixXd(Eigen::MatrixXd::Constant(3, 4, i)));
        on.console->PrintOnConsoleLine();
        if (i % 100 == 0)
        {
            CAPTURE(i);
            Settle();
            wxImage const settled = Photograph(on.text);
            Keep(settled, wxString::Format("console-tables-%d", i));
            CHECK(SameText(settled, DrawnAfresh(on)));
            CHECK(InkPixels(settled) > 1000);
        }
    }
}
