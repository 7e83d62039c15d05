#include "dialogs/external/JAGSDialog.h"

#include "dialogs/external/SamplerChecks.h"
#include "pickers/GibbsPicker.h"

using namespace sampler_checks;

TEST_CASE("JAGS dialog: pages at the left, settings at the right")
{
    Stage stage;
    JAGSDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    auto const columns = CheckSamplerFrame(dialog, "JAGS Interface", "Data & Parameters", 3);

    auto* const page = dynamic_cast<wxBoxSizer*>(columns.notebook->GetPage(0)->GetSizer());
    REQUIRE(page);
    CHECK(page->GetOrientation() == wxVERTICAL);
    REQUIRE(page->GetItemCount() == 2);
    CheckTexts(CheckOnPage(page, 0, "Data to Pass to JAGS"), "mat1, mat2, dat1.var2, ...",
               wxSize(400, -1));
    CheckTexts(CheckOnPage(page, 1, "Parameters to Monitor"), "\"mu\", \"tau\", \"beta[2:4]\", ...",
               wxSize(400, -1));
    CheckInitsPage(columns);

    CheckScript(CheckSettings(columns, 0, "JAGS Model File"), "Location of the JAGS model file:", 272);
    CheckFilled<GibbsPicker>(CheckSettings(columns, 1, "Gibbs Sampler Parameters"));
    CheckFilled<StorePicker>(CheckSettings(columns, 2, "Store Model's Results"));
}

TEST_CASE("JAGS dialog: the Tab key goes from the page to the settings and the buttons")
{
    Tabs<JAGSDialog, GibbsPicker>(
        [](JAGSDialog& dialog) { return std::vector<wxWindow*>{TextOf(&dialog, 0), TextOf(&dialog, 1)}; },
        false);
}

TEST_CASE("JAGS dialog: what it asks and what it gives")
{
    CheckAll<JAGSDialog, GibbsPicker>(
        [](JAGSDialog& dialog)
        {
            Click(TextOf(&dialog, 1));
            TypeText("\"b[2:4]\"");
            CHECK(dialog.GetData() == "y, d.x");
            CHECK(dialog.GetMonitor() == "\"b[2:4]\"");
        },
        [](JAGSDialog* dialog)
        {
            return std::vector<wxWindow*>{Find<TextPicker>(dialog, 0), Find<TextPicker>(dialog, 1),
                                          Find<ScriptPicker>(dialog), Find<GibbsPicker>(dialog),
                                          Find<StorePicker>(dialog), Find<wxNotebook>(dialog)};
        });
}
