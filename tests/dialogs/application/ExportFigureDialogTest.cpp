#include "dialogs/application/ExportFigureDialog.h"

#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dialogs/application/ExportChecks.h"
#include "support/Layout.h"

namespace
{
struct Count
{
    char const* label;
    int initial;
};

/// Checks a box with two numbers below each other and gives their controls.
std::vector<wxSpinCtrl*> CheckCounts(wxSizerItem* item, wxString const& label,
                                     std::vector<Count> const& counts)
{
    auto* const box = CheckBox(item, label, {0, wxEXPAND | wxALL, 5});
    std::vector<wxSpinCtrl*> controls;
    REQUIRE(box->GetItemCount() == counts.size());
    for (std::size_t i = 0; i < counts.size(); ++i)
    {
        CHECK(PlacementOf(Item(box, i)) == Placement{0, wxEXPAND | wxALL, 5});
        auto* const row = Item(box, i)->GetSizer();
        CHECK(Shape(row) == "1 row, 2 columns, column 0 grows");
        REQUIRE(row->GetItemCount() == 2);
        auto* const text = dynamic_cast<wxStaticText*>(Item(row, 0)->GetWindow());
        CHECK(text->GetLabel() == counts[i].label);
        CHECK(PlacementOf(Item(row, 0)) == Placement{0, wxALIGN_BOTTOM, 5});
        controls.push_back(dynamic_cast<wxSpinCtrl*>(Item(row, 1)->GetWindow()));
        CHECK(PlacementOf(Item(row, 1)) == Placement{0, 0, 5});
        CHECK(controls[i]->GetMin() == 1);
        CHECK(controls[i]->GetMax() == 10000);
        CHECK(controls[i]->GetValue() == counts[i].initial);
        CHECK(controls[i]->HasFlag(wxSP_ARROW_KEYS));
        CHECK(!controls[i]->HasFlag(wxSP_WRAP));
    }
    return controls;
}

/// Types `text` over what the number's field shows and leaves the field.
void TypeOver(wxSpinCtrl* count, char const* text)
{
    count->SetFocus();
    Press('A', wxMOD_CONTROL);
    Press(WXK_BACK);
    TypeText(text);
    Press(WXK_TAB);
}
} // namespace

TEST_CASE("export figure: layout")
{
    Stage stage;
    bool const flag = GENERATE(false, true);
    ExportFigureDialog const dialog(stage.Frame(), flag, "plots/figure 1.png");
    CheckExportFrame(dialog, "Export Figure", 3);
    auto* const middle = Item(dialog.GetSizer(), 1);
    CHECK(PlacementOf(middle) == Placement{0, wxEXPAND, 5});
    auto* const sides = dynamic_cast<wxBoxSizer*>(middle->GetSizer());
    CHECK(sides->GetOrientation() == wxHORIZONTAL);
    REQUIRE(sides->GetItemCount() == 2);
    auto const sizes = CheckCounts(Item(sides, 0), "Plot dimensions (pixels)",
                                   {{"Width:", 400}, {"Height:", 250}});
    auto const dpi = CheckCounts(Item(sides, 1), "Resolution", {{"x dpi:", 90}, {"y dpi:", 90}});
    for (auto* const control : sizes)
        CHECK(control->IsThisEnabled());
    for (auto* const control : dpi)
        CHECK(!control->IsThisEnabled());
}

TEST_CASE("export figure: unchanged")
{
    Stage stage;
    ExportFigureDialog const dialog(stage.Frame(), false, "plots/figure 1.png");
    CHECK(dialog.GetFileName() == "plots/figure 1.png");
    CHECK(dialog.GetSize1() == 400);
    CHECK(dialog.GetSize2() == 250);
    CHECK(dialog.GetDPI1() == 90);
    CHECK(dialog.GetDPI2() == 90);
}

TEST_CASE("export figure: a path is shown and given as it stands")
{
    Stage stage;
    for (std::string const& path : PathsOfAllKinds())
    {
        CAPTURE(path);
        ExportFigureDialog const dialog(stage.Frame(), false, path);
        CHECK(dialog.GetFileName() == wxString::FromUTF8(path));
        CHECK(Find<wxTextCtrl>(&dialog)->GetValue() == wxString::FromUTF8(path));
    }
    CHECK(ExportFigureDialog(stage.Frame(), false, "").GetFileName().empty());
    CHECK(ExportFigureDialog(stage.Frame(), false, "half a character \xC3").GetFileName().empty());
}

TEST_CASE("export figure: typed and accepted by hand")
{
    Stage stage;
    ExportFigureDialog dialog(stage.Frame(), true, "x.png");
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     CheckFits(dialog);
                                     auto const counts = FindAll<wxSpinCtrl>(&dialog);
                                     TypeOver(counts[0], "1024");
                                     TypeOver(counts[1], "768");
                                     Press(WXK_UP);
                                     Find<wxTextCtrl>(&dialog)->SetFocus();
                                     Press(WXK_HOME);
                                     TypeText("out/");
                                     // What is disabled takes no clicks.
                                     ClickAt(counts[2], wxPoint(counts[2]->GetSize().x - 12, 15));
                                     ClickAt(counts[3], wxPoint(10, 15));
                                     Keep(Photograph(&dialog), "ExportFigureDialog");
                                     Click(dialog.FindWindow(wxID_OK));
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetSize1() == 1024);
    CHECK(dialog.GetSize2() == 768);
    CHECK(dialog.GetDPI1() == 90);
    CHECK(dialog.GetDPI2() == 90);
    CHECK(dialog.GetFileName() == "out/x.png");
}

TEST_CASE("export figure: a size stays a whole number from 1 to 10000, whatever is typed")
{
    Stage stage;
    ExportFigureDialog dialog(stage.Frame(), false, "x.png");
    dialog.Show();
    PumpUntil([&] { return dialog.IsActive(); });
    auto const counts = FindAll<wxSpinCtrl>(&dialog);
    for (auto const& [typed, size] :
         {std::pair{"1", 1}, {"10001", 10000}, {"0", 1}, {"-5", 1}, {"00007", 7}, {"9999999999", 10000}})
    {
        CAPTURE(typed);
        TypeOver(counts[0], typed);
        CHECK(dialog.GetSize1() == size);
    }
    for (auto const* const typed : {"", "abc", "1.5", "2e3"})
    {
        CAPTURE(typed);
        counts[0]->SetValue(400);
        TypeOver(counts[0], typed);
        CHECK(dialog.GetSize1() >= 1);
        CHECK(dialog.GetSize1() <= 10000);
    }
    // What a program puts into the field.
    for (auto const* const text : {" ", "-", "12 px", "1e999", "nan", "\xCE\xB2", "-99999999999999999999"})
    {
        CAPTURE(text);
        counts[0]->SetValue(wxString::FromUTF8(text));
        CHECK(dialog.GetSize1() >= 1);
        CHECK(dialog.GetSize1() <= 10000);
    }
    CHECK(dialog.GetSize2() == 250);
}

TEST_CASE("export figure: the button asks where to save")
{
    Stage stage;
    ExportFigureDialog dialog(stage.Frame(), false, "x.png");
    CheckSaveChooser(dialog);
    CHECK(dialog.GetFileName() == "x.png");
}

TEST_CASE("export figure: all the ways out that cancel")
{
    Stage stage;
    ExportFigureDialog dialog(stage.Frame(), false, "x.png");
    CheckWaysOut(dialog);
}
