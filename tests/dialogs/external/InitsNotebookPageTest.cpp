#include "dialogs/external/InitsNotebookPage.h"

#include <catch2/catch.hpp>

#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"

TEST_CASE("initial values of a chain: one field fills the page")
{
    Stage stage;
    auto* const page = new InitsNotebookPage(stage.Frame());
    CHECK(page->GetWindowStyle() == 0x280000);
    auto const fields = FindAll<wxTextCtrl>(page);
    REQUIRE(fields.size() == 1);
    CHECK((fields[0]->GetWindowStyle() & 0x44000020) == 0x44000020);
    CHECK(fields[0]->HasFlag(wxTE_MULTILINE));
    CHECK(fields[0]->HasFlag(wxTE_DONTWRAP));
    CHECK(fields[0]->GetBorder() == wxBORDER_RAISED);
    CHECK(FontOf(fields[0]) == "10 points, modern");
    CHECK(fields[0]->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(!fields[0]->GetFont().GetUnderlined());
    CHECK(page->GetText().empty());

    auto* const sizer = dynamic_cast<wxBoxSizer*>(page->GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == 1);
    CHECK(Item(sizer, 0)->GetWindow() == fields[0]);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    CHECK(page->GetMinSize() == sizer->GetMinSize());
}

TEST_CASE("initial values of a chain: typed by hand, with line breaks, they stand as they are")
{
    Stage stage;
    auto* const page = new InitsNotebookPage(stage.Frame());
    stage.Fill(page);
    Click(Find<wxTextCtrl>(page));
    TypeText("beta = zeros(3,1),");
    Press(WXK_RETURN);
    TypeText(" tau = 10 ");
    CHECK(page->GetText() == "beta = zeros(3,1),\n tau = 10 ");
}
