#include "pickers/DatasetPicker.h"

#include "pickers/ChoicePickerChecks.h"

TEST_CASE("dataset picker: a label, a list and a line under them")
{
    picker_checks::Layout<DatasetPicker>("Dataset:", 6079);
}

TEST_CASE("dataset picker: names go in, the selected one comes out")
{
    picker_checks::NamesAndSelection<DatasetPicker>();
}

TEST_CASE("dataset picker: a name is found with upper and lower case told apart")
{
    picker_checks::ByName<DatasetPicker>();
}

TEST_CASE("dataset picker: the filter lets only another selection pass")
{
    picker_checks::Filter<DatasetPicker>(&DatasetPicker::OnDatasetChanged);
}

TEST_CASE("dataset picker: the user's real changes reach the owner, picking the same again does not")
{
    picker_checks::RealChanges<DatasetPicker>();
}

TEST_CASE("dataset picker: a thousand names")
{
    picker_checks::ThousandNames<DatasetPicker>();
}
