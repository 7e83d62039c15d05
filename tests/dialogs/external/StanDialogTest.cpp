#include "dialogs/external/StanDialog.h"

#include <wx/choice.h>
#include <wx/radiobut.h>

#include "dialogs/external/SamplerChecks.h"
#include "pickers/ChoicePickerChecks.h"
#include "pickers/GibbsPickerStan.h"
#include "pickers/OutputFilePicker.h"
#include "support/AsciiLocale.h"

using namespace sampler_checks;

namespace
{
struct StanFixture : Fixture<StanDialog, GibbsPickerStan>
{
    /// The rows of the fields that can be edited.
    std::vector<std::size_t> Enabled()
    {
        std::vector<std::size_t> rows;
        for (std::size_t row = Row::SAMPLES; row <= Row::REFRESH; ++row)
            if (Setting(row)->IsEnabled())
                rows.push_back(row);
        return rows;
    }

    void ChooseMethod(int selection)
    {
        method->SetSelection(selection);
        wxCommandEvent event;
        dialog.OnChangeChoice(event);
    }

    wxChoice* method = Find<wxChoice>(&dialog);
    wxCheckBox* summarize = Find<wxCheckBox>(&dialog, 0);
    wxCheckBox* diagnose = Find<wxCheckBox>(&dialog, 1);
    OutputFilePicker* output = Find<OutputFilePicker>(&dialog, 0);
    OutputFilePicker* diagnostic = Find<OutputFilePicker>(&dialog, 1);
    wxTextCtrl* options = Find<wxTextCtrl>(diagnose->GetParent());
};

using Rows = std::vector<std::size_t>;
Rows const ALL{Row::SAMPLES, Row::BURNIN, Row::CHAINS, Row::THIN, Row::SEED, Row::REFRESH};
} // namespace

TEST_CASE("Stan dialog: pages at the left, settings at the right")
{
    StanFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto const columns = CheckSamplerFrame(dialog, "Stan Interface", "Data & Options", 4);

    // Made for two boxes, the grid has forgotten its rows with the third; no assertion was raised.
    auto* const page = CheckGrid(columns.notebook->GetPage(0)->GetSizer(), 0, 1, {{0, 100}}, {});
    CHECK(page->GetEffectiveRowsCount() == 3);
    REQUIRE(page->GetItemCount() == 3);
    CheckTexts(CheckOnPage(page, 0, "Data to Pass to Stan"), "mat1, mat2, dat1.var2, ...",
               wxSize(400, -1));
    auto* const files = CheckOnPage(page, 1, "Stan Output Files", 2);
    CHECK(CheckFilled<OutputFilePicker>(files, 0) == fixture.output);
    CHECK(CheckFilled<OutputFilePicker>(files, 1) == fixture.diagnostic);
    std::vector<wxString> labels;
    for (auto* const button : FindAll<wxRadioButton>(&dialog))
        labels.push_back(button->GetLabel());
    CHECK(labels
          == std::vector<wxString>{"Default output file", "Custom output file",
                                   "Default diagnostic file", "Custom diagnostic file"});
    CheckInitsPage(columns);

    CheckScript(CheckSettings(columns, 0, "Stan Model File"), "Location of the Stan model file:", 272);
    CheckFilled<GibbsPickerStan>(CheckSettings(columns, 2, "Gibbs Sampler Parameters"));
    CheckFilled<StorePicker>(CheckSettings(columns, 3, "Store Model's Results"));

    auto* const box = CheckSettings(columns, 1, "Stan Method");
    auto* const row = CheckGrid(Item(box, 0)->GetSizer(), 1, 3, {}, {{1, 100}});
    auto* const text = dynamic_cast<wxStaticText*>(Item(row, 0)->GetWindow());
    REQUIRE(text);
    CHECK(text->GetLabel() == "Stan method:");
    CHECK(text->GetMinSize() == wxSize(120, 23));
    CHECK(fixture.method->GetContainingSizer() == row);
    CHECK(fixture.method->GetMinSize() == wxSize(110, 30));
    CHECK(fixture.method->GetStrings() == Names({"sample", "variational", "optimize"}));
    CHECK(fixture.method->GetSelection() == 0);
}

