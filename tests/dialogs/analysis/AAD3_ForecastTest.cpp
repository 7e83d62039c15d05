#include "dialogs/analysis/AAD3_Forecast.h"

#include "dialogs/analysis/ActionChecks.h"
#include "modelspec/ExogValuesDialog.h"
#include "modelspec/ExogValuesGrid.h"

using namespace action_checks;
using number_grid_checks::ColLabels;
using number_grid_checks::Column;
using number_grid_checks::RowLabels;
using number_grid_checks::Texts;

namespace
{
struct ForecastFixture
{
    explicit ForecastFixture(Arguments given = {"var", "", "oil", "rate", "the end"})
        : arguments(std::move(given))
    {
    }

    /// Presses "&Define"; in the dialog that opens `fill` is done, and it answers `id`.
    void PressDefine(int id, std::function<void(wxGrid*)> const& fill)
    {
        AnswerAsked<ExogValuesDialog, ExogValuesGrid>(
            dialog, "Define Values for the Exogenous Variables",
            [&]
            {
                wxCommandEvent event;
                dialog.OnDefineValuesButton(event);
            },
            id, fill);
    }

    /// Has 11, 12, 21, 22 ... accepted as the values for so many periods.
    void DefineCounting(int rows)
    {
        periods->SetValue(rows);
        PressDefine(wxID_OK,
                    [&](wxGrid* grid)
                    {
                        REQUIRE(grid->GetNumberRows() == rows);
                        for (int row = 0; row < rows; ++row)
                            for (int col = 0; col < grid->GetNumberCols(); ++col)
                                grid->SetCellValue(row, col, wxString::Format("%d%d", row + 1, col + 1));
                    });
    }

    Stage stage;
    Arguments arguments;
    AAD3_Forecast dialog{stage.Frame(), arguments};
    wxSpinCtrl* periods = Find<wxSpinCtrl>(&dialog);
    wxRadioButton* mean = Radio(dialog, "mean of data");
    wxRadioButton* custom = Radio(dialog, "user-defined values");
    wxButton* define = Find<wxButton>(custom->GetParent());
};

/// Layout; gives the parts between the sentence and the buttons.
Items CheckLayout(ForecastFixture& fixture, std::string const& model)
{
    CHECK(fixture.dialog.GetParent() == fixture.stage.Frame());
    auto const parts = CheckFrame(fixture.dialog, "Forecast",
                                  "Calculating forecasts for model \"" + model + "\".", 320);
    auto* const row = CheckBoxRow(parts, 1, "1 row, 2 columns, column 1 grows", 2);
    CheckHorizon(Item(row, 0), "Forecast horizon", 1);
    auto* const inner = CheckBox(Item(row, 1), "Values for the exogenous variables", {1, wxEXPAND, 5});
    CHECK(Shape(inner->GetSizer()) == "2 rows, 1 column");
    REQUIRE(inner->GetSizer()->GetItemCount() == 2);
    CheckRadio(Item(inner->GetSizer(), 0), "mean of data", true, wxLEFT | wxTOP);
    CheckDefineRow(Item(inner->GetSizer(), 1)->GetSizer(), "user-defined values");
    CHECK(fixture.mean->GetValue());
    CHECK(fixture.dialog.GetDefaultExog());
    CHECK(fixture.dialog.GetPeriods() == 1);
    return parts;
}
} // namespace

TEST_CASE("forecast dialog: layout")
{
    ForecastFixture fixture({"var", "A note.", "oil", ""});
    auto const parts = CheckLayout(fixture, "var");
    CHECK(parts.size() == 3);
    CheckNote(fixture.dialog, parts, "A note.");
    CheckCentre(fixture.dialog, fixture.dialog.GetSize());
    CHECK(fixture.mean->IsEnabled());
    CHECK(fixture.custom->IsEnabled());
}

TEST_CASE("forecast dialog: without a note")
{
    ForecastFixture fixture({LONG_MODEL, "", "oil", ""});
    CHECK(CheckLayout(fixture, LONG_MODEL).size() == 1);
    CheckNoNote(fixture.dialog);
    CheckCentre(fixture.dialog, wxSize(400, 300));
}

