#include "dialogs/data/SortDataDialog.h"

#include "dialogs/data/VariableDialogChecks.h"

using namespace variable_dialog_checks;

TEST_CASE("sort dialog: layout")
{
    Fixture<SortDataDialog> fixture;
    CheckLayout(fixture, "Sort Data", 2, "Select Dataset && Sorting Variables", 235,
                "Sorting Variables");
}

TEST_CASE("sort dialog: choosing variables") { CheckAll<SortDataDialog>(); }