TEST_CASE("Stan dialog: the box of additional options")
{
    StanFixture fixture;
    auto* const page = fixture.notebook->GetPage(0)->GetSizer();
    auto* const box = CheckOnPage(page, 2, "Additional Options");
    auto* const rows = CheckGrid(Item(box, 0)->GetSizer(), 2, 1, {}, {});
    REQUIRE(rows->GetItemCount() == 2);
    auto* const checks = CheckGrid(Item(rows, 0)->GetSizer(), 1, 2, {}, {{1, 1}});
    REQUIRE(checks->GetItemCount() == 2);
    CHECK(Item(checks, 0)->GetWindow() == fixture.summarize);
    CHECK(Item(checks, 1)->GetWindow() == fixture.diagnose);
    CHECK(fixture.summarize->GetLabel() == "Summarize within Stan");
    CHECK(fixture.diagnose->GetLabel() == "Diagnose within Stan");

    auto* const below = CheckGrid(Item(rows, 1)->GetSizer(), 2, 1, {}, {});
    REQUIRE(below->GetItemCount() == 2);
    auto* const text = dynamic_cast<wxStaticText*>(Item(below, 0)->GetWindow());
    REQUIRE(text);
    CHECK(text->GetLabel() == "Additional command-line options to pass to Stan:");
    CHECK(text->GetMinSize() == wxSize(400, -1));
    CHECK(Item(below, 1)->GetWindow() == fixture.options);
    CHECK(fixture.options->GetValue().empty());
    CHECK((fixture.options->GetWindowStyle() & ~wxBORDER_MASK) == 0);
    CHECK(FontOf(fixture.options) == "10 points, modern");
    CHECK(fixture.options->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(!fixture.options->GetFont().GetUnderlined());
}

TEST_CASE("Stan dialog: the Tab key goes from the page to the settings and the buttons")
{
    Tabs<StanDialog, GibbsPickerStan>(
        [](StanDialog& dialog)
        {
            auto* const summarize = Find<wxCheckBox>(&dialog, 0);
            return std::vector<wxWindow*>{TextOf(&dialog, 0),
                                          Find<wxRadioButton>(&dialog, 0),
                                          Find<wxRadioButton>(&dialog, 2),
                                          summarize,
                                          Find<wxCheckBox>(&dialog, 1),
                                          Find<wxTextCtrl>(summarize->GetParent())};
        },
        true);
}

TEST_CASE("Stan dialog: what it asks and what it gives")
{
    CheckAll<StanDialog, GibbsPickerStan>(
        [](StanDialog& dialog)
        {
            Click(Find<wxRadioButton>(&dialog, 1));
            Click(Find<wxTextCtrl>(Find<OutputFilePicker>(&dialog, 0)));
            TypeText("o.csv");
            CHECK(dialog.GetOutputFile() == "o.csv");
            CHECK(dialog.GetDiagnosticFile().empty());
            Click(Find<wxCheckBox>(&dialog, 1));
            CHECK(dialog.GetSummarizeState());
            CHECK(!dialog.GetDiagnoseState());
        },
        [](StanDialog* dialog)
        {
            return std::vector<wxWindow*>{Find<TextPicker>(dialog), Find<ScriptPicker>(dialog),
                                          Find<GibbsPickerStan>(dialog), Find<StorePicker>(dialog),
                                          Find<wxNotebook>(dialog), Find<wxChoice>(dialog)};
        });
}

TEST_CASE("Stan dialog: the method decides which settings can be edited")
{
    StanFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(fixture.Enabled() == ALL);
    CHECK(dialog.GetMethod() == "sample");
    fixture.ChooseMethod(1);
    CHECK(dialog.GetMethod() == "variational");
    CHECK(fixture.Enabled() == Rows{Row::SAMPLES, Row::BURNIN, Row::SEED, Row::REFRESH});
    fixture.ChooseMethod(2);
    CHECK(dialog.GetMethod() == "optimize");
    CHECK(fixture.method->GetSelection() == 2);
    CHECK(fixture.Enabled() == Rows{Row::SAMPLES, Row::SEED, Row::REFRESH});

    // Without a choice nothing changes, and there is no method.
    fixture.ChooseMethod(wxNOT_FOUND);
    CHECK(dialog.GetMethod() == "Zenqo internal error.");
    CHECK(fixture.Enabled() == Rows{Row::SAMPLES, Row::SEED, Row::REFRESH});
    fixture.method->Append("guess");
    fixture.ChooseMethod(3);
    CHECK(dialog.GetMethod() == "Zenqo internal error.");
    CHECK(fixture.Enabled() == Rows{Row::SAMPLES, Row::SEED, Row::REFRESH});

    fixture.ChooseMethod(1);
    CHECK(fixture.Enabled() == Rows{Row::SAMPLES, Row::BURNIN, Row::SEED, Row::REFRESH});
    fixture.ChooseMethod(0);
    CHECK(fixture.Enabled() == ALL);
}

TEST_CASE("Stan dialog: a setting that can't be edited is validated and stored like the others")
{
    StanFixture fixture;
    auto& dialog = fixture.dialog;
    RunDialog(dialog,
              [&]
              {
                  fixture.Setting(Row::BURNIN)->SetValue("x");
                  // The user picks another method.
                  picker_checks::Pick(fixture.method, 2);
                  CHECK(dialog.GetMethod() == "optimize");
                  CHECK(!fixture.Setting(Row::BURNIN)->IsEnabled());
                  CheckRefused(dialog, gibbs_checks::BAD_BURNIN, [&] { Click(fixture.Run()); });
                  fixture.Setting(Row::BURNIN)->SetValue("3");
                  fixture.Setting(Row::REFRESH)->SetValue("1.5");
                  CHECK(dialog.GetRefresh() == 1);
                  CheckRefused(dialog, gibbs_checks::BAD_REFRESH, [&] { Click(fixture.Run()); });
                  fixture.Setting(Row::REFRESH)->SetValue("50");
                  Click(fixture.Run());
              });
    CHECK(dialog.GetRefresh() == 50);
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{20000, 3, 1, 1, 42});
}

