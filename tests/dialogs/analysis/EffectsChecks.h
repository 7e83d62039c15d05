#pragma once

#include "dialogs/analysis/ActionChecks.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/UserPointDialog.h"

/// What the three dialogs of marginal effects have in common.
namespace effects_checks
{
using namespace action_checks;

constexpr char MEAN[] = ", \"point\"=\"mean\"";
constexpr char EACH[] = ", \"point\"=\"x_i\"";
constexpr char MEDIAN[] = ", \"point\"=\"median\"";

/// What stands behind the names in the list of a dialog.
template <class Dialog>
Arguments TypesOf();

/// How many boxes there are: the types have one of their own.
template <class Dialog>
std::size_t BoxesOf()
{
    return TypesOf<Dialog>().empty() ? 1 : 2;
}

template <class Dialog>
struct EffectsFixture
{
    explicit EffectsFixture(Arguments const& names = {"educ", "age", "kids"},
                            std::string const& note = "", std::string const& model = "probit")
        : arguments(Joined(Joined({model, note}, names), TypesOf<Dialog>()))
    {
    }

    /// Presses "&Define"; in the dialog that opens `fill` is done, and it answers `id`.
    void PressDefine(int id, std::function<void(wxGrid*)> const& fill)
    {
        point = AnswerAsked<UserPointDialog, PriorGrid>(
            dialog, "Define Point",
            [&]
            {
                wxCommandEvent event;
                dialog.OnDefinePointButton(event);
            },
            id, fill);
    }

    Stage stage;
    Arguments arguments;
    Dialog dialog{stage.Frame(), arguments};
    wxRadioButton* mean = Radio(dialog, "mean of data");
    wxRadioButton* each = Radio(dialog, "each data point");
    wxRadioButton* median = Radio(dialog, "median of data");
    wxRadioButton* custom = Radio(dialog, "user-defined point");
    wxButton* define = Find<wxButton>(custom->GetParent());
    UserPointDialog* point = nullptr;
};

/// Layout of the point's box; gives the parts between the sentence and the buttons.
template <class Dialog>
Items CheckLayout(EffectsFixture<Dialog>& fixture, std::string const& model)
{
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    auto const parts = CheckFrame(fixture.dialog, "Calculate marginal effects",
                                  "Calculating marginal effects for model \"" + model + "\".", 380);
    REQUIRE(parts.size() >= BoxesOf<Dialog>());
    auto* const inner
        = CheckBox(parts[0], "Point at which marginal effects will be calculated", {0, wxALL, 7});
    CHECK(PlacementOf(inner) == Placement{1, wxEXPAND, 5});
    auto* const grid = dynamic_cast<wxFlexGridSizer*>(inner->GetSizer());
    REQUIRE(grid);
    CHECK(Shape(grid) == "2 rows, 2 columns, not flexible in both directions");
    CHECK(grid->GetFlexibleDirection() == wxVERTICAL);
    REQUIRE(grid->GetItemCount() == 4);
    CheckRadio(Item(grid, 0), "mean of data", false, wxLEFT | wxTOP);
    CheckRadio(Item(grid, 1), "each data point", false, wxRIGHT | wxTOP);
    CheckRadio(Item(grid, 2), "median of data", false, wxLEFT | wxBOTTOM);
    CHECK(Item(grid, 3)->GetProportion() == 1);
    CHECK(Item(grid, 3)->GetFlag() == wxEXPAND);
    CheckDefineRow(Item(grid, 3)->GetSizer(), "user-defined point");
    CHECK(fixture.mean->GetValue());
    return parts;
}

template <class Dialog>
void CheckNotes()
{
    {
        EffectsFixture<Dialog> fixture({"x"}, "", LONG_MODEL);
        CHECK(CheckLayout(fixture, LONG_MODEL).size() == BoxesOf<Dialog>());
        CheckNoNote(fixture.dialog);
        CheckCentre(fixture.dialog, wxSize(400, 300));
    }
    EffectsFixture<Dialog> fixture({"x"}, "A <i>note</i>.");
    auto const parts = CheckLayout(fixture, "probit");
    CHECK(parts.size() == BoxesOf<Dialog>() + 2);
    CheckNote(fixture.dialog, parts, "A note.");
    CheckCentre(fixture.dialog, fixture.dialog.GetSize());
}

/// The point's four buttons are one group, and each has its text.
template <class Dialog>
void CheckPoints()
{
    EffectsFixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetPoint() == MEAN);
    CHECK(!fixture.define->IsEnabled());
    Choose(fixture.each);
    CHECK(dialog.GetPoint() == EACH);
    CHECK(!fixture.define->IsEnabled());
    Choose(fixture.median);
    CHECK(dialog.GetPoint() == MEDIAN);
    CHECK(!fixture.define->IsEnabled());
    Choose(fixture.custom);
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[0, 0, 0]\n\t");
    CHECK(dialog.GetPoint() == dialog.GetPoint());
    CHECK(fixture.define->IsEnabled());
    for (auto* const button : {fixture.each, fixture.median, fixture.mean})
    {
        Choose(fixture.custom);
        CHECK(fixture.define->IsEnabled());
        Choose(button);
        CHECK(!fixture.define->IsEnabled());
    }
    BreakGroup(fixture.mean);
    CHECK(dialog.GetPoint() == BROKEN);
}

