#pragma once

#include <catch2/catch.hpp>

#include <wx/choice.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "support/Find.h"
#include "support/Stage.h"

/// What the three choice pickers have in common, checked for each of them.
namespace picker_checks
{
inline wxArrayString Names(std::initializer_list<char const*> names)
{
    wxArrayString array;
    for (auto const* name : names)
        array.Add(wxString::FromUTF8(name));
    return array;
}

template <class Picker>
void Layout(char const* label, int id)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    auto* const choice = Find<wxChoice>(picker);
    auto* const text = Find<wxStaticText>(picker);
    auto* const line = Find<wxStaticLine>(picker);

    CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0);
    CHECK(choice->GetId() == id);
    CHECK(choice->GetCount() == 0);
    CHECK(choice->GetSelection() == wxNOT_FOUND);
    CHECK(text->GetLabel() == label);
    CHECK(line->GetWindowStyle() == wxLI_HORIZONTAL);

    auto* const top = dynamic_cast<wxBoxSizer*>(picker->GetSizer());
    REQUIRE(top);
    CHECK(top->GetOrientation() == wxVERTICAL);
    REQUIRE(top->GetItemCount() == 2);
    CHECK(PlacementOf(Item(top, 0))
          == Placement{1, wxEXPAND | wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL, 5});
    CHECK(Item(top, 1)->GetWindow() == line);
    CHECK(PlacementOf(Item(top, 1)) == Placement{0, wxEXPAND | wxTOP | wxBOTTOM, 5});

    auto* const row = dynamic_cast<wxFlexGridSizer*>(Item(top, 0)->GetSizer());
    REQUIRE(row);
    CHECK(row->GetRows() == 1);
    CHECK(row->GetCols() == 3);
    CHECK(row->GetHGap() == 0);
    CHECK(row->GetVGap() == 0);
    CHECK(row->GetFlexibleDirection() == wxHORIZONTAL);
    CHECK(row->IsColGrowable(1));
    CHECK(!row->IsColGrowable(0));
    REQUIRE(row->GetItemCount() == 3);
    CHECK(Item(row, 0)->GetWindow() == text);
    CHECK(PlacementOf(Item(row, 0))
          == Placement{1, wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL | wxLEFT, 5});
    CHECK(Item(row, 1)->IsSpacer());
    CHECK(Item(row, 1)->GetMinSize() == wxSize(10, 1));
    CHECK(PlacementOf(Item(row, 1)) == Placement{100, 0, 0});
    CHECK(Item(row, 2)->GetWindow() == choice);
    CHECK(PlacementOf(Item(row, 2))
          == Placement{1, wxEXPAND | wxALIGN_BOTTOM | wxBOTTOM | wxRIGHT, 5});
}

template <class Picker>
void NamesAndSelection()
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    auto* const choice = Find<wxChoice>(picker);
    int events = 0;
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++events; });

    auto names = Names({"gdp", "GDP", "", "données", "a b", "gdp "});
    picker->SetChoices(names);
    CHECK(choice->GetStrings() == names);
    CHECK(picker->GetSelection() == wxNOT_FOUND);
    CHECK(picker->GetSelectionString().empty());

    picker->SetSelection(3);
    CHECK(picker->GetSelection() == 3);
    CHECK(picker->GetSelectionString() == "donn\xc3\xa9" "es");
    picker->SetSelection(2);
    CHECK(picker->GetSelection() == 2);
    CHECK(picker->GetSelectionString().empty());
    for (int const outside : {6, 1000, -1, -2, -1000})
    {
        picker->SetSelection(1);
        picker->SetSelection(outside);
        CHECK(picker->GetSelection() == wxNOT_FOUND);
    }

    picker->SetSelection(1);
    auto fewer = Names({"cpi"});
    picker->SetChoices(fewer);
    CHECK(choice->GetStrings() == fewer);
    CHECK(picker->GetSelection() == wxNOT_FOUND);

    auto none = Names({});
    picker->SetSelection(0);
    picker->SetChoices(none);
    CHECK(choice->GetCount() == 0);
    CHECK(picker->GetSelection() == wxNOT_FOUND);
    CHECK(picker->GetSelectionString().empty());
    picker->SetSelection(0);
    CHECK(picker->GetSelection() == wxNOT_FOUND);

    picker->SetChoices(names);
    picker->SetSelection(4);
    picker->ClearChoices();
    CHECK(choice->GetCount() == 0);
    CHECK(picker->GetSelectionString().empty());
    Pump();
    CHECK(events == 0);
}