TEST_CASE("Stan dialog: refresh is read as a large number")
{
    StanFixture fixture;
    CHECK(fixture.dialog.GetRefresh() == 1000);
    fixture.Setting(Row::REFRESH)->SetValue("18446744073709551615");
    CHECK(fixture.dialog.GetRefresh() == MOST);
    fixture.Setting(Row::REFRESH)->SetValue("18446744073709551616");
    CHECK(fixture.dialog.GetRefresh() == 0);
    fixture.Setting(Row::REFRESH)->SetValue(" often");
    CHECK(fixture.dialog.GetRefresh() == 0);
}

TEST_CASE("Stan dialog: the files, the boxes and the options are as the user left them")
{
    StanFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetSummarizeState());
    CHECK(dialog.GetDiagnoseState());
    fixture.summarize->SetValue(false);
    CHECK(!dialog.GetSummarizeState());
    CHECK(dialog.GetDiagnoseState());
    fixture.summarize->SetValue(true);
    fixture.diagnose->SetValue(false);
    CHECK(dialog.GetSummarizeState());
    CHECK(!dialog.GetDiagnoseState());

    CHECK(dialog.GetOutputFile().empty());
    CHECK(dialog.GetDiagnosticFile().empty());
    Find<wxFilePickerCtrl>(fixture.output)->SetPath("draws.csv");
    Find<wxFilePickerCtrl>(fixture.diagnostic)->SetPath("checks.csv");
    CHECK(dialog.GetOutputFile().empty());
    Find<wxRadioButton>(fixture.output, 1)->SetValue(true);
    CHECK(dialog.GetOutputFile() == "draws.csv");
    CHECK(dialog.GetDiagnosticFile().empty());
    Find<wxRadioButton>(fixture.diagnostic, 1)->SetValue(true);
    CHECK(dialog.GetDiagnosticFile() == "checks.csv");
    Find<wxRadioButton>(fixture.output, 0)->SetValue(true);
    CHECK(dialog.GetOutputFile().empty());

    CHECK(dialog.GetOptions().empty());
    fixture.options->SetValue("  adapt delta=0.9   ");
    CHECK(dialog.GetOptions() == "  adapt delta=0.9   ");
    fixture.options->SetValue(wxString::FromUTF8("id=\xCE\xB2"));
    CHECK(dialog.GetOptions() == "id=\xCE\xB2");
    AsciiLocale const ascii;
    CHECK(dialog.GetOptions().empty());
}
