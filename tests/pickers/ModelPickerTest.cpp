#include "pickers/ModelPicker.h"

#include "pickers/ChoicePickerChecks.h"

TEST_CASE("model picker: a label, a list and a line under them")
{
    picker_checks::Layout<ModelPicker>("Model:", 6024);
}

TEST_CASE("model picker: names go in, the selected one comes out")
{
    picker_checks::NamesAndSelection<ModelPicker>();
}

TEST_CASE("model picker: the filter lets only another selection pass")
{
    picker_checks::Filter<ModelPicker>(&ModelPicker::OnModelChanged);
}

TEST_CASE("model picker: the user's real changes reach the owner, picking the same again does not")
{
    picker_checks::RealChanges<ModelPicker>();
}

TEST_CASE("model picker: a thousand names")
{
    picker_checks::ThousandNames<ModelPicker>();
}
