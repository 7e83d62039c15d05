#include "dialogs/application/DirectoriesDialog.h"

#include <wx/filepicker.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dialogs/application/DialogChecks.h"
#include "engine/Globals.h"
#include "support/AsciiLocale.h"
#include "support/FileChooser.h"
#include "support/Layout.h"

namespace
{
namespace engine = Zenqo_SYSTEM_NAMESPACE;

constexpr char UNSET[] = "__Zenqo_SYSTEM_DEFAULT_STRING___";

/// A program as the dialog shows it and hands it back.
struct Program
{
    char const* label;
    char const* message;
    std::string* path;
    std::string (DirectoriesDialog::*get)() const;
};

std::vector<Program> const PROGRAMS{
    {"JAGS binary:", "Path to JAGS binary:", &engine::GLOBAL_DirectoryJAGS,
     &DirectoriesDialog::GetJAGSDir},
    {"OpenBUGS binary:", "Path to OpenBUGS binary:", &engine::GLOBAL_DirectoryBUGS,
     &DirectoriesDialog::GetBUGSDir},
    {"Stan compiler:", "Path to Stan compiler:", &engine::GLOBAL_DirectorySTAN,
     &DirectoriesDialog::GetSTANDir},
    {"MATLAB\xC2\xAE binary:", "Path to MATLAB\xC2\xAE binary:", &engine::GLOBAL_DirectoryMATLAB,
     &DirectoriesDialog::GetMATLABDir},
    {"GNU Octave binary:", "Path to GNU Octave binary:", &engine::GLOBAL_DirectoryOCTAVE,
     &DirectoriesDialog::GetOCTAVEDir},
    {"R-project binary:", "Path to R-project binary:", &engine::GLOBAL_DirectoryR,
     &DirectoriesDialog::GetRDir},
    {"STATA\xC2\xAE binary:", "Path to STATA\xC2\xAE binary:", &engine::GLOBAL_DirectorySTATA,
     &DirectoriesDialog::GetSTATADir},
};

/// The engine's paths, put back at the end of the scope.
class Paths
{
public:
    Paths()
    {
        for (auto const& program : PROGRAMS)
            m_before.push_back(*program.path);
    }
    ~Paths()
    {
        for (std::size_t i = 0; i < PROGRAMS.size(); ++i)
            *PROGRAMS[i].path = m_before[i];
    }
    Paths(Paths const&) = delete;
    Paths& operator=(Paths const&) = delete;

private:
    std::vector<std::string> m_before;
};

std::vector<std::string> Given(DirectoriesDialog const& dialog)
{
    std::vector<std::string> given;
    for (auto const& program : PROGRAMS)
        given.push_back((dialog.*program.get)());
    return given;
}

std::string const LONG_PATH = "/" + std::string(5000, 'j') + "/jags";
} // namespace

