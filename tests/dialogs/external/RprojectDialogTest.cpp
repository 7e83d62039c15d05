#include "dialogs/external/RprojectDialog.h"

#include "dialogs/external/ScriptChecks.h"

using namespace script_checks;

namespace
{
constexpr Words WORDS{"R-project Interface",
                      "R-project Script",
                      "Location of the R-project script file:",
                      "Zenqo Items to Pass to R",
                      "R Objects to Pass to Zenqo",
                      "mat1, mat2, mydataset, ...",
                      "No R script has been provided."};
}

TEST_CASE("R-project dialog: the script and two fields for items")
{
    Stage stage;
    RprojectDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    CheckBoxes(dialog, WORDS, 0);
}

TEST_CASE("R-project dialog: what it asks and what it gives")
{
    CheckAll<RprojectDialog>(WORDS);
}
