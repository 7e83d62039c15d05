#include "modelspec/VariablePicker_YXS.h"

#include "modelspec/EqsNotebook.h"
#include "modelspec/RoleChecks.h"
#include "pickers/ChoicePickerChecks.h"
#include "pickers/DatasetPicker.h"
#include "support/TabClicks.h"

using namespace role_checks;

TEST_CASE("variable picker YXS: the dataset's row stands above the notebook")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePicker_YXS(stage.Frame(), &datasets, 200);
    auto* const box = dynamic_cast<wxBoxSizer*>(picker->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxVERTICAL);
    REQUIRE(box->GetItemCount() == 2);
    CHECK(Item(box, 0)->GetWindow() == Find<DatasetPicker>(picker));
    CHECK(PlacementOf(Item(box, 0)) == Placement{0, wxEXPAND | wxTOP, 10});
    CHECK(Item(box, 1)->GetWindow() == Find<EqsNotebook>(picker));
    CHECK(PlacementOf(Item(box, 1)) == Placement{1, wxEXPAND, 0});
    CHECK(picker->GetDatasetName() == "macro");
    CHECK(Controls(picker).Left()->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
}

TEST_CASE("variable picker YXS: equations on tabs, and another dataset by a real pick")
{
    Stage stage;
    auto datasets = TwoDatasets();
    auto* const picker = new VariablePicker_YXS(stage.Frame(), &datasets, 200);
    stage.Fill(picker);
    auto* const notebook = Find<EqsNotebook>(picker);
    int heard = 0;
    stage.Frame()->Bind(wxEVT_CHOICE, [&](wxCommandEvent&) { ++heard; });

    Controls const first(notebook->GetPage(0));
    ClickEntry(first.Left(), 0);
    Click(first.Button(0));
    ClickEntry(first.Left(), 1);
    Click(first.Button(1));
    ClickTab(notebook, 1);
    Controls const second(notebook->GetPage(1));
    ClickEntry(second.Left(), 0);
    Click(second.Button(0));
    CHECK(picker->GetDepVars() == Names({"gdp", "cpi"}));
    CHECK(picker->GetIndVars() == std::vector<wxArrayString>{Names({"rate"}), Names({""})});
    CHECK(picker->GetChanged());
    Keep(Photograph(stage.Frame()), "VariablePicker_YXS");

    // The dataset that is shown, picked again: nothing is lost.
    picker_checks::Pick(Find<wxChoice>(picker), 0);
    CHECK(picker->GetDepVars() == Names({"gdp", "cpi"}));

    picker_checks::Pick(Find<wxChoice>(picker), 1);
    CHECK(picker->GetDatasetName() == "wages");
    CHECK(picker->GetDepVars() == Names({""}));
    CHECK(!picker->GetChanged());
    CHECK(Controls(picker).Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    CHECK(heard == 0);

    picker->SetChanged(true);
    CHECK(picker->GetChanged());
}

TEST_CASE("variable picker YXS: with an empty map it stands there and works")
{
    Stage stage;
    DatasetMap datasets;
    auto* const picker = new VariablePicker_YXS(stage.Frame(), &datasets, 200);
    CHECK(picker->GetDatasetName().empty());
    CHECK(picker->GetDepVars() == Names({""}));
    CHECK(picker->GetIndVars() == std::vector<wxArrayString>{Names({""})});
    wxCommandEvent event;
    picker->OnDatasetChanged(event);
    CHECK(!event.GetSkipped());
    CHECK(Controls(picker).Left()->IsEmpty());
}
