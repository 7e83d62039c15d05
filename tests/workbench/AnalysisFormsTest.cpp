#include "workbench/app/AnalysisForms.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "pickers/DatasetPicker.h"
#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/ModalScript.h"
#include "support/Stage.h"

using workbench::Asked;
using workbench::Workspace;

namespace
{
/// A regression of `dependent` in the dataset "macro" on a constant and "cpi".
std::shared_ptr<Model> Regression(std::string const& dependent)
{
    auto model = std::make_shared<Model>();
    model->type = "linear regression";
    model->dataset = "macro";
    model->dependent = dependent;
    model->independent = {"constant", "cpi"};
    model->drawNames = {"constant", "cpi", "tau", "sigma"};
    model->draws = Eigen::MatrixXd::Ones(4, 4);
    model->chains = 1;
    model->results["logML"] = Eigen::RowVector2d(-10.0, -11.0);
    return model;
}

/// A workspace with positive "gdp", "cpi" and "rate", of which only "rate" is not positive throughout.
Workspace Made()
{
    Workspace workspace;
    auto const macro = workbench::MakeDataset({"gdp", "cpi", "rate"}, 3);
    macro->data.rightCols(3) << 3, 1, 1, 4, 2, -1, 5, 3, 2;
    workspace.Assign("macro", macro);
    workspace.Assign("a", Regression("gdp"));
    workspace.Assign("b", Regression("rate"));
    auto outside = std::make_shared<Model>();
    outside->drawNames = {"mu"};
    outside->draws = Eigen::MatrixXd::Ones(4, 1);
    outside->chains = 1;
    workspace.Assign("outside", outside);
    return workspace;
}

using Ask = Asked (*)(wxWindow* parent, Workspace& workspace, std::string const& shown);

/// Asks about the model `shown`, does `steps` in the dialog, and ends it with the button `end`.
Asked AskWith(Ask ask, Workspace& workspace, std::string const& shown,
              std::function<void(wxDialog*)> const& steps = [](wxDialog*) {}, int end = wxID_OK)
{
    Stage stage;
    ModalScript script;
    script.Then(
        [&](wxDialog* dialog)
        {
            dialog->CallAfter(
                [&, dialog]
                {
                    Pump(100);
                    steps(dialog);
                    Click(dialog->FindWindow(end));
                });
            return wxID_NONE;
        });
    return ask(stage.Frame(), workspace, shown);
}

/// Asks where the only answer is a box with `text`.
void CheckRefused(Ask ask, Workspace& workspace, std::string const& shown, wxString const& text)
{
    Stage stage;
    ModalScript script;
    script.Then(wxID_OK);
    CHECK(!ask(stage.Frame(), workspace, shown));
    REQUIRE(script.Shown().size() == 1);
    CHECK(script.Shown()[0].text == text);
    CHECK(script.Shown()[0].parent == stage.Frame());
}

/// Selects the button with `label`.
void Choose(wxDialog* dialog, wxString const& label)
{
    for (auto* const button : FindAll<wxRadioButton>(dialog))
        if (button->GetLabel() == label)
            Click(button);
}
} // namespace

TEST_CASE("analysis forms: conditions, comparisons and plots become statements")
{
    auto workspace = Made();
    CHECK(AskWith(workbench::AskTest, workspace, "a",
                  [](wxDialog* dialog)
                  {
                      auto const fields = FindAll<wxTextCtrl>(dialog);
                      REQUIRE(fields.size() == 2);
                      fields[0]->SetValue("a.cpi");
                      fields[1]->SetValue("0");
                      for (auto* const button : FindAll<wxButton>(dialog))
                          if (button->GetLabel() == "Add to list")
                              Click(button);
                  })
          == Asked("test(a, \"a.cpi > 0\");"));
    auto const both = [](wxDialog* dialog)
    {
        ClickEntry(Find<wxListBox>(dialog), 0);
        Click(Find<wxButton>(dialog));
        ClickEntry(Find<wxListBox>(dialog), 0);
        Click(Find<wxButton>(dialog));
    };
    CHECK(AskWith(workbench::AskCompare, workspace, "a", both) == Asked("compare(\"a b\");"));
    // The model that is shown is the one whose draws are offered.
    CHECK(AskWith(workbench::AskPlotDraws, workspace, "outside",
                  [](wxDialog* dialog)
                  {
                      ClickEntry(Find<wxListBox>(dialog), 0);
                      Click(Find<wxButton>(dialog));
                  })
          == Asked("plot(outside, \"mu\", \"histogram\");"));
}

TEST_CASE("analysis forms: what is stored, and under which name")
{
    auto workspace = Made();
    CHECK(AskWith(workbench::AskStoreFitted, workspace, "a")
          == Asked("store(a, \"fitted\", macro, \"fitted\");"));
    CHECK(AskWith(workbench::AskStoreResiduals, workspace, "b",
                  [](wxDialog* dialog) { Find<wxTextCtrl>(dialog)->SetValue("e_b"); })
          == Asked("store(b, \"residuals\", macro, \"e_b\");"));
}

