#include "pickers/AdditionalPicker1.h"

#include <catch2/catch.hpp>

#include <wx/checkbox.h>

#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"

TEST_CASE("additional picker: one box in one cell, unticked")
{
    Stage stage;
    auto* const picker = new AdditionalPicker1(stage.Frame(), "Joint test && more");
    stage.Fill(picker);
    auto* const box = Find<wxCheckBox>(picker);
    REQUIRE(picker->GetChildren().size() == 1);
    CHECK(box->GetLabel() == "Joint test && more");
    CHECK(box->GetLabelText() == "Joint test & more");
    CHECK(box->GetMinSize() == wxDefaultSize);
    CHECK(Shape(picker->GetSizer()) == "1 row, 1 column, column 0 grows");
    REQUIRE(picker->GetSizer()->GetItemCount() == 1);
    CHECK(Item(picker->GetSizer(), 0)->GetWindow() == box);
    CHECK(PlacementOf(Item(picker->GetSizer(), 0)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK(!picker->GetState1());
}

TEST_CASE("additional picker: the mouse and the space bar tick and untick")
{
    Stage stage;
    auto* const picker = new AdditionalPicker1(stage.Frame(), wxString::FromUTF8("Schätzung β"));
    stage.Fill(picker);
    auto* const box = Find<wxCheckBox>(picker);
    CHECK(box->GetLabel() == wxString::FromUTF8("Schätzung β"));
    Click(box);
    CHECK(picker->GetState1());
    Click(box);
    CHECK(!picker->GetState1());
    box->SetFocus();
    Press(WXK_SPACE);
    CHECK(picker->GetState1());
}

TEST_CASE("additional picker: a tick reaches the owner")
{
    Stage stage;
    auto* const picker = new AdditionalPicker1(stage.Frame(), "");
    stage.Fill(picker);
    int events = 0;
    stage.Frame()->Bind(wxEVT_CHECKBOX, [&](wxCommandEvent&) { ++events; });
    Click(Find<wxCheckBox>(picker));
    CHECK(events == 1);
}
