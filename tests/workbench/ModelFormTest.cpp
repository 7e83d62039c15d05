#include "workbench/app/ModelForm.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "modelspec/EqsNotebook.h"
#include "modelspec/LagsPicker.h"
#include "modelspec/PriorGrid.h"
#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "support/TabClicks.h"
#include "workbench/FormChecks.h"

using workbench::DesignForm;
using workbench::SystemForm;

TEST_CASE("design form: variables and lags become one statement")
{
    Stage stage;
    auto datasets = Datasets();
    DesignForm form(stage.Frame(), &datasets);
    auto* const lags = Find<LagsPicker>(&form);
    int const end = Fill(form,
                         [&]
                         {
                             CHECK(!lags->IsEnabled());
                             Move(&form, 0, 0);
                             Move(&form, 1, 1);
                             Move(&form, 0, 1);
                             Click(Find<wxCheckBox>(&form));
                             CHECK(lags->IsEnabled());
                             // The list has 1; the button adds the 2 that the spin controls show, twice.
                             Click(Find<wxButton>(lags));
                             Click(Find<wxButton>(lags));
                             Keep(Photograph(&form), "DesignForm");
                             ClickOk(form);
                         });
    CHECK(end == wxID_OK);
    CHECK(form.Script() == "X = design(macro, \"gdp\", \"rate cpi\", [1, 2]);");
}

TEST_CASE("design form: what is missing is asked for in a fixed order, and nothing is lost")
{
    Stage stage;
    auto datasets = Datasets();
    DesignForm form(stage.Frame(), &datasets);
    auto* const name = dynamic_cast<wxTextCtrl*>(form.FindWindowByName("name"));
    REQUIRE(name);
    int const end = Fill(form,
                         [&]
                         {
                             ModalScript boxes;
                             boxes.Then(wxID_OK).Then(wxID_OK).Then(wxID_OK).Then(wxID_OK);
                             name->SetValue("2 X");
                             ClickOk(form);
                             name->SetValue("X2");
                             ClickOk(form);
                             Move(&form, 0, 0);
                             ClickOk(form);
                             // The lags count only while their box is ticked.
                             Click(Find<wxCheckBox>(&form));
                             Click(Find<wxCheckBox>(&form));
                             ClickOk(form);
                             std::vector<wxString> texts;
                             for (auto const& shown : boxes.Shown())
                             {
                                 texts.push_back(shown.text);
                                 CHECK(shown.caption == "Design Matrix");
                                 CHECK(shown.parent == &form);
                             }
                             CHECK(texts
                                   == std::vector<wxString>{
                                       "The name must consist of letters, digits and underscores, and must "
                                       "not begin with a digit.",
                                       "Choose a dependent variable.",
                                       "Choose independent variables, or lags of the dependent one.",
                                       "Choose independent variables, or lags of the dependent one."});
                             Click(Find<wxCheckBox>(&form));
                             ClickOk(form);
                         });
    CHECK(end == wxID_OK);
    CHECK(form.Script() == "X2 = design(macro, \"gdp\", \"\", [1]);");
}

TEST_CASE("design form: a custom prior is defined in a dialog, kept, and becomes two matrices")
{
    Stage stage;
    auto datasets = Datasets();
    DesignForm form(stage.Frame(), &datasets);
    auto const define = [&] { return form.FindWindow(6022); };
    // Types into the cells of the mean, and gives what is shown before.
    std::vector<wxString> seen;
    auto const typeMean = [&](char const* text, int button)
    {
        return [&, text, button](wxDialog* dialog)
        {
            dialog->CallAfter(
                [&, dialog, text, button]
                {
                    Pump(150);
                    auto* const mean = Find<PriorGrid>(dialog);
                    seen.push_back(mean->GetCellValue(0, 0));
                    mean->SetFocus();
                    mean->SetGridCursor(0, 0);
                    Pump();
                    TypeText(text);
                    Keep(Photograph(dialog), "CoefficientPrior");
                    Click(dialog->FindWindow(button));
                    Pump();
                    if (button != wxID_OK)
                    {
                        seen.push_back(mean->GetCellValue(0, 0));
                        Click(dialog->FindWindow(wxID_OK));
                    }
                });
            return wxID_NONE;
        };
    };
    auto const refused = [](wxDialog* dialog)
    {
        CHECK(ShownDialog(dialog).text == "Choose variables or lags first: each of them has a coefficient.");
        return wxID_OK;
    };
    int const end = Fill(form,
                         [&]
                         {
                             CHECK(!define()->IsEnabled());
                             Click(Find<wxRadioButton>(&form, 1));
                             Click(define());
                             Move(&form, 0, 0);
                             Move(&form, 0, 1);
                             Click(define());
                             Click(define());
                             // Another coefficient: the first one keeps what was typed.
                             Move(&form, 0, 1);
                             Click(define());
                             Keep(Photograph(&form), "DesignForm-prior");
                             ClickOk(form);
                         },
                         {refused, typeMean("7", 6023), typeMean("2.5", wxID_OK), typeMean("2.5", wxID_OK)});
    CHECK(end == wxID_OK);
    CHECK(seen == std::vector<wxString>{"0", "0", "0", "2.5"});
    CHECK(form.Script()
          == "X = design(macro, \"gdp\", \"cpi rate\");\n"
             "X_mean = [2.5; 0];\n"
             "X_precision = [1e-04, 0; 0, 1e-04];");
}

TEST_CASE("design form: escape closes it")
{
    Stage stage;
    auto datasets = Datasets();
    DesignForm form(stage.Frame(), &datasets);
    CHECK(Fill(form, [] { Press(WXK_ESCAPE); }) == wxID_CANCEL);
}

TEST_CASE("system form: each equation becomes a statement")
{
    Stage stage;
    auto datasets = Datasets();
    SystemForm form(stage.Frame(), &datasets);
    auto* const notebook = Find<EqsNotebook>(&form);
    int const end = Fill(form,
                         [&]
                         {
                             Move(notebook->GetPage(0), 0, 0);
                             Move(notebook->GetPage(0), 1, 1);
                             ClickTab(notebook, 1);
                             ModalScript boxes;
                             boxes.Then(wxID_OK).Then(wxID_OK);
                             ClickOk(form);
                             Move(notebook->GetPage(1), 0, 0);
                             ClickOk(form);
                             REQUIRE(boxes.Shown().size() == 2);
                             CHECK(boxes.Shown()[0].text
                                   == "Choose a dependent variable for equation 2, or close its tab.");
                             CHECK(boxes.Shown()[1].text == "Choose independent variables for equation 2.");
                             Move(notebook->GetPage(1), 0, 1);
                             Keep(Photograph(&form), "SystemForm");
                             ClickOk(form);
                         });
    CHECK(end == wxID_OK);
    CHECK(form.Script() == "X_1 = design(macro, \"gdp\", \"rate\");\nX_2 = design(macro, \"cpi\", \"rate\");");
}
