#include "dialogs/external/BUGSDialog.h"

#include "dialogs/external/SamplerChecks.h"
#include "pickers/GibbsPicker.h"

using namespace sampler_checks;

TEST_CASE("BUGS dialog: pages at the left, settings at the right")
{
    Stage stage;
    BUGSDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    auto const columns = CheckSamplerFrame(dialog, "BUGS Interface", "Data & Parameters", 3);

    auto* const page = dynamic_cast<wxBoxSizer*>(columns.notebook->GetPage(0)->GetSizer());
    REQUIRE(page);
    CHECK(page->GetOrientation() == wxVERTICAL);
    REQUIRE(page->GetItemCount() == 3);
    CheckTexts(CheckOnPage(page, 0, "Data to Pass to OpenBUGS"), "mat1, mat2, dat1.var2, ...",
               wxSize(400, -1));
    CheckTexts(CheckOnPage(page, 1, "Parameters to Monitor"), "\"mu\", \"tau\", \"beta[2:4]\", ...",
               wxSize(400, -1));
    CheckTexts(CheckOnPage(page, 2, "Parameters to Summarize"), "\"mu\", \"tau\", \"beta[2:4]\", ...",
               wxSize(400, -1));
    CheckInitsPage(columns);

    CheckScript(CheckSettings(columns, 0, "BUGS Model File"), "Location of the OpenBUGS model file:",
                272);
    CheckFilled<GibbsPicker>(CheckSettings(columns, 1, "Gibbs Sampler Parameters"));
    CheckFilled<StorePicker>(CheckSettings(columns, 2, "Store Model's Results"));
}

TEST_CASE("BUGS dialog: the Tab key goes from the page to the settings and the buttons")
{
    Tabs<BUGSDialog, GibbsPicker>(
        [](BUGSDialog& dialog)
        {
            return std::vector<wxWindow*>{TextOf(&dialog, 0), TextOf(&dialog, 1), TextOf(&dialog, 2)};
        },
        false);
}

TEST_CASE("BUGS dialog: what it asks and what it gives")
{
    CheckAll<BUGSDialog, GibbsPicker>(
        [](BUGSDialog& dialog)
        {
            Click(TextOf(&dialog, 1));
            TypeText("\"t\"");
            Click(TextOf(&dialog, 2));
            TypeText("\"b[2:4]\"");
            CHECK(dialog.GetData() == "y, d.x");
            CHECK(dialog.GetMonitor() == "\"t\"");
            CHECK(dialog.GetSumMonitor() == "\"b[2:4]\"");
        },
        [](BUGSDialog* dialog)
        {
            // The third field for names goes with its page.
            return std::vector<wxWindow*>{Find<TextPicker>(dialog, 0), Find<TextPicker>(dialog, 1),
                                          Find<ScriptPicker>(dialog), Find<GibbsPicker>(dialog),
                                          Find<StorePicker>(dialog), Find<TextPicker>(dialog, 2),
                                          Find<wxNotebook>(dialog)};
        });
}
