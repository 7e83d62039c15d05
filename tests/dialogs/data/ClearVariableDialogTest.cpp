#include "dialogs/data/ClearVariableDialog.h"

#include "dialogs/data/VariableDialogChecks.h"

using namespace variable_dialog_checks;

TEST_CASE("clear variables dialog: layout")
{
    Fixture<ClearVariableDialog> fixture;
    CheckLayout(fixture, "Delete Variables", 2, "Select Dataset && Variables to Delete", 255,
                "Variables to Delete");
}

TEST_CASE("clear variables dialog: choosing variables") { CheckAll<ClearVariableDialog>(); }
