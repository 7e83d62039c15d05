#include "dialogs/data/PlotDataDialog.h"

#include "dialogs/data/VariableDialogChecks.h"

using namespace variable_dialog_checks;

namespace
{
constexpr char SCATTER_NEEDS_TWO[]
    = "Plotting scatter plots requires at least\ntwo variables to be selected for plotting.\n\n(The "
      "last variable will be the one placed\non the horizontal axis.)";
constexpr char XY_NEEDS_TWO[]
    = "Plotting X-Y plots requires at least\ntwo variables to be selected for plotting.\n\n(The last "
      "variable will be the one placed\non the horizontal axis.)";

enum
{
    SCATTER = 1,
    XY_LINES = 4
};

struct PlotFixture : Fixture<PlotDataDialog>
{
    /// Chooses the first `count` variables of the first dataset.
    void ChooseVariables(std::size_t count)
    {
        wxArrayString names;
        for (std::size_t i = 0; i < count; ++i)
            names.Add(datasets.at("macro")->varNames[i + 1]);
        dialog.SetVariables(0, names);
    }
    void ChooseType(int type) { types->SetSelection(type); }

    wxRadioBox* types = Find<wxRadioBox>(&dialog);
};
} // namespace

TEST_CASE("plot dialog: layout")
{
    PlotFixture fixture;
    auto* const sizer = CheckLayout<PlotDataDialog>(
        fixture, "Plot Data", 3, "Select Dataset && Variables to Plot", 235, "Variables to Plot");
    CheckRadioBox(Item(sizer, 1), fixture.types, "Plot type",
                  {"Histogram               ", "Scatter plot            ", "History                 ",
                   "Kernel density          ", "X-Y lines               ", "Correlogram (acf)       "},
                  3);
    for (unsigned i = 0; i < 6; ++i)
        CHECK(fixture.types->GetString(i).length() == 24);
}

TEST_CASE("plot dialog: choosing variables")
{
    CheckAll<PlotDataDialog>([](PlotDataDialog& dialog) -> std::vector<wxWindow*>
                             { return {Find<wxRadioBox>(&dialog)}; });
}

TEST_CASE("plot dialog: two types want two variables, the others one, and no type says no to more")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    RunDialog(dialog,
              [&]
              {
                  for (int type = 0; type < 6; ++type)
                  {
                      INFO("type " << type);
                      fixture.ChooseType(type);
                      CHECK(dialog.GetPlotType() == type);
                      // That nothing is chosen is said first, whatever the type.
                      fixture.ChooseVariables(0);
                      CheckRefused(dialog, NONE_SELECTED, [&] { CHECK(!Accepts(dialog)); });

                      fixture.ChooseVariables(1);
                      if (type == SCATTER || type == XY_LINES)
                          CheckRefused(dialog, type == SCATTER ? SCATTER_NEEDS_TWO : XY_NEEDS_TWO,
                                       [&] { CHECK(!Accepts(dialog)); });
                      else
                          CHECK(Accepts(dialog));
                      for (std::size_t const enough : {2, 3, 5})
                      {
                          fixture.ChooseVariables(enough);
                          CHECK(Accepts(dialog));
                      }
                  }
                  dialog.EndModal(wxID_CANCEL);
              });
}

TEST_CASE("plot dialog: refused by hand, mended by hand")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.controls;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            // The items stand in rows: the second of the first row is the scatter plot.
            auto* const types = fixture.types;
            ClickAt(types, wxPoint(types->GetSize().x / 2, types->GetSize().y / 2));
            REQUIRE(dialog.GetPlotType() == SCATTER);
            CheckRefused(dialog, NONE_SELECTED, [&] { Click(fixture.Run()); });
            ClickEntry(controls.Left(), 1);
            Click(controls.Button(0));
            CheckRefused(dialog, SCATTER_NEEDS_TWO, [&] { Click(fixture.Run()); });
            CHECK(dialog.GetVarNames() == Names({"cpi"}));
            CHECK(dialog.GetPlotType() == SCATTER);
            ClickEntry(controls.Left(), 0);
            Click(controls.Button(0));
            Click(fixture.Run());
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetVarNames() == Names({"cpi", "gdp"}));
    CHECK(dialog.GetPlotType() == SCATTER);
}

TEST_CASE("plot dialog: SetSelection picks a dataset and drops what was chosen")
{
    PlotFixture fixture;
    auto& dialog = fixture.dialog;
    fixture.ChooseVariables(2);
    dialog.SetSelection(1);
    CHECK(dialog.GetDatasetName() == "wages");
    CHECK(dialog.GetVarNames() == Names({""}));
    CHECK(fixture.controls.Left()->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    for (int const outside : {2, -1, -2, 1000})
    {
        dialog.SetSelection(outside);
        CHECK(dialog.GetDatasetName().empty());
        CHECK(fixture.controls.Left()->IsEmpty());
    }
    dialog.SetSelection(0);
    CHECK(dialog.GetDatasetName() == "macro");
    CHECK(fixture.controls.Left()->GetCount() == 5);
}
