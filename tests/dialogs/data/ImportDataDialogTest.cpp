#include "dialogs/data/ImportDataDialog.h"

#include <wx/button.h>
#include <wx/radiobox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/RunDialog.h"

namespace
{
constexpr char const* BAD_NAME = "A dataset name must start with a letter\nand cannot contain spaces or any "
                                 "special\ncharacters (dots, commas, quotes, etc.).";
} // namespace

TEST_CASE("import dialog: layout")
{
    Stage stage;
    wxString name = "us_macro";
    ImportDataDialog dialog(stage.Frame(), name);
    CHECK(dialog.GetTitle() == "Import Data");
    CHECK(dialog.GetParent() == stage.Frame());
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL) == wxDEFAULT_DIALOG_STYLE);
    auto* const text = Find<wxTextCtrl>(&dialog);
    auto* const label = Find<wxStaticText>(&dialog);
    auto* const box = Find<wxRadioBox>(&dialog);
    CHECK(text->GetValue() == "us_macro");
    CHECK(label->GetLabel() == "Dataset name:");
    CHECK(label->GetMinSize() == wxSize(100, 23));
    CHECK(text->GetMinSize() == wxSize(160, 23));
    CHECK(box->GetLabel() == "Delimiter");
    REQUIRE(box->GetCount() == 3);
    CHECK(box->GetString(0) == "Comma");
    CHECK(box->GetString(1) == "Semicolon");
    CHECK(box->GetString(2) == "Tab");
    CHECK(box->GetSelection() == 0);
    CHECK(box->GetColumnCount() == 1);
    CHECK(box->HasFlag(wxRA_SPECIFY_COLS));
    CHECK(dialog.FindWindow(wxID_OK)->GetLabel() == "&Import");
    CHECK(dialog.FindWindow(wxID_CANCEL)->GetLabel() == "&Cancel");

    auto* const sizer = dynamic_cast<wxBoxSizer*>(dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == 3);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(sizer, 1)->GetWindow() == box);
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(dynamic_cast<wxStdDialogButtonSizer*>(Item(sizer, 2)->GetSizer()));
    CHECK(PlacementOf(Item(sizer, 2))
          == Placement{1, wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM, 5});

    auto* const rows = dynamic_cast<wxBoxSizer*>(Item(sizer, 0)->GetSizer());
    REQUIRE(rows);
    CHECK(rows->GetOrientation() == wxVERTICAL);
    REQUIRE(rows->GetItemCount() == 1);
    CHECK(PlacementOf(Item(rows, 0)) == Placement{0, wxEXPAND, 0});
    auto* const row = dynamic_cast<wxBoxSizer*>(Item(rows, 0)->GetSizer());
    REQUIRE(row);
    CHECK(row->GetOrientation() == wxHORIZONTAL);
    CHECK(Item(row, 0)->GetWindow() == label);
    CHECK(PlacementOf(Item(row, 0)) == Placement{1, wxEXPAND | wxALIGN_BOTTOM, 0});
    CHECK(Item(row, 1)->GetWindow() == text);
    CHECK(PlacementOf(Item(row, 1)) == Placement{2, wxEXPAND, 0});
}

TEST_CASE("import dialog: six characters are refused in a name, and nothing else is")
{
    Stage stage;
    wxString name;
    ImportDataDialog dialog(stage.Frame(), name);
    for (char const* bad : {"a b", "a\tb", "a\nb", "a\rb", "a,b", "a.b", " ", "wages ", ".csv"})
        CHECK_FALSE(dialog.CheckIDString(bad));
    for (char const* good : {"", "wages", "2wages", "a\"b", "a'b", "a;b", "a-b", "_", "a/b", "\v", "\f"})
        CHECK(dialog.CheckIDString(good));
    CHECK(dialog.CheckIDString(wxString::FromUTF8("données")));
}

TEST_CASE("import dialog: the delimiter follows the radio box")
{
    Stage stage;
    wxString name;
    ImportDataDialog dialog(stage.Frame(), name);
    auto* const box = Find<wxRadioBox>(&dialog);
    CHECK(dialog.GetDelimiter() == 44);
    box->SetSelection(1);
    CHECK(dialog.GetDelimiter() == 59);
    box->SetSelection(2);
    CHECK(dialog.GetDelimiter() == 9);
    box->SetSelection(0);
    CHECK(dialog.GetDelimiter() == 44);
}

TEST_CASE("import dialog: a name with a blank is answered by a warning, and the dialog stays")
{
    Stage stage;
    wxString name = "us macro";
    ImportDataDialog dialog(stage.Frame(), name);
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CheckRefused(dialog, BAD_NAME,
                                                  [&] { Click(dialog.FindWindow(wxID_OK)); });
                                     CHECK(dialog.GetDatasetName() == "us macro");
                                     Click(dialog.FindWindow(wxID_CANCEL));
                                 });
    CHECK(answer == wxID_CANCEL);
}

TEST_CASE("import dialog: typing goes into the name field, and Import ends the dialog")
{
    Stage stage;
    wxString name = "wages";
    ImportDataDialog dialog(stage.Frame(), name);
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CHECK(wxWindow::FindFocus() == Find<wxTextCtrl>(&dialog));
                                     Press('A', wxMOD_CONTROL);
                                     TypeText("2nd_try");
                                     CHECK(dialog.GetDatasetName() == "2nd_try");
                                     Keep(Photograph(&dialog), "ImportDataDialog");
                                     Click(dialog.FindWindow(wxID_OK));
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetDatasetName() == "2nd_try");
}

TEST_CASE("import dialog: an empty name passes")
{
    Stage stage;
    wxString name;
    ImportDataDialog dialog(stage.Frame(), name);
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_OK)); }) == wxID_OK);
    CHECK(dialog.GetDatasetName().empty());
}

TEST_CASE("import dialog: Escape and closing the window cancel")
{
    Stage stage;
    wxString name = "a b";
    ImportDataDialog dialog(stage.Frame(), name);
    CHECK(RunDialog(dialog, [&] { Press(WXK_ESCAPE); }) == wxID_CANCEL);
    CHECK(RunDialog(dialog, [&] { dialog.Close(); }) == wxID_CANCEL);
}

TEST_CASE("import dialog: Enter in the name field accepts")
{
    Stage stage;
    wxString name = "wages";
    ImportDataDialog dialog(stage.Frame(), name);
    CHECK(RunDialog(dialog, [] { Press(WXK_RETURN); }) == wxID_OK);
}
