#include "dialogs/application/ExportMatrixDialog.h"

#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "dialogs/application/ExportChecks.h"
#include "support/AsciiLocale.h"

TEST_CASE("export matrix: layout")
{
    Stage stage;
    bool const flag = GENERATE(false, true);
    ExportMatrixDialog const dialog(stage.Frame(), wxString::FromUTF8("Exporter \xCE\xB2 & co"), flag, "W");
    CheckExportFrame(dialog, wxString::FromUTF8("Exporter \xCE\xB2 & co"), 3);
    auto* const item = Item(dialog.GetSizer(), 1);
    auto* const radio = dynamic_cast<wxRadioBox*>(item->GetWindow());
    REQUIRE(radio);
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(radio->GetLabel() == "Delimiter");
    CHECK(radio->GetColumnCount() == 1);
    CHECK(radio->HasFlag(wxRA_SPECIFY_COLS));
    REQUIRE(radio->GetCount() == 3);
    CHECK(radio->GetString(0) == "Comma");
    CHECK(radio->GetString(1) == "Semicolon");
    CHECK(radio->GetString(2) == "Tab");
    CHECK(radio->GetSelection() == 0);
}

TEST_CASE("export matrix: unchanged")
{
    Stage stage;
    ExportMatrixDialog const dialog(stage.Frame(), "Export Matrix", false, "weights");
    CHECK(dialog.GetFileName() == "./weights.csv");
    CHECK(dialog.GetPath() == ".");
    CHECK(dialog.GetDelimiter() == ',');
}

TEST_CASE("export matrix: each delimiter is one character, the tab too")
{
    Stage stage;
    ExportMatrixDialog const dialog(stage.Frame(), "Export Matrix", false, "W");
    auto* const radio = Find<wxRadioBox>(&dialog);
    CHECK(dialog.GetDelimiter() == 44);
    radio->SetSelection(1);
    CHECK(dialog.GetDelimiter() == 59);
    radio->SetSelection(2);
    CHECK(dialog.GetDelimiter() == 9);
}

TEST_CASE("export matrix: names of all kinds")
{
    Stage stage;
    for (std::string const& name : {std::string(), std::string(" "), std::string("-1"), std::string("a.b"),
                                    std::string("matrice_\xC3\xA9\xCE\xB2"), std::string(5000, 'm')})
    {
        CAPTURE(name);
        ExportMatrixDialog const dialog(stage.Frame(), "Export Matrix", false, name);
        CHECK(dialog.GetFileName() == "./" + name + ".csv");
        CHECK(Find<wxTextCtrl>(&dialog)->GetValue() == wxString::FromUTF8("./" + name + ".csv"));
        CHECK(dialog.GetPath() == ".");
    }
}

TEST_CASE("export matrix: the folder of a path, and what has no narrow form")
{
    Stage stage;
    ExportMatrixDialog const dialog(stage.Frame(), "Export Matrix", false, "W");
    auto* const picker = Find<wxFilePickerCtrl>(&dialog);
    for (std::string const& path : PathsOfAllKinds())
    {
        picker->SetPath(wxString::FromUTF8(path));
        CHECK(dialog.GetFileName() == path);
    }
    picker->SetPath("/no such folder/at all/x.dat");
    CHECK(dialog.GetPath() == "/no such folder/at all");
    picker->SetPath("x.dat");
    CHECK(dialog.GetPath().empty());
    picker->SetPath("");
    CHECK(dialog.GetPath().empty());
    CHECK(dialog.GetFileName().empty());

    picker->SetPath(wxString::FromUTF8("d\xC3\xA9j\xC3\xA0/x.csv"));
    AsciiLocale const ascii;
    CHECK(dialog.GetFileName().empty());
    CHECK(dialog.GetPath() == wxString::FromUTF8("d\xC3\xA9j\xC3\xA0"));
}

TEST_CASE("export matrix: typed, chosen and accepted by hand")
{
    Stage stage;
    ExportMatrixDialog dialog(stage.Frame(), "Export Matrix", true, "W");
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CheckFits(dialog);
                                     Find<wxTextCtrl>(&dialog)->SetFocus();
                                     Press('A', wxMOD_CONTROL);
                                     TypeText("out/w.txt");
                                     auto* const radio = Find<wxRadioBox>(&dialog);
                                     ClickAt(radio, wxPoint(20, radio->GetSize().y - 20));
                                     Keep(Photograph(&dialog), "ExportMatrixDialog");
                                     Click(dialog.FindWindow(wxID_OK));
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetFileName() == "out/w.txt");
    CHECK(dialog.GetPath() == "out");
    CHECK(dialog.GetDelimiter() == '\t');
}

TEST_CASE("export matrix: the button asks where to save")
{
    Stage stage;
    ExportMatrixDialog dialog(stage.Frame(), "Export Matrix", false, "W");
    CheckSaveChooser(dialog);
    CHECK(dialog.GetFileName() == "./W.csv");
}

TEST_CASE("export matrix: all the ways out that cancel")
{
    Stage stage;
    ExportMatrixDialog dialog(stage.Frame(), "Export Matrix", false, "W");
    CheckWaysOut(dialog);
}