TEST_CASE("analysis forms: marginal effects of the types that the data allow")
{
    auto workspace = Made();
    // Dependent variable and regressor are positive: all three types.
    CHECK(AskWith(workbench::AskEffects, workspace, "a",
                  [](wxDialog* dialog)
                  {
                      Choose(dialog, "median of data");
                      Choose(dialog, "elasticities");
                  })
          == Asked("mfx(a, \"point\"=\"median\", \"type\"=3);"));
    // The dependent variable is not: no logarithm of it.
    CHECK(AskWith(workbench::AskEffects, workspace, "b",
                  [](wxDialog* dialog) { CHECK(FindAll<wxRadioButton>(dialog).size() == 4); })
          == Asked("mfx(b, \"point\"=\"mean\");"));
    // Only the regressor is not: no logarithm of that.
    std::swap(workspace.models["b"]->dependent, workspace.models["b"]->independent[1]);
    CHECK(AskWith(workbench::AskEffects, workspace, "b",
                  [](wxDialog* dialog)
                  {
                      CHECK(FindAll<wxRadioButton>(dialog).size() == 6);
                      Choose(dialog, "user-defined point");
                      Choose(dialog, "semi-elasticities");
                  })
          == Asked("mfx(b,\n\t\"point\"=[0]\n\t, \"type\"=2);"));
}

TEST_CASE("analysis forms: forecasts and predictions")
{
    auto workspace = Made();
    CHECK(AskWith(workbench::AskForecast, workspace, "a",
                  [](wxDialog* dialog) { Find<wxSpinCtrl>(dialog)->SetValue(3); })
          == Asked("forecast(a, 3);"));
    CHECK(AskWith(workbench::AskForecast, workspace, "a",
                  [](wxDialog* dialog) { Choose(dialog, "user-defined values"); })
          == Asked("forecast(a, 1,\n\t\"W\"=[\t]\n\t);"));
    CHECK(AskWith(workbench::AskPredict, workspace, "a",
                  [](wxDialog* dialog)
                  {
                      Choose(dialog, "P(y <= observed)");
                      Choose(dialog, "each draw from the posterior");
                      Find<wxTextCtrl>(dialog)->SetValue("q_");
                  })
          == Asked("predict(a, macro, \"prefix\" = q_, \"stats\"=true, \"type\"=2);"));
}

TEST_CASE("analysis forms: predictions for another dataset, which lacks the dependent variable")
{
    auto workspace = Made();
    auto const later = workbench::MakeDataset({"cpi"}, 2);
    workspace.Assign("later", later);
    Stage stage;
    ModalScript script;
    script.Then(
        [](wxDialog* dialog)
        {
            CHECK(dialog->GetTitle() == "Dataset of the Predictions");
            auto* const choice = Find<DatasetPicker>(dialog);
            REQUIRE(choice);
            CHECK(choice->GetSelectionString() == "macro");
            choice->SetSelection(0);
            dialog->CallAfter([dialog] { Click(dialog->FindWindow(wxID_OK)); });
            return wxID_NONE;
        });
    script.Then(
        [](wxDialog* dialog)
        {
            CHECK(FindAll<wxRadioButton>(dialog).size() == 2);
            return wxID_OK;
        });
    CHECK(workbench::AskPredict(stage.Frame(), workspace, "a") == Asked("predict(a, later);"));
}

TEST_CASE("analysis forms: what is not there is said")
{
    auto workspace = Made();
    for (Ask const ask : {workbench::AskStoreFitted, workbench::AskStoreResiduals, workbench::AskEffects,
                          workbench::AskForecast, workbench::AskResponses, workbench::AskPredict})
        CHECK(!AskWith(ask, workspace, "outside",
                       [](wxDialog* dialog) { CHECK(dialog->GetTitle() == "Funtion not implemented"); }));
    CHECK(!AskWith(workbench::AskResponses, workspace, "a",
                   [](wxDialog* dialog) { CHECK(dialog->GetTitle() == "Funtion not implemented"); }));

    workspace.Remove("macro");
    for (Ask const ask :
         {workbench::AskStoreFitted, workbench::AskStoreResiduals, workbench::AskEffects, workbench::AskForecast})
        CheckRefused(ask, workspace, "a",
                     "The dataset macro, on which the model was estimated, is no longer in the workspace.");
    CheckRefused(workbench::AskPredict, workspace, "a",
                 "No dataset in the workspace has all regressors of the model.");
}

TEST_CASE("analysis forms: cancel gives no statement")
{
    auto workspace = Made();
    for (Ask const ask : {workbench::AskTest, workbench::AskCompare, workbench::AskPlotDraws,
                          workbench::AskStoreFitted, workbench::AskEffects, workbench::AskForecast,
                          workbench::AskPredict})
        CHECK(!AskWith(ask, workspace, "a", [](wxDialog*) {}, wxID_CANCEL));
}
