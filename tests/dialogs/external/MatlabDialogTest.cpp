#include "dialogs/external/MatlabDialog.h"

#include "dialogs/external/ScriptChecks.h"

using namespace script_checks;

namespace
{
constexpr Words WORDS{"MATLAB® Interface",
                      "MATLAB® Script",
                      "Location of the MATLAB® script file:",
                      "Zenqo Items to Pass to MATLAB®",
                      "MATLAB® Matrices to Pass to Zenqo",
                      "mat1, mat2, ...",
                      "No MATLAB® script has been provided."};
}

TEST_CASE("MATLAB dialog: the script, the options and two fields for items")
{
    Stage stage;
    MatlabDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    auto* const sizer = CheckBoxes(dialog, WORDS, 1);

    auto* const box = CheckBoxAround(Item(sizer, 1), "Command-line options",
                                     {0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5}, 2);
    auto* const text = dynamic_cast<wxStaticText*>(Item(box, 0)->GetWindow());
    REQUIRE(text);
    CHECK(text->GetLabel() == "Options to pass to the command that calls MALTAB:");
    CHECK(text->GetMinSize() == wxSize(150, 23));
    CHECK(PlacementOf(Item(box, 0)) == Placement{1, wxEXPAND | wxLEFT | wxRIGHT | wxTOP, 5});
    auto* const options = dynamic_cast<wxTextCtrl*>(Item(box, 1)->GetWindow());
    REQUIRE(options);
    CHECK(options->GetMinSize() == wxSize(400, -1));
    CHECK(PlacementOf(Item(box, 1)) == Placement{1, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    CHECK(FontOf(options) == "10 points, modern");
    CHECK(options->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(!options->GetFont().GetUnderlined());
}

TEST_CASE("MATLAB dialog: the options are as they stand, with or without any")
{
    Fixture<MatlabDialog> fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetOptions() == "-nojvm -nodesktop -nodisplay -nosplash -minimize -wait -r");
    auto* const options = Find<wxTextCtrl>(&dialog, 1);
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        fixture.script->SetValue("a.m");
                        Click(options);
                        Press('A', wxMOD_CONTROL);
                        Press(WXK_DELETE);
                        CHECK(dialog.GetOptions().empty());
                        Click(fixture.run);
                    })
          == wxID_OK);
    CHECK(dialog.GetOptions().empty());
    options->SetValue(wxString::FromUTF8("  -r \xCE\xB2 "));
    CHECK(dialog.GetOptions() == "  -r \xCE\xB2 ");
    AsciiLocale const ascii;
    CHECK(dialog.GetOptions().empty());
}

TEST_CASE("MATLAB dialog: what it asks and what it gives")
{
    CheckAll<MatlabDialog>(WORDS, true);
}