TEST_CASE("forecast dialog: a model without exogenous variables")
{
    for (auto const& given : {Arguments{"var", "", SENTINEL}, Arguments{"var", "", SENTINEL, "x", "y"},
                              Arguments{"var", "", SENTINEL, SENTINEL}})
    {
        ForecastFixture fixture(given);
        CheckLayout(fixture, "var");
        CHECK(!fixture.mean->IsEnabled());
        CHECK(!fixture.custom->IsEnabled());
        CHECK(!fixture.define->IsEnabled());
        CHECK(fixture.dialog.GetDefaultExog());
        fixture.periods->SetValue(12);
        CHECK(fixture.dialog.GetPeriods() == 12);
        CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t]\n\t");
    }
}

TEST_CASE("forecast dialog: three entries are a model whose variables have no names")
{
    ForecastFixture fixture({"var", "", "oil"});
    CHECK(fixture.mean->IsEnabled());
    CHECK(fixture.custom->IsEnabled());
    Choose(fixture.custom);
    CHECK(!fixture.dialog.GetDefaultExog());
    fixture.periods->SetValue(4);
    fixture.PressDefine(wxID_OK,
                        [](wxGrid* grid)
                        {
                            CHECK(grid->GetNumberCols() == 0);
                            CHECK(grid->GetNumberRows() == 4);
                        });
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t]\n\t");
}

TEST_CASE("forecast dialog: the last entry is not read, and only the third can say that there are none")
{
    ForecastFixture fixture({"var", "", "oil", SENTINEL, "", ZURICH, "the end"});
    CHECK(fixture.custom->IsEnabled());
    fixture.PressDefine(wxID_CANCEL,
                        [](wxGrid* grid)
                        { CHECK(ColLabels(grid) == Texts{"oil", SENTINEL, "", Wide(ZURICH)}); });

    ForecastFixture ended({"var", "", "oil", SENTINEL});
    ended.PressDefine(wxID_CANCEL, [](wxGrid* grid) { CHECK(ColLabels(grid) == Texts{"oil"}); });
}

TEST_CASE("forecast dialog: only values of the user's own can be defined")
{
    ForecastFixture fixture;
    CHECK(!fixture.define->IsEnabled());
    Choose(fixture.custom);
    CHECK(fixture.define->IsEnabled());
    CHECK(!fixture.dialog.GetDefaultExog());
    Choose(fixture.mean);
    CHECK(!fixture.define->IsEnabled());
    CHECK(fixture.dialog.GetDefaultExog());
}

TEST_CASE("forecast dialog: values that were never defined")
{
    ForecastFixture fixture;
    Choose(fixture.custom);
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t]\n\t");
    InputFormat const format(WORDED);
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\tbegin  end]\n\t");
}

TEST_CASE("forecast dialog: the first press makes zeros, accepted or not")
{
    ForecastFixture fixture;
    fixture.periods->SetValue(2);
    fixture.PressDefine(wxID_CANCEL,
                        [](wxGrid* grid)
                        {
                            CHECK(RowLabels(grid) == Texts{"T+1", "T+2"});
                            CHECK(ColLabels(grid) == Texts{"oil", "rate"});
                            grid->SetCellValue(0, 0, "5");
                        });
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t0, 0; 0, 0]\n\t");
    // What was typed and not accepted is gone: the stored values are shown anew.
    fixture.PressDefine(wxID_OK, [](wxGrid* grid) { CHECK(grid->GetCellValue(0, 0) == "0"); });
    CHECK(FindAll<ExogValuesDialog>(&fixture.dialog).size() == 1);
}

TEST_CASE("forecast dialog: accepted values in the engine's format")
{
    ForecastFixture fixture;
    fixture.DefineCounting(2);
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t11, 12; 21, 22]\n\t");
    fixture.PressDefine(wxID_OK, [](wxGrid* grid) { grid->SetCellValue(1, 0, "-0.123456789"); });
    CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t11, 12; -0.123456789, 22]\n\t");
    {
        InputFormat const format(TABBED);
        CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t    11\t    12\n-0.123\t    22]\n\t");
    }
    {
        InputFormat const format(FRAMED);
        CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t{\n<11 ; 12>|<-0.123457 ; 22>\n}]\n\t");
    }
    CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t11, 12; -0.123456789, 22]\n\t");
}

