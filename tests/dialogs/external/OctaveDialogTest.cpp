#include "dialogs/external/OctaveDialog.h"

#include "dialogs/external/ScriptChecks.h"

using namespace script_checks;

namespace
{
constexpr Words WORDS{"GNU Octave Interface",
                      "GNU Octave Script",
                      "Location of the GNU Octave script file:",
                      "Zenqo Items to Pass to GNU Octave",
                      "GNU Octave Objects to Pass to Zenqo",
                      "mat1, mat2, ...",
                      "No GNU Octave script has been provided."};
}

TEST_CASE("GNU Octave dialog: the script and two fields for items")
{
    Stage stage;
    OctaveDialog dialog(stage.Frame());
    CHECK(dialog.GetParent() == stage.Frame());
    CheckBoxes(dialog, WORDS, 0);
}

TEST_CASE("GNU Octave dialog: what it asks and what it gives")
{
    CheckAll<OctaveDialog>(WORDS);
}