template <class Picker>
void ByName()
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    int events = 0;
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++events; });
    auto names = Names({"gdp", "GDP", "données"});
    picker->SetChoices(names);

    for (int i = 2; i >= 0; --i)
    {
        picker->SetChoice(names[static_cast<std::size_t>(i)]);
        CHECK(picker->GetSelection() == i);
    }
    wxString unknown = "Gdp";
    picker->SetChoice(unknown);
    CHECK(picker->GetSelection() == wxNOT_FOUND);
    CHECK(picker->GetSelectionString().empty());
    picker->ClearChoices();
    picker->SetChoice(names[0]);
    CHECK(picker->GetSelection() == wxNOT_FOUND);
    Pump();
    CHECK(events == 0);
}

/// Opens the drop-down list with the mouse and picks entry `index` with the keys.
inline void Pick(wxChoice* choice, int index)
{
    Click(choice);
    Pump(150);
    Press(WXK_HOME);
    for (int step = 0; step < index; ++step)
        Press(WXK_DOWN);
    Press(WXK_RETURN);
    Pump(150);
}

template <class Picker>
void RealChanges()
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    stage.Fill(picker);
    auto* const choice = Find<wxChoice>(picker);
    int atPicker = 0;
    int atFrame = 0;
    picker->Bind(wxEVT_CHOICE, [&](wxCommandEvent& event) { ++atPicker; event.Skip(); });
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++atFrame; });
    auto names = Names({"labour", "macro", "wages"});
    picker->SetChoices(names);
    picker->SetSelection(0);
    picker->SetCurrentSelection(0);
    Pump();

    Pick(choice, 1);
    CHECK(picker->GetSelectionString() == "macro");
    CHECK(atPicker == 1);
    CHECK(atFrame == 1);

    // The same entry again: nobody hears of it.
    Pick(choice, 1);
    CHECK(picker->GetSelectionString() == "macro");
    CHECK(atFrame == 1);

    // Moved by program without telling the filter: the way back to the old entry is swallowed ...
    picker->SetSelection(2);
    Pick(choice, 1);
    CHECK(picker->GetSelectionString() == "macro");
    CHECK(atFrame == 1);
    // ... and any other entry is reported.
    picker->SetSelection(2);
    Pick(choice, 0);
    CHECK(picker->GetSelectionString() == "labour");
    CHECK(atFrame == 2);
    CHECK(atPicker == 2);

    picker->SetSelection(2);
    picker->SetCurrentSelection(2);
    Pick(choice, 0);
    CHECK(atFrame == 3);
    Keep(Photograph(stage.Frame()),
         Find<wxStaticText>(picker)->GetLabel().BeforeFirst(':') + "Picker");
}

/// The handler itself, asked by program.
template <class Picker>
void Filter(void (Picker::*handler)(wxCommandEvent&))
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    auto names = Names({"a", "b", "c"});
    picker->SetChoices(names);
    auto const travels = [&](int selection)
    {
        picker->SetSelection(selection);
        wxCommandEvent event(wxEVT_CHOICE);
        event.Skip(false);
        (picker->*handler)(event);
        return event.GetSkipped();
    };
    CHECK(!travels(0)); // The memory starts at 0.
    CHECK(travels(2));
    CHECK(!travels(2));
    CHECK(travels(wxNOT_FOUND));
    picker->SetCurrentSelection(1);
    CHECK(!travels(1));
    CHECK(travels(0));
}

template <class Picker>
void ThousandNames()
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    wxArrayString names;
    for (int i = 0; i < 1000; ++i)
        names.Add(wxString::Format("name_%04d", i));
    picker->SetChoices(names);
    CHECK(Find<wxChoice>(picker)->GetStrings() == names);
    picker->SetSelection(999);
    CHECK(picker->GetSelectionString() == "name_0999");
    picker->ClearChoices();
    CHECK(Find<wxChoice>(picker)->GetCount() == 0);
}
} // namespace picker_checks
