#include "pickers/MatrixPicker.h"

#include "pickers/ChoicePickerChecks.h"

TEST_CASE("matrix picker: a label, a list and a line under them")
{
    picker_checks::Layout<MatrixPicker>("Matrix:", 6081);
}

TEST_CASE("matrix picker: names go in, the selected one comes out")
{
    picker_checks::NamesAndSelection<MatrixPicker>();
}

TEST_CASE("matrix picker: a name is found with upper and lower case told apart")
{
    picker_checks::ByName<MatrixPicker>();
}

TEST_CASE("matrix picker: the filter lets only another selection pass")
{
    picker_checks::Filter<MatrixPicker>(&MatrixPicker::OnMatrixChanged);
}

TEST_CASE("matrix picker: the user's real changes reach the owner, picking the same again does not")
{
    picker_checks::RealChanges<MatrixPicker>();
}

TEST_CASE("matrix picker: a thousand names")
{
    picker_checks::ThousandNames<MatrixPicker>();
}
