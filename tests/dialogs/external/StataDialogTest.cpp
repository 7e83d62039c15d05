#include "dialogs/external/StataDialog.h"

#include "dialogs/external/ScriptChecks.h"

using namespace script_checks;

namespace
{
constexpr Words WORDS{"Stata® Interface",
                      "Stata® Script",
                      "Location of the Stata® do file:",
                      "Zenqo Items to Pass to Stata®",
                      "Stata® Matrices to Pass to Zenqo",
                      "mat1, mat2, ...",
                      "No Stata® do file has been provided."};
}

TEST_CASE("Stata dialog: the script and two fields for items")
{
    Stage stage;
    StataDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    CheckBoxes(dialog, WORDS, 0);
}

TEST_CASE("Stata dialog: what it asks and what it gives")
{
    CheckAll<StataDialog>(WORDS);
}
