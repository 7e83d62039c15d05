#include "dialogs/application/AboutZenqo.h"

#include <wx/image.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "dialogs/application/DialogChecks.h"
#include "support/InstalledIcon.h"
#include "support/Layout.h"

namespace
{
/// How many pixels of a picture have exactly this colour.
int Count(wxImage const& image, int red, int green, int blue)
{
    int count = 0;
    for (int y = 0; y < image.GetHeight(); ++y)
        for (int x = 0; x < image.GetWidth(); ++x)
            count += image.GetRed(x, y) == red && image.GetGreen(x, y) == green
                     && image.GetBlue(x, y) == blue;
    return count;
}
} // namespace

TEST_CASE("about: layout")
{
    Stage stage;
    AboutZenqo const dialog(stage.Frame());
    auto* const sizer = CheckFrame(dialog, "About Zenqo", 0x20001818, 2);
    CheckCentred(dialog);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const columns = Item(sizer, 0)->GetSizer();
    CHECK(Shape(columns) == "1 row, 3 columns, column 1 grows");
    REQUIRE(columns->GetItemCount() == 3);
    CHECK(dynamic_cast<wxStaticBitmap*>(Item(columns, 0)->GetWindow()));
    CHECK(PlacementOf(Item(columns, 0)) == Placement{0, wxEXPAND | wxALIGN_CENTER | wxRIGHT, 20});
    CHECK(Item(columns, 1)->IsSpacer());
    CHECK(PlacementOf(Item(columns, 1)) == Placement{1, wxEXPAND, 5});
    CHECK(PlacementOf(Item(columns, 2)) == Placement{0, wxEXPAND, 5});

    // The one button accepts; there is none to cancel.
    CheckButtons(dialog, Item(sizer, 1), "&Close", "", AtTheEnd());
}

TEST_CASE("about: the texts")
{
    Stage stage;
    AboutZenqo const dialog(stage.Frame());
    auto* const texts = Item(Item(dialog.GetSizer(), 0)->GetSizer(), 2)->GetSizer();
    CHECK(Shape(texts) == "3 rows, 1 column");
    REQUIRE(texts->GetItemCount() == 3);
    auto const textAt = [texts](std::size_t i)
    { return dynamic_cast<wxStaticText*>(Item(texts, i)->GetWindow()); };
    for (std::size_t i = 0; i < 3; ++i)
        CHECK(textAt(i)->GetMinSize() == wxSize(230, -1));

    CHECK(textAt(0)->GetLabel() == "\nZenqo v.2.5\n");
    CHECK(textAt(0)->HasFlag(wxALIGN_CENTRE_HORIZONTAL));
    CHECK(FontOf(textAt(0)) == "15 points, another family, bold, slanted");
    CHECK(textAt(0)->GetFont().GetStyle() == wxFONTSTYLE_SLANT);
    CHECK(PlacementOf(Item(texts, 0)) == Placement{0, wxALIGN_CENTER | wxTOP, 5});

    CHECK(textAt(1)->GetLabel() == "Zenqo Statistical Workbench\n");
    CHECK(textAt(1)->HasFlag(wxALIGN_CENTRE_HORIZONTAL));
    CHECK(FontOf(textAt(1)) == "10 points, another family, slanted");
    CHECK(textAt(1)->GetFont().GetStyle() == wxFONTSTYLE_ITALIC);
    CHECK(PlacementOf(Item(texts, 1)) == Placement{0, wxEXPAND | wxALIGN_CENTER | wxBOTTOM, 25});

    CHECK(textAt(2)->GetLabel()
          == wxString::FromUTF8("Copyright \xC2\xA9 2026 Zenqo authors\n  Department of Econometrics\n"
                                "  University of Zenqo"));
    CHECK(!textAt(2)->HasFlag(wxALIGN_CENTRE_HORIZONTAL));
    CHECK(FontOf(textAt(2)) == "10 points, modern");
    CHECK(textAt(2)->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(PlacementOf(Item(texts, 2)) == Placement{0, wxEXPAND | wxALL, 5});
}

TEST_CASE("about: the logo, and a missing or damaged one is passed over")
{
    Stage stage;
    CheckIcon("Logo192.png", wxSize(192, 192),
              [&]
              {
                  AboutZenqo const dialog(stage.Frame());
                  return Find<wxStaticBitmap>(&dialog)->GetBitmap();
              });
}

TEST_CASE("about: shown whole, and however it is closed, it answers OK")
{
    Stage stage;
    InstalledIcon const installed("Logo192.png", IconInSource("Logo192.png"));
    AboutZenqo dialog(stage.Frame());
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CheckFits(dialog);
                                     CHECK(wxWindow::FindFocus() == dialog.FindWindow(wxID_OK));
                                     wxImage const picture = Photograph(&dialog);
                                     Keep(picture, "AboutZenqo");
                                     // The curve of the logo, and its letter.
                                     CHECK(Count(picture, 0xf2, 0xc1, 0x4e) > 200);
                                     CHECK(Count(picture, 0xff, 0xff, 0xff) > 2000);
                                     Press(WXK_RETURN);
                                 });
    CHECK(answer == wxID_OK);
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_OK)); }) == wxID_OK);
    CHECK(RunDialog(dialog, [] { Press(WXK_ESCAPE); }) == wxID_OK);
    CHECK(RunDialog(dialog, [&] { dialog.Close(); }) == wxID_OK);
}

TEST_CASE("about: without a logo the texts are still shown whole")
{
    Stage stage;
    AboutZenqo dialog(stage.Frame());
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        CheckFits(dialog);
                        Press(WXK_RETURN);
                    })
          == wxID_OK);
}
