#include "pickers/StorePicker.h"

#include <catch2/catch.hpp>

#include <wx/checkbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"
#include "support/TabOrder.h"

TEST_CASE("store picker: a box over a labelled field, which is disabled")
{
    Stage stage;
    auto* const picker = new StorePicker(stage.Frame());
    stage.Fill(picker);
    auto* const box = Find<wxCheckBox>(picker);
    auto* const text = Find<wxStaticText>(picker);
    auto* const name = Find<wxTextCtrl>(picker);
    CHECK(box->GetLabel() == "Store results");
    CHECK(!box->GetValue());
    CHECK(text->GetLabel() == "Model name:");
    CHECK(name->GetValue().empty());
    CHECK(name->GetMinSize() == wxSize(130, -1));
    CHECK(!name->IsThisEnabled());
    CHECK(!picker->GetStoreState());
    CHECK(picker->GetModelName() == "NoStore");

    auto* const grid = picker->GetSizer();
    CHECK(Shape(grid) == "2 rows, 2 columns, column 0 grows");
    REQUIRE(grid->GetItemCount() == 4);
    CHECK(Item(grid, 0)->GetWindow() == box);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{1, wxEXPAND | wxTOP | wxLEFT, 5});
    CHECK(Item(grid, 1)->IsSpacer());
    CHECK(Item(grid, 1)->GetMinSize() == wxSize(1, 1));
    CHECK(Item(grid, 2)->GetWindow() == text);
    CHECK(PlacementOf(Item(grid, 2)) == Placement{0, wxALIGN_BOTTOM | wxALL, 5});
    CHECK(Item(grid, 3)->GetWindow() == name);
    CHECK(PlacementOf(Item(grid, 3)) == Placement{0, wxALL, 5});
}

TEST_CASE("store picker: ticked, named, unticked and ticked again")
{
    Stage stage;
    auto* const picker = new StorePicker(stage.Frame());
    stage.Fill(picker);
    auto* const box = Find<wxCheckBox>(picker);
    auto* const name = Find<wxTextCtrl>(picker);
    Click(box);
    CHECK(picker->GetStoreState());
    CHECK(name->IsEnabled());
    CHECK(picker->GetModelName().empty());
    Click(name);
    TypeText("wages 2");
    CHECK(picker->GetModelName() == "wages 2");
    Keep(Photograph(stage.Frame()), "StorePicker");

    Click(box);
    CHECK(!picker->GetStoreState());
    CHECK(!name->IsEnabled());
    CHECK(picker->GetModelName() == "NoStore");
    CHECK(name->GetValue() == "wages 2");
    // Nothing can be typed into the disabled field.
    Click(name);
    TypeText("x");
    CHECK(name->GetValue() == "wages 2");
    Click(box);
    CHECK(picker->GetModelName() == "wages 2");
}

TEST_CASE("store picker: by the keys alone")
{
    Stage stage;
    auto* const picker = new StorePicker(stage.Frame());
    stage.Fill(picker);
    auto* const box = Find<wxCheckBox>(picker);
    box->SetFocus();
    Press(WXK_SPACE);
    CHECK(picker->GetStoreState());
    auto const order = TabOrder(box);
    REQUIRE(order.size() == 2);
    CHECK(order[1] == Find<wxTextCtrl>(picker));
}

TEST_CASE("store picker: the name is not looked at")
{
    Stage stage;
    auto* const picker = new StorePicker(stage.Frame());
    stage.Fill(picker);
    Find<wxCheckBox>(picker)->SetValue(true);
    // Ticking by program raises no event, so the field is still disabled.
    CHECK(!Find<wxTextCtrl>(picker)->IsThisEnabled());
    for (auto const* text : {"", "NoStore", " a ", "1", "-", "na\xC3\xAFve \xCE\xB2", "a,b\"c"})
    {
        Find<wxTextCtrl>(picker)->SetValue(wxString::FromUTF8(text));
        CHECK(picker->GetModelName() == wxString::FromUTF8(text));
    }
    wxCommandEvent event;
    event.Skip(false);
    picker->OnStoreClicked(event);
    CHECK(Find<wxTextCtrl>(picker)->IsThisEnabled());
    CHECK(!event.GetSkipped());
}