TEST_CASE("paths to programs: layout")
{
    Stage stage;
    DirectoriesDialog dialog(stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Paths to Binaries of External Programs", 0x2000181C, 2);
    CheckCentred(dialog);
    auto* const box = CheckBox(Item(sizer, 0), "Paths to binaries of external programs",
                               {0, wxEXPAND | wxALL, 5});
    CheckButtons(dialog, Item(sizer, 1), "&OK", "&Cancel", AtTheEnd());

    REQUIRE(box->GetItemCount() == 1);
    CHECK(PlacementOf(Item(box, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const grid = Item(box, 0)->GetSizer();
    CHECK(Shape(grid) == "7 rows, 2 columns, column 0 grows");
    REQUIRE(grid->GetItemCount() == 14);
    for (std::size_t i = 0; i < 7; ++i)
    {
        auto* const text = dynamic_cast<wxStaticText*>(Item(grid, 2 * i)->GetWindow());
        auto* const picker = dynamic_cast<wxFilePickerCtrl*>(Item(grid, 2 * i + 1)->GetWindow());
        REQUIRE(text);
        REQUIRE(picker);
        CHECK(text->GetLabel() == wxString::FromUTF8(PROGRAMS[i].label));
        CHECK(PlacementOf(Item(grid, 2 * i)) == Placement{0, wxALIGN_BOTTOM | wxTOP | wxLEFT, 5});
        CHECK(PlacementOf(Item(grid, 2 * i + 1)) == Placement{0, wxALL, 5});
        CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0xA402);
        CHECK(picker->GetId() < 0);
    }
}

TEST_CASE("paths to programs: each program has its own field, and no field is an unset path")
{
    Stage stage;
    Paths const paths;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < 7; ++i)
    {
        *PROGRAMS[i].path = i % 2 == 0 ? "/opt/program " + std::to_string(i) : UNSET;
        expected.push_back(*PROGRAMS[i].path);
    }
    DirectoriesDialog const dialog(stage.Frame());
    auto const fields = FindAll<wxTextCtrl>(&dialog);
    REQUIRE(fields.size() == 7);
    for (std::size_t i = 0; i < 7; ++i)
        CHECK(fields[i]->GetValue() == (i % 2 == 0 ? expected[i] : ""));
    CHECK(Given(dialog) == expected);

    // The dialog changes nothing itself.
    fields[0]->SetValue("/elsewhere");
    CHECK(dialog.GetJAGSDir() == "/elsewhere");
    CHECK(engine::GLOBAL_DirectoryJAGS == "/opt/program 0");
}

TEST_CASE("paths to programs: a path is shown and given as it stands, whether there is such a file or not")
{
    Stage stage;
    Paths const paths;
    for (std::string const& path :
         {std::string("/no such folder/jags-terminal"), std::string(" "), std::string("  jags  "),
          std::string("-1"), std::string("+.5"), std::string("1e-7"), std::string("relative/jags"),
          std::string("~/jags"), std::string("\"quoted\""), std::string("a\\b"), std::string("."),
          std::string("/"), std::string("/opt/jags/"), std::string("%s%n"),
          std::string("/home/Ren\xC3\xA9/\xCE\xB2/\xF0\x9D\x9C\x8E"), LONG_PATH})
    {
        CAPTURE(path);
        for (auto const& program : PROGRAMS)
            *program.path = path;
        DirectoriesDialog const dialog(stage.Frame());
        for (auto* const field : FindAll<wxTextCtrl>(&dialog))
            CHECK(field->GetValue() == wxString::FromUTF8(path));
        CHECK(Given(dialog) == std::vector<std::string>(7, path));
    }
}

TEST_CASE("paths to programs: an empty path is an unset one")
{
    Stage stage;
    Paths const paths;
    engine::GLOBAL_DirectoryR = "";
    engine::GLOBAL_DirectorySTATA = "\xC3"; // Half a character.
    DirectoriesDialog const dialog(stage.Frame());
    CHECK(Find<wxTextCtrl>(&dialog, 5)->GetValue().empty());
    CHECK(dialog.GetRDir() == "__Zenqo_SYSTEM_DEFAULT_STRING___");
    CHECK(Find<wxTextCtrl>(&dialog, 6)->GetValue().empty());
    CHECK(dialog.GetSTATADir() == "__Zenqo_SYSTEM_DEFAULT_STRING___");
}

TEST_CASE("paths to programs: what has no narrow form is an unset path, never an empty one")
{
    Stage stage;
    DirectoriesDialog const dialog(stage.Frame());
    Find<wxTextCtrl>(&dialog, 1)->SetValue(wxString::FromUTF8("/home/Ren\xC3\xA9/bugs"));
    CHECK(dialog.GetBUGSDir() == "/home/Ren\xC3\xA9/bugs");
    AsciiLocale const ascii;
    CHECK(dialog.GetBUGSDir() == "__Zenqo_SYSTEM_DEFAULT_STRING___");
}

TEST_CASE("paths to programs: typed, emptied and accepted by hand")
{
    Stage stage;
    Paths const paths;
    engine::GLOBAL_DirectorySTAN = "/gone/stanc";
    engine::GLOBAL_DirectoryOCTAVE = LONG_PATH;
    DirectoriesDialog dialog(stage.Frame());
    int const answer = RunDialog(
        dialog,
        [&]
        {
            CheckFits(dialog);
            CHECK(wxWindow::FindFocus() == dialog.FindWindow(wxID_OK));
            auto const fields = FindAll<wxTextCtrl>(&dialog);
            CHECK(fields[2]->GetValue() == "/gone/stanc");
            Click(fields[2]);
            Press('A', wxMOD_CONTROL);
            Press(WXK_BACK);
            Press(WXK_TAB); // The field stays empty when the keyboard leaves it.
            CHECK(fields[2]->GetValue().empty());

            Click(fields[0]);
            TypeText("no such folder/jags");
            // Not even the longest path loses its end to a key.
            Click(fields[4]);
            Press(WXK_END);
            TypeText("5");
            Keep(Photograph(&dialog), "DirectoriesDialog");
            dialog.FindWindow(wxID_OK)->SetFocus();
            Press(WXK_RETURN);
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetSTANDir() == "__Zenqo_SYSTEM_DEFAULT_STRING___");
    CHECK(dialog.GetJAGSDir() == "no such folder/jags");
    CHECK(dialog.GetOCTAVEDir() == LONG_PATH + "5");
    CHECK(engine::GLOBAL_DirectorySTAN == "/gone/stanc");
}

TEST_CASE("paths to programs: the buttons ask for an existing file of any kind")
{
    Stage stage;
    DirectoriesDialog dialog(stage.Frame());
    dialog.Show();
    PumpUntil([&] { return dialog.IsActive(); });
    auto const pickers = FindAll<wxFilePickerCtrl>(&dialog);
    for (std::size_t i = 0; i < 7; ++i)
    {
        CAPTURE(i);
        CheckChooser(Find<wxButton>(pickers[i]), wxString::FromUTF8(PROGRAMS[i].message), "All files |*.*;*",
                     {wxFD_OPEN, wxFD_FILE_MUST_EXIST});
    }
    CHECK(Given(dialog) == std::vector<std::string>(7, UNSET));
}

TEST_CASE("paths to programs: all the ways out that cancel")
{
    Stage stage;
    DirectoriesDialog dialog(stage.Frame());
    CheckWaysOut(dialog);
}
