#include "pickers/ScriptPicker.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/filepicker.h>
#include <wx/stattext.h>

#include "support/AsciiLocale.h"
#include "support/FileChooser.h"
#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"
#include "support/TabOrder.h"

TEST_CASE("script picker: a label over a field")
{
    Stage stage;
    wxString label = "Model file:";
    int const width = GENERATE(272, 500);
    auto* const picker = new ScriptPicker(stage.Frame(), label, width);
    auto* const text = Find<wxStaticText>(picker);
    auto* const file = Find<wxFilePickerCtrl>(picker);
    CHECK(text->GetLabel() == "Model file:");
    CHECK(text->GetMinSize() == wxSize(260, 23));
    CHECK(file->GetMinSize() == wxSize(width, 27));
    long const flags = wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL | wxFLP_SMALL;
    CHECK((file->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == flags);
    CHECK(file->GetPath().empty());
    CHECK(picker->GetText().empty());

    auto* const grid = picker->GetSizer();
    CHECK(Shape(grid) == "2 rows, 1 column, column 0 grows");
    REQUIRE(grid->GetItemCount() == 2);
    CHECK(Item(grid, 0)->GetWindow() == text);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{0, wxALIGN_BOTTOM | wxTOP | wxRIGHT | wxLEFT, 5});
    CHECK(Item(grid, 1)->GetWindow() == file);
    CHECK(PlacementOf(Item(grid, 1)) == Placement{0, wxBOTTOM | wxRIGHT | wxLEFT, 5});
}

TEST_CASE("script picker: typed text is returned as it stands, whether there is such a file or not")
{
    Stage stage;
    wxString label = "Script:";
    auto* const picker = new ScriptPicker(stage.Frame(), label, 500);
    stage.Fill(picker);
    auto* const field = Find<wxTextCtrl>(picker);
    Click(field);
    TypeText("no such folder/my model.m");
    CHECK(picker->GetText() == "no such folder/my model.m");
    Press('A', wxMOD_CONTROL);
    Press(WXK_BACK);
    CHECK(picker->GetText().empty());
    for (auto const* text :
         {"  ", "x.m ", "-flag", "~/a.R", "\"q\".stan", "mod\xC3\xA8le.bug", "\xF0\x9D\x9C\x8E"})
    {
        field->SetValue(wxString::FromUTF8(text));
        CHECK(picker->GetText() == text);
    }
    // Not even the longest path loses its end, nor to a key.
    std::string const path = "/" + std::string(5000, 'j') + "/model.b";
    field->SetValue(path);
    field->SetInsertionPointEnd();
    TypeText("ug");
    CHECK(picker->GetText() == path + "ug");
    Find<wxFilePickerCtrl>(picker)->SetPath(path);
    CHECK(field->GetValue() == path);
    field->SetValue("models/b.m");
    Keep(Photograph(stage.Frame()), "ScriptPicker");
}

TEST_CASE("script picker: a path that does not convert gives an empty text")
{
    Stage stage;
    wxString label = "Script:";
    auto* const picker = new ScriptPicker(stage.Frame(), label, 272);
    Find<wxFilePickerCtrl>(picker)->SetPath(wxString::FromUTF8("mod\xC3\xA8le.bug"));
    CHECK(picker->GetText() == "mod\xC3\xA8le.bug");
    AsciiLocale const ascii;
    CHECK(picker->GetText().empty());
    Find<wxFilePickerCtrl>(picker)->SetPath("model.bug");
    CHECK(picker->GetText() == "model.bug");
}

TEST_CASE("script picker: the button asks for an existing file of any kind")
{
    Stage stage;
    wxString label = "Script:";
    auto* const picker = new ScriptPicker(stage.Frame(), label, 272);
    stage.Fill(picker);
    auto const order = TabOrder(Find<wxTextCtrl>(picker), 1);
    REQUIRE(order.size() == 2);
    CHECK(order[1] == Find<wxButton>(picker));

    CheckChooser(order[1], "Select a file", "*.*", {wxFD_OPEN, wxFD_FILE_MUST_EXIST});
    CHECK(picker->GetText().empty());
}
