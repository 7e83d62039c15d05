#pragma once

#include <catch2/catch.hpp>

#include <wx/listbox.h>
#include <wx/sizer.h>

#include "support/Find.h"
#include "support/Stage.h"

/// What the matrices pane and the models pane have in common.
namespace list_checks
{
template <class Pane, class Map>
void Check(char const* photograph)
{
    Stage stage(wxSize(260, 360));
    auto* const pane = new Pane(stage.Frame());
    auto* const list = pane->GetList();
    CHECK(pane->GetSize() == wxSize(200, 300));
    CHECK(pane->HasFlag(wxTAB_TRAVERSAL));
    CHECK(pane->HasFlag(wxBORDER_NONE));
    CHECK(list->GetParent() == pane);
    CHECK(list->GetMinSize() == wxSize(200, 300));
    CHECK(list->HasFlag(wxLB_SINGLE));
    CHECK(list->HasFlag(wxLB_HSCROLL));
    CHECK(list->GetCount() == 0);
    CHECK(PlacementOf(Item(pane->GetSizer(), 0)) == Placement{1, wxEXPAND, 0});
    wxFont const font(wxFontInfo(10).Family(wxFONTFAMILY_MODERN));
    CHECK(list->GetFont() != font);
    stage.Fill(pane);

    Map map;
    using Record = typename Map::mapped_type::element_type;
    for (char const* name : {"var_2", "VAR", "probit", "", "donn\xc3\xa9" "es"})
        map[name] = std::make_shared<Record>();
    map["not seen"] = nullptr; // Only the names are read.
    pane->Update(&map);
    REQUIRE(list->GetCount() == 6);
    CHECK(list->GetString(0) == "");
    CHECK(list->GetString(1) == "VAR");
    CHECK(list->GetString(2) == wxString::FromUTF8("données"));
    CHECK(list->GetString(3) == "not seen");
    CHECK(list->GetString(4) == "probit");
    CHECK(list->GetString(5) == "var_2");
    CHECK(list->GetFont() == font);
    Keep(Photograph(stage.Frame()), photograph);

    list->SetSelection(4);
    pane->Update(&map);
    CHECK(list->GetSelection() == wxNOT_FOUND);

    Map empty;
    pane->Update(&empty);
    CHECK(list->GetCount() == 0);
    pane->Update();

    for (int i = 0; i < 1000; ++i)
        map["m" + std::to_string(i)] = std::make_shared<Record>();
    pane->Update(&map);
    CHECK(list->GetCount() == 1006);
    Pump();
}
} // namespace list_checks
