#include "pickers/TextPicker.h"

#include <catch2/catch.hpp>

#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "support/AsciiLocale.h"
#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"

TEST_CASE("text picker: a field over a line with an example")
{
    Stage stage;
    wxString example = "alpha, beta[1]";
    auto* const picker = new TextPicker(stage.Frame(), example, 500, 70);
    stage.Fill(picker);
    auto* const field = Find<wxTextCtrl>(picker);
    auto* const word = Find<wxStaticText>(picker, 0);
    auto* const text = Find<wxStaticText>(picker, 1);
    CHECK(field->GetMinSize() == wxSize(500, 70));
    CHECK(field->GetValue().empty());
    CHECK(field->HasFlag(wxTE_MULTILINE));
    CHECK(field->HasFlag(wxTE_RICH));
    CHECK(FontOf(field) == "10 points, modern");
    CHECK(field->GetFont().GetFaceName() == "Courier 10 Pitch");
    std::string const points = std::to_string(wxNORMAL_FONT->GetPointSize()) + " points";
    CHECK(word->GetLabel() == "Example:");
    CHECK(word->GetMinSize() == wxSize(67, 23));
    CHECK(FontOf(word) == points + ", modern, bold");
    CHECK(text->GetLabel() == "alpha, beta[1]");
    CHECK(text->GetMinSize() == wxSize(310, 23));
    CHECK(FontOf(text) == points + ", modern");

    auto* const outer = picker->GetSizer();
    CHECK(Shape(outer) == "3 rows, 1 column, row 0 grows, column 0 grows");
    REQUIRE(outer->GetItemCount() == 2);
    CHECK(Item(outer, 0)->GetWindow() == field);
    CHECK(PlacementOf(Item(outer, 0)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK(PlacementOf(Item(outer, 1)) == Placement{0, wxEXPAND, 5});
    auto* const line = Item(outer, 1)->GetSizer();
    CHECK(Shape(line) == "1 row, 2 columns, column 1 grows");
    REQUIRE(line->GetItemCount() == 2);
    CHECK(Item(line, 0)->GetWindow() == word);
    CHECK(PlacementOf(Item(line, 0)) == Placement{0, wxLEFT, 5});
    CHECK(Item(line, 1)->GetWindow() == text);
    CHECK(PlacementOf(Item(line, 1)) == Placement{0, wxALIGN_BOTTOM | wxLEFT, 2});
}

TEST_CASE("text picker: without a height the sizer gives the field its own, and all that is left over")
{
    Stage stage;
    wxString example = "x";
    auto* const picker = new TextPicker(stage.Frame(), example, 400, -1);
    auto* const field = Find<wxTextCtrl>(picker);
    CHECK(field->GetMinSize() == wxSize(400, -1));
    wxSize const least = picker->GetSizer()->GetMinSize();
    int const lineHeight = least.y - field->GetBestSize().y - 10;
    CHECK(lineHeight >= 23);
    picker->SetSize(least);
    picker->Layout();
    CHECK(field->GetSize().y == field->GetBestSize().y);
    stage.Fill(picker);
    CHECK(field->GetSize() == picker->GetSize() - wxSize(10, lineHeight + 10));
}

TEST_CASE("text picker: the whole text comes back with its line ends")
{
    Stage stage;
    wxString example = "x = 1; y = 2;";
    auto* const picker = new TextPicker(stage.Frame(), example, 500, 70);
    stage.Fill(picker);
    auto* const field = Find<wxTextCtrl>(picker);
    CHECK(picker->GetText().empty());
    Click(field);
    TypeText("x = 1;");
    Press(WXK_RETURN);
    Press(WXK_RETURN);
    TypeText(" y ");
    CHECK(picker->GetText() == "x = 1;\n\n y ");
    Keep(Photograph(stage.Frame()), "TextPicker");
    for (auto const* text : {"", "\n", "a\n", "\ta", "\xCE\xB2 = \"1\"\n\xF0\x9D\x9C\x8E", "<b>&amp;"})
    {
        field->SetValue(wxString::FromUTF8(text));
        CHECK(picker->GetText() == text);
    }
    std::string lines;
    for (int i = 0; i < 1000; ++i)
        lines += "alpha[" + std::to_string(i) + "] ~ dnorm(0, 0.001);\n";
    field->SetValue(lines);
    CHECK(picker->GetText() == lines);
}

TEST_CASE("text picker: a text that does not convert comes back empty")
{
    Stage stage;
    wxString example = wxString::FromUTF8("\xCE\xB2[1]");
    auto* const picker = new TextPicker(stage.Frame(), example, 400, -1);
    stage.Fill(picker);
    CHECK(Find<wxStaticText>(picker, 1)->GetLabel() == wxString::FromUTF8("\xCE\xB2[1]"));
    Find<wxTextCtrl>(picker)->SetValue(wxString::FromUTF8("\xCE\xB2"));
    AsciiLocale const ascii;
    CHECK(picker->GetText().empty());
}
