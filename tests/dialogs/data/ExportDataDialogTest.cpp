#include "dialogs/data/ExportDataDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>

#include "pickers/DatasetPicker.h"
#include "support/Find.h"
#include "support/RunDialog.h"

namespace
{
DatasetMap Workspace(std::initializer_list<char const*> names)
{
    DatasetMap map;
    for (auto const* name : names)
        map[name] = std::make_shared<Dataset>();
    return map;
}
} // namespace

TEST_CASE("export dialog: layout")
{
    Stage stage;
    auto map = Workspace({"wages", "us_macro"});
    ExportDataDialog dialog(stage.Frame(), &map, 0, true);
    CHECK(dialog.GetTitle() == "Export Data");
    CHECK(dialog.FindWindow(wxID_OK)->GetLabel() == "&Export");
    CHECK(dialog.FindWindow(wxID_CANCEL)->GetLabel() == "&Cancel");
    auto* const picker = Find<DatasetPicker>(&dialog);
    auto* const file = Find<wxFilePickerCtrl>(&dialog);
    auto* const radio = Find<wxRadioBox>(&dialog);
    CHECK(file->HasFlag(wxFLP_SAVE));
    CHECK(file->HasFlag(wxFLP_OVERWRITE_PROMPT));
    CHECK(file->HasFlag(wxFLP_USE_TEXTCTRL));
    CHECK(radio->GetLabel() == "Delimiter");
    CHECK(radio->GetCount() == 3);

    auto* const sizer = dialog.GetSizer();
    REQUIRE(sizer->GetItemCount() == 4);
    auto* const upper = dynamic_cast<wxStaticBoxSizer*>(Item(sizer, 0)->GetSizer());
    auto* const lower = dynamic_cast<wxStaticBoxSizer*>(Item(sizer, 1)->GetSizer());
    REQUIRE(upper);
    REQUIRE(lower);
    CHECK(upper->GetStaticBox()->GetLabel() == "Dataset to export");
    CHECK(lower->GetStaticBox()->GetLabel() == "File name and location");
    CHECK(upper->GetOrientation() == wxVERTICAL);
    CHECK(lower->GetOrientation() == wxVERTICAL);
    for (std::size_t i = 0; i < 3; ++i)
        CHECK(PlacementOf(Item(sizer, i)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(upper, 0)->GetWindow() == picker);
    CHECK(PlacementOf(Item(upper, 0)) == Placement{2, wxEXPAND, 5});
    CHECK(Item(lower, 0)->GetWindow() == file);
    CHECK(PlacementOf(Item(lower, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(sizer, 2)->GetWindow() == radio);
    CHECK(PlacementOf(Item(sizer, 3))
          == Placement{1, wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM, 5});
}

TEST_CASE("export dialog: names come in the map's order, the selection and the path with them")
{
    Stage stage;
    auto map = Workspace({"wages", "us_macro", "B", "a"});
    ExportDataDialog dialog(stage.Frame(), &map, 2, false);
    auto const names = Find<wxChoice>(&dialog)->GetStrings();
    REQUIRE(names.size() == 4);
    CHECK(names[0] == "B");
    CHECK(names[1] == "a");
    CHECK(names[2] == "us_macro");
    CHECK(names[3] == "wages");
    CHECK(dialog.GetDatasetName() == "us_macro");
    CHECK(dialog.GetFileName() == "./us_macro.csv");
    CHECK(dialog.GetPath() == ".");
    CHECK(dialog.GetDelimiter() == 44);
    Find<wxRadioBox>(&dialog)->SetSelection(1);
    CHECK(dialog.GetDelimiter() == 59);
    Find<wxRadioBox>(&dialog)->SetSelection(2);
    CHECK(dialog.GetDelimiter() == 9);
}

TEST_CASE("export dialog: a selection past the end selects the first dataset")
{
    Stage stage;
    auto map = Workspace({"a", "b"});
    int const selection = GENERATE(2, 3, 1000);
    ExportDataDialog dialog(stage.Frame(), &map, selection, false);
    CHECK(dialog.GetDatasetName() == "a");
    CHECK(dialog.GetFileName() == "./a.csv");
}

TEST_CASE("export dialog: an empty workspace")
{
    Stage stage;
    DatasetMap map;
    ExportDataDialog dialog(stage.Frame(), &map, 0, false);
    CHECK(Find<wxChoice>(&dialog)->GetCount() == 0);
    CHECK(dialog.GetDatasetName().empty());
    CHECK(dialog.GetFileName() == "./.csv");
    CHECK(dialog.GetPath() == ".");
    dialog.SetDataset(0);
    CHECK(dialog.GetFileName() == "./.csv");
}

TEST_CASE("export dialog: the path follows SetDataset, and not the user's choice of a dataset")
{
    Stage stage;
    auto map = Workspace({"a", "b", "donn\xc3\xa9" "es"});
    ExportDataDialog dialog(stage.Frame(), &map, 0, false);
    dialog.SetDataset(1);
    CHECK(dialog.GetDatasetName() == "b");
    CHECK(dialog.GetFileName() == "./b.csv");
    dialog.SetDataset(2);
    CHECK(dialog.GetDatasetName() == "donn\xc3\xa9" "es");
    CHECK(dialog.GetFileName() == "./donn\xc3\xa9" "es.csv");
    for (int const outside : {3, -1})
    {
        dialog.SetDataset(outside);
        CHECK(dialog.GetFileName() == "./donn\xc3\xa9" "es.csv");
    }

    Find<wxFilePickerCtrl>(&dialog)->SetPath("/tmp/no such folder/x.dat");
    CHECK(dialog.GetFileName() == "/tmp/no such folder/x.dat");
    CHECK(dialog.GetPath() == "/tmp/no such folder");
    Find<wxFilePickerCtrl>(&dialog)->SetPath("");
    CHECK(dialog.GetFileName().empty());
    CHECK(dialog.GetPath().empty());
}

TEST_CASE("export dialog: chosen, typed and accepted by hand")
{
    Stage stage;
    auto map = Workspace({"labour_force", "us_macro", "wages"});
    ExportDataDialog dialog(stage.Frame(), &map, 0, false);
    int const answer = RunDialog(
        dialog,
        [&]
        {
            Click(Find<wxChoice>(&dialog));
            Pump(150);
            Press(WXK_DOWN);
            Press(WXK_RETURN);
            Pump(150);
            CHECK(dialog.GetDatasetName() == "us_macro");
            CHECK(dialog.GetFileName() == "./labour_force.csv");
            Find<wxTextCtrl>(&dialog)->SetFocus();
            Press('A', wxMOD_CONTROL);
            TypeText("out/macro.txt");
            CHECK(dialog.GetFileName() == "out/macro.txt");
            CHECK(dialog.GetPath() == "out");
            auto* const radio = Find<wxRadioBox>(&dialog);
            ClickAt(radio, wxPoint(20, radio->GetSize().y - 20));
            CHECK(dialog.GetDelimiter() == '\t');
            Keep(Photograph(&dialog), "ExportDataDialog");
            Click(dialog.FindWindow(wxID_OK));
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetFileName() == "out/macro.txt");
}

TEST_CASE("export dialog: Escape and Cancel cancel")
{
    Stage stage;
    auto map = Workspace({"a"});
    ExportDataDialog dialog(stage.Frame(), &map, 0, false);
    CheckWaysOut(dialog);
}