/// The user's own point, from the first press of "&Define" on.
template <class Dialog>
void CheckOwnPoint()
{
    EffectsFixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    Choose(fixture.custom);
    CHECK(!Find<UserPointDialog>(&dialog));
    fixture.PressDefine(wxID_CANCEL,
                        [](wxGrid* grid)
                        {
                            CHECK(number_grid_checks::RowLabels(grid)
                                  == number_grid_checks::Texts{"educ", "age", "kids"});
                            grid->SetCellValue(0, 0, "7");
                        });
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[0, 0, 0]\n\t");
    auto* const first = fixture.point;
    fixture.PressDefine(wxID_OK,
                        [](wxGrid* grid)
                        {
                            // What was left in it is still there, accepted or not.
                            CHECK(grid->GetCellValue(0, 0) == "7");
                            grid->SetCellValue(1, 0, "-2.5");
                            grid->SetCellValue(2, 0, "1e+20");
                        });
    CHECK(fixture.point == first);
    CHECK(FindAll<UserPointDialog>(&dialog).size() == 1);
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[7, -2.5, 1e+20]\n\t");

    // Another way to close it is no acceptance.
    for (int const other : std::vector<int>{wxID_CANCEL, wxID_YES, 0})
        fixture.PressDefine(other, [](wxGrid* grid) { grid->SetCellValue(0, 0, "8"); });
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[7, -2.5, 1e+20]\n\t");

    // It counts again when the user comes back to it.
    Choose(fixture.mean);
    CHECK(dialog.GetPoint() == MEAN);
    Choose(fixture.custom);
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[7, -2.5, 1e+20]\n\t");

    {
        InputFormat const format(TABBED);
        CHECK(dialog.GetPoint() == ",\n\t\"point\"=[    7\t -2.5\t1e+20]\n\t");
    }
    {
        InputFormat const format(FRAMED);
        CHECK(dialog.GetPoint() == ",\n\t\"point\"=[{\n<7 ; -2.5 ; 1e+20>\n}]\n\t");
    }
    {
        InputFormat const format(Eigen::IOFormat(1, Eigen::DontAlignCols));
        CHECK(dialog.GetPoint() == ",\n\t\"point\"=[7 -2 1e+20]\n\t");
    }
}

/// Lists as long and as short as they may be.
template <class Dialog>
void CheckLists()
{
    {
        EffectsFixture<Dialog> fixture{Arguments{}};
        CHECK(fixture.dialog.GetPoint() == MEAN);
        Choose(fixture.custom);
        CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[]\n\t");
        fixture.PressDefine(wxID_OK, [](wxGrid* grid) { CHECK(grid->GetNumberRows() == 0); });
        CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[]\n\t");
        InputFormat const format(WORDED);
        CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[begin  end]\n\t");
    }
    auto const names = ManyNames(1000);
    EffectsFixture<Dialog> fixture(names);
    Choose(fixture.custom);
    std::string zeros = "0";
    for (int i = 1; i < 1000; ++i)
        zeros += ", 0";
    CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[" + zeros + "]\n\t");
    fixture.PressDefine(wxID_OK,
                        [&](wxGrid* grid)
                        {
                            REQUIRE(grid->GetNumberRows() == 1000);
                            for (std::size_t i = 0; i < names.size(); ++i)
                                CHECK(grid->GetRowLabelValue(static_cast<int>(i)) == Wide(names[i]));
                            grid->SetCellValue(999, 0, "1");
                        });
    zeros.back() = '1';
    CHECK(fixture.dialog.GetPoint() == ",\n\t\"point\"=[" + zeros + "]\n\t");
}

