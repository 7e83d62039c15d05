#include "panes/MatricesPane.h"

#include "panes/NameListChecks.h"

TEST_CASE("matrices pane: lists the names of the map in its order")
{
    list_checks::Check<MatricesPane, MatrixMap>("MatricesPane");
}
