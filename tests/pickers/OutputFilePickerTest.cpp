#include "pickers/OutputFilePicker.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/filepicker.h>
#include <wx/radiobut.h>

#include "support/AsciiLocale.h"
#include "support/FileChooser.h"
#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"
#include "support/TabOrder.h"

namespace
{
struct Controls
{
    explicit Controls(OutputFilePicker const* picker)
        : standard(Find<wxRadioButton>(picker, 0)), custom(Find<wxRadioButton>(picker, 1)),
          file(Find<wxFilePickerCtrl>(picker))
    {
    }
    wxRadioButton* standard;
    wxRadioButton* custom;
    wxFilePickerCtrl* file;
};
} // namespace

TEST_CASE("output file picker: two choices, and a field beside the second")
{
    Stage stage;
    auto* const picker = new OutputFilePicker(stage.Frame(), "diagnostic file");
    stage.Fill(picker);
    Controls const controls(picker);
    CHECK(controls.standard->GetLabel() == "Default diagnostic file");
    CHECK(controls.custom->GetLabel() == "Custom diagnostic file");
    CHECK(!controls.standard->HasFlag(wxRB_GROUP));
    CHECK(!controls.custom->HasFlag(wxRB_GROUP));
    CHECK(controls.standard->GetValue());
    CHECK(!controls.custom->GetValue());
    CHECK(!controls.file->IsThisEnabled());
    CHECK(controls.file->GetPath().empty());
    CHECK(controls.file->GetMinSize() == wxDefaultSize);
    long const flags = wxFLP_SAVE | wxFLP_OVERWRITE_PROMPT | wxFLP_USE_TEXTCTRL | wxFLP_SMALL;
    CHECK((controls.file->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == flags);

    auto* const grid = picker->GetSizer();
    CHECK(Shape(grid) == "2 rows, 2 columns, column 1 grows");
    REQUIRE(grid->GetItemCount() == 4);
    CHECK(Item(grid, 0)->GetWindow() == controls.standard);
    CHECK(PlacementOf(Item(grid, 0)) == Placement{1, wxEXPAND | wxTOP | wxLEFT, 5});
    CHECK(Item(grid, 1)->IsSpacer());
    CHECK(Item(grid, 1)->GetMinSize() == wxSize(1, 1));
    CHECK(Item(grid, 2)->GetWindow() == controls.custom);
    CHECK(PlacementOf(Item(grid, 2)) == Placement{1, wxEXPAND | wxBOTTOM | wxLEFT, 5});
    CHECK(Item(grid, 3)->GetWindow() == controls.file);
    CHECK(PlacementOf(Item(grid, 3)) == Placement{10, wxEXPAND | wxBOTTOM | wxRIGHT | wxLEFT, 5});
}

TEST_CASE("output file picker: the default is an empty name, and a custom path survives it")
{
    Stage stage;
    auto* const picker = new OutputFilePicker(stage.Frame(), "output file");
    stage.Fill(picker);
    Controls const controls(picker);
    CHECK(picker->GetFilename().empty());

    Click(controls.custom);
    CHECK(controls.file->IsEnabled());
    CHECK(picker->GetFilename().empty()); // A custom path that is empty is returned as it stands.
    auto* const field = Find<wxTextCtrl>(picker);
    Click(field);
    TypeText("out/my chain.csv");
    CHECK(picker->GetFilename() == "out/my chain.csv");
    Keep(Photograph(stage.Frame()), "OutputFilePicker");

    Click(controls.standard);
    CHECK(!controls.file->IsEnabled());
    CHECK(picker->GetFilename().empty());
    CHECK(field->GetValue() == "out/my chain.csv");
    // Nothing can be typed into the disabled field.
    Click(field);
    TypeText("x");
    CHECK(field->GetValue() == "out/my chain.csv");

    Click(controls.custom);
    CHECK(controls.file->IsEnabled());
    CHECK(picker->GetFilename() == "out/my chain.csv");
}

TEST_CASE("output file picker: by the keys alone")
{
    Stage stage;
    auto* const picker = new OutputFilePicker(stage.Frame(), "output file");
    stage.Fill(picker);
    Controls const controls(picker);
    controls.standard->SetFocus();
    Press(WXK_DOWN);
    CHECK(controls.custom->GetValue());
    CHECK(controls.file->IsEnabled());
    auto const order = TabOrder(controls.custom, 2);
    REQUIRE(order.size() == 3);
    CHECK(order[1] == Find<wxTextCtrl>(picker));
    CHECK(order[2] == Find<wxButton>(picker));

    CheckChooser(order[2], "Output File:", "All files |*.*;*", {wxFD_SAVE, wxFD_OVERWRITE_PROMPT});
    CHECK(picker->GetFilename().empty());

    controls.custom->SetFocus();
    Press(WXK_UP);
    CHECK(controls.standard->GetValue());
    CHECK(!controls.file->IsEnabled());
}

TEST_CASE("output file picker: the handlers look at no event and let none travel on")
{
    Stage stage;
    auto* const picker = new OutputFilePicker(stage.Frame(), "output file");
    stage.Fill(picker);
    Controls const controls(picker);
    wxCommandEvent event;
    event.Skip(false);
    picker->OnCustomChoice(event);
    CHECK(controls.file->IsThisEnabled());
    picker->OnDefaultChoice(event);
    CHECK(!controls.file->IsThisEnabled());
    CHECK(!event.GetSkipped());

    // Setting the buttons by program moves nothing.
    controls.custom->SetValue(true);
    CHECK(!controls.file->IsThisEnabled());
    CHECK(!controls.standard->GetValue());
}

TEST_CASE("output file picker: two on one window do not disturb each other")
{
    Stage stage;
    auto* const both = new wxPanel(stage.Frame());
    auto* const first = new OutputFilePicker(both, "output file");
    auto* const second = new OutputFilePicker(both, "diagnostic file");
    both->SetSizer(new wxBoxSizer(wxVERTICAL));
    both->GetSizer()->Add(first);
    both->GetSizer()->Add(second);
    stage.Fill(both);
    Controls(first).custom->SetValue(true);
    CHECK(Controls(second).standard->GetValue());
    Controls(second).custom->SetValue(true);
    CHECK(Controls(first).custom->GetValue());
}

TEST_CASE("output file picker: paths of any kind")
{
    Stage stage;
    auto* const picker = new OutputFilePicker(stage.Frame(), wxString::FromUTF8("sortie \xC3\xA9"));
    stage.Fill(picker);
    Controls const controls(picker);
    CHECK(controls.custom->GetLabel() == wxString::FromUTF8("Custom sortie \xC3\xA9"));
    controls.custom->SetValue(true);
    for (auto const* text : {" ", "-x", "\"a\".csv", "r\xC3\xA9sultat.csv"})
    {
        controls.file->SetPath(wxString::FromUTF8(text));
        CHECK(picker->GetFilename() == text);
    }
    // Not even the longest path loses its end.
    std::string const path = "/" + std::string(5000, 'j') + "/draws.csv";
    Find<wxTextCtrl>(picker)->SetValue(path);
    CHECK(picker->GetFilename() == path);
    controls.file->SetPath(path + "2");
    CHECK(Find<wxTextCtrl>(picker)->GetValue() == path + "2");
    controls.file->SetPath(wxString::FromUTF8("r\xC3\xA9sultat.csv"));
    AsciiLocale const ascii;
    CHECK(picker->GetFilename().empty());
}