/// All of it by hand.
template <class Dialog>
void CheckByHand(wxString const& photograph)
{
    EffectsFixture<Dialog> fixture({"educ", "age"}, "A note.");
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Click(fixture.define);
                  Click(fixture.each);
                  CHECK(dialog.GetPoint() == EACH);
                  Click(fixture.median);
                  CHECK(dialog.GetPoint() == MEDIAN);
                  Click(fixture.custom);
                  CHECK(fixture.define->IsEnabled());
                  Click(fixture.define);
                  CHECK(dialog.GetPoint() == ",\n\t\"point\"=[1.5, -2]\n\t");
                  Keep(Photograph(&dialog), photograph);
                  Click(fixture.mean);
                  CHECK(!fixture.define->IsEnabled());
                  Click(fixture.custom);
                  Click(dialog.FindWindow(wxID_OK));
              },
              {TypingTwo<UserPointDialog>(dialog, WXK_RETURN)})
          == wxID_OK);
    CHECK(dialog.GetPoint() == ",\n\t\"point\"=[1.5, -2]\n\t");
    CheckWaysOut(dialog);
}

/// The dialogs with types: which labels they show, and what each gives.
template <class Dialog>
void CheckTypes(std::vector<wxString> const& labels)
{
    EffectsFixture<Dialog> fixture;
    auto& dialog = fixture.dialog;
    auto const parts = CheckLayout(fixture, "probit");
    CheckTypeBox(parts[1], "Type of marginal effects to be calculated", labels);
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        Radio(dialog, labels[i])->SetValue(true);
        CHECK(dialog.GetType() == ", \"type\"=" + std::to_string(i + 1));
        // The point is a group of its own.
        CHECK(dialog.GetPoint() == MEAN);
        fixture.each->SetValue(true);
        CHECK(dialog.GetType() == ", \"type\"=" + std::to_string(i + 1));
        fixture.mean->SetValue(true);
    }
    BreakGroup(Radio(dialog, labels.back()));
    CHECK(dialog.GetType() == BROKEN);
    CHECK(dialog.GetPoint() == MEAN);
}

/// Where the sentinel may stand in a list that is as long as it must be.
template <class Dialog>
void CheckSentinels(Arguments const& labels)
{
    Stage stage;
    auto const typesAndZeros = [&](Arguments const& tail)
    {
        auto arguments = Joined({"m", ""}, tail);
        auto const given = arguments;
        Dialog dialog(stage.Frame(), arguments);
        CHECK(arguments == given);
        Arguments shown;
        for (std::size_t i = 4; auto* const radio = Find<wxRadioButton>(&dialog, i); ++i)
            shown.push_back(radio->GetLabel().ToStdString(wxConvUTF8));
        Radio(dialog, "user-defined point")->SetValue(true);
        auto const point = dialog.GetPoint();
        return std::make_pair(shown, std::count(point.begin(), point.end(), '0'));
    };
    // First: there are no names.
    CHECK(typesAndZeros(Joined({SENTINEL}, labels)) == std::make_pair(labels, 0L));
    // Twice, in a row and not; and last once more.
    CHECK(typesAndZeros(Joined({"x", SENTINEL, SENTINEL}, labels)) == std::make_pair(labels, 1L));
    CHECK(typesAndZeros(Joined({SENTINEL, labels[0], SENTINEL}, {labels.begin() + 1, labels.end()}))
          == std::make_pair(labels, 0L));
    CHECK(typesAndZeros(Joined(Joined({"x", "y", SENTINEL}, labels), {SENTINEL}))
          == std::make_pair(labels, 2L));
    // More labels than are used.
    CHECK(typesAndZeros(Joined(Joined({"x", SENTINEL}, labels), ManyNames(1000)))
          == std::make_pair(labels, 1L));
    // What only looks like it is a name.
    CHECK(typesAndZeros(Joined({"", "__Zenqo_SYSTEM_DEFAULT_STRING__", SENTINEL}, labels))
          == std::make_pair(labels, 2L));
    // Labels that are like one another, or empty, or outside ASCII.
    Arguments odd(labels.size(), "");
    odd.back() = ZURICH;
    CHECK(typesAndZeros(Joined({"x", SENTINEL}, odd)) == std::make_pair(odd, 1L));
}
} // namespace effects_checks