TEST_CASE("forecast dialog: a longer horizon adds rows of zeros")
{
    ForecastFixture fixture;
    fixture.DefineCounting(3);
    fixture.periods->SetValue(5);
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t11, 12; 21, 22; 31, 32]\n\t");
    fixture.PressDefine(wxID_OK,
                        [](wxGrid* grid)
                        {
                            CHECK(RowLabels(grid) == Texts{"T+1", "T+2", "T+3", "T+4", "T+5"});
                            CHECK(Column(grid, 0) == Texts{"11", "21", "31", "0", "0"});
                            CHECK(Column(grid, 1) == Texts{"12", "22", "32", "0", "0"});
                        });
    CHECK(fixture.dialog.GetExogValues()
          == ",\n\t\"W\"=[\t11, 12; 21, 22; 31, 32; 0, 0; 0, 0]\n\t");
}

TEST_CASE("forecast dialog: a shorter horizon hides rows until it is accepted")
{
    ForecastFixture fixture;
    fixture.DefineCounting(5);
    fixture.periods->SetValue(2);
    auto const shown = [](wxGrid* grid)
    {
        CHECK(Column(grid, 0) == Texts{"11", "21"});
        grid->SetCellValue(0, 0, "9");
    };
    fixture.PressDefine(wxID_CANCEL, shown);
    CHECK(fixture.dialog.GetExogValues()
          == ",\n\t\"W\"=[\t11, 12; 21, 22; 31, 32; 41, 42; 51, 52]\n\t");
    fixture.PressDefine(wxID_OK, shown);
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t9, 12; 21, 22]\n\t");
    CHECK(fixture.dialog.GetPeriods() == 2);
}

TEST_CASE("forecast dialog: a thousand names and 999 periods")
{
    auto const names = ManyNames(1000);
    auto const given = Joined(Joined({"var", ""}, names), {"the end"});
    {
        ForecastFixture fixture(given);
        fixture.PressDefine(wxID_OK,
                            [&](wxGrid* grid)
                            {
                                REQUIRE(grid->GetNumberCols() == 1000);
                                for (std::size_t i = 0; i < names.size(); ++i)
                                    CHECK(grid->GetColLabelValue(static_cast<int>(i)) == Wide(names[i]));
                                grid->SetCellValue(0, 999, "1");
                            });
        std::string zeros;
        for (int i = 0; i < 999; ++i)
            zeros += "0, ";
        CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t" + zeros + "1]\n\t");
    }
    ForecastFixture fixture({"var", "", "oil", ""});
    fixture.periods->SetValue(999);
    fixture.PressDefine(wxID_OK, [](wxGrid* grid) { CHECK(RowLabels(grid).back() == "T+999"); });
    std::string zeros;
    for (int i = 0; i < 998; ++i)
        zeros += "0; ";
    CHECK(fixture.dialog.GetExogValues() == ",\n\t\"W\"=[\t" + zeros + "0]\n\t");
}

TEST_CASE("forecast dialog: the horizon stays between 1 and 999")
{
    ForecastFixture fixture;
    auto& dialog = fixture.dialog;
    auto const type = [&](char const* text)
    {
        fixture.periods->SetFocus();
        fixture.periods->SetSelection(-1, -1);
        TypeText(text);
        Press(WXK_TAB);
        return dialog.GetPeriods();
    };
    RunDialog(dialog,
              [&]
              {
                  CHECK(type("5000") == 999);
                  Press(WXK_UP);
                  CHECK(dialog.GetPeriods() == 999);
                  CHECK(type("0") == 1);
                  CHECK(type("-3") == 1);
                  CHECK(type("12") == 12);
                  fixture.periods->SetFocus();
                  Press(WXK_UP);
                  CHECK(dialog.GetPeriods() == 13);
                  fixture.periods->SetValue(1);
                  Press(WXK_DOWN);
                  CHECK(dialog.GetPeriods() == 1);
                  dialog.EndModal(wxID_CANCEL);
              });
}

TEST_CASE("forecast dialog: values given by hand")
{
    ForecastFixture fixture({"var", "A note.", "oil", "rate", ""});
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Click(fixture.custom);
                  Click(fixture.define);
                  Keep(Photograph(&dialog), "AAD3_Forecast");
                  Click(dialog.FindWindow(wxID_OK));
              },
              {TypingTwo<ExogValuesDialog>(dialog, WXK_TAB)})
          == wxID_OK);
    CHECK(dialog.GetExogValues() == ",\n\t\"W\"=[\t1.5, -2]\n\t");
    CheckWaysOut(dialog);
}
