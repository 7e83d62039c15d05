// Ends the program on purpose: run by the tests of the two pickers in a process of its own.

#include "pickers/GibbsChecks.h"
#include "pickers/GibbsPicker.h"
#include "pickers/GibbsPickerStan.h"

namespace
{
template <class Picker>
void MakeFrom(std::vector<double> const& defaults)
{
    Stage stage;
    gibbs_checks::Defaults const scope(defaults);
    new Picker(stage.Frame());
    FAIL("the program goes on");
}
} // namespace

TEST_CASE("a Gibbs picker with four defaults", "[.]")
{
    MakeFrom<GibbsPicker>({1, 2, 3, 4});
}

TEST_CASE("a Gibbs picker for Stan without defaults", "[.]")
{
    MakeFrom<GibbsPickerStan>({});
}
