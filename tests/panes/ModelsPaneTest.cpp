#include "panes/ModelsPane.h"

#include "panes/NameListChecks.h"

TEST_CASE("models pane: lists the names of the map in its order")
{
    list_checks::Check<ModelsPane, ModelMap>("ModelsPane");
}
