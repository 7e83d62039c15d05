#include "panes/ProgressDialog.h"

#include <catch2/catch.hpp>

#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/Stage.h"

TEST_CASE("progress dialog: layout")
{
    Stage stage;
    ProgressDialog dialog(stage.Frame());
    CHECK(dialog.GetTitle().empty());
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL) == 0x200008);
    CHECK_FALSE(dialog.IsShown());
    REQUIRE(dialog.GetChildren().size() == 1);
    auto* const panel = dynamic_cast<wxPanel*>(dialog.GetChildren()[0]);
    REQUIRE(panel);
    CHECK(panel->GetBackgroundColour() == *wxBLACK);
    CHECK(panel->HasFlag(wxTAB_TRAVERSAL));
    CHECK(panel->HasFlag(wxBORDER_NONE));
    CHECK(PlacementOf(Item(dialog.GetSizer(), 0)) == Placement{0, wxALL, 0});

    auto* const columns = dynamic_cast<wxBoxSizer*>(panel->GetSizer());
    REQUIRE(columns);
    CHECK(columns->GetOrientation() == wxHORIZONTAL);
    REQUIRE(columns->GetItemCount() == 2);
    wxString const expected[2][2] = {{"Elapsed time:", "Remaining time:"}, {"unknown", "unknown"}};
    wxFont const font(wxFontInfo(9).Family(wxFONTFAMILY_MODERN).Bold());
    for (std::size_t i = 0; i < 2; ++i)
    {
        CHECK(PlacementOf(Item(columns, i)) == Placement{0, wxTOP, 5});
        auto* const column = dynamic_cast<wxBoxSizer*>(Item(columns, i)->GetSizer());
        REQUIRE(column);
        CHECK(column->GetOrientation() == wxVERTICAL);
        for (std::size_t j = 0; j < 2; ++j)
        {
            CHECK(PlacementOf(Item(column, j)) == Placement{0, wxALL, 5});
            auto* const text = dynamic_cast<wxStaticText*>(Item(column, j)->GetWindow());
            REQUIRE(text);
            CHECK(text->GetLabel() == expected[i][j]);
            CHECK(text->GetForegroundColour() == wxColour(255, 255, 255));
            CHECK(text->GetFont() == font);
            if (i == 0)
                CHECK(text->GetMinSize().x == 120);
        }
    }
}

TEST_CASE("progress dialog: new times keep the window's size")
{
    Stage stage;
    ProgressDialog dialog(stage.Frame());
    dialog.ShowWithoutActivating();
    Pump(100);
    auto const size = dialog.GetSize();
    auto const texts = FindAll<wxStaticText>(&dialog);
    REQUIRE(texts.size() == 4);
    for (wxString text : {wxString("00:00:01"), wxString('x', 200), wxString(), wxString("59:59:59")})
    {
        dialog.SetElapsedTime(text);
        dialog.SetRemainingTime(text);
        Pump();
        CHECK(texts[2]->GetLabel() == text);
        CHECK(texts[3]->GetLabel() == text);
        CHECK(dialog.GetSize() == size);
    }
    Keep(Photograph(&dialog), "ProgressDialog");
}
