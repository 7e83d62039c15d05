#include "workbench/app/RegressionForm.h"

#include <catch2/catch.hpp>

#include <wx/checkbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "modelspec/PriorGrid.h"
#include "pickers/GibbsPicker.h"
#include "workbench/FormChecks.h"

using workbench::RegressionForm;

namespace
{
/// The sampler's field `index`, in the order of the panel's accessors.
wxTextCtrl* SamplerField(RegressionForm const& form, wxString const& text)
{
    for (auto* const field : FindAll<wxTextCtrl>(Find<GibbsPicker>(&form)))
        if (field->GetValue() == text)
            return field;
    return nullptr;
}
} // namespace

TEST_CASE("regression form: variables, constant and sampler become one statement")
{
    Stage stage;
    auto datasets = Datasets();
    RegressionForm form(stage.Frame(), &datasets, "reg1");
    int const end = Fill(form,
                         [&]
                         {
                             Move(&form, 0, 0);
                             Move(&form, 1, 1);
                             Move(&form, 0, 1);
                             Click(Find<wxCheckBox>(&form));
                             REQUIRE(SamplerField(form, "20000"));
                             SamplerField(form, "20000")->SetValue("500");
                             Keep(Photograph(&form), "RegressionForm");
                             ClickOk(form);
                         });
    CHECK(end == wxID_OK);
    CHECK(form.Name() == "reg1");
    CHECK(form.Script()
          == "reg1 = regress(macro, \"gdp\", \"rate cpi\", \"constant\"=true, \"draws\"=500, \"burnin\"=10000, "
             "\"chains\"=1, \"thin\"=1, \"seed\"=42);");
}

TEST_CASE("regression form: what is missing is asked for in a fixed order")
{
    Stage stage;
    auto datasets = Datasets();
    RegressionForm form(stage.Frame(), &datasets, "reg1");
    auto* const name = dynamic_cast<wxTextCtrl*>(form.FindWindowByName("name"));
    REQUIRE(name);
    std::vector<wxString> texts;
    int const end = Fill(form,
                         [&]
                         {
                             ModalScript boxes;
                             boxes.Then(wxID_OK).Then(wxID_OK).Then(wxID_OK).Then(wxID_OK).Then(wxID_OK);
                             name->SetValue("reg 1");
                             ClickOk(form);
                             name->SetValue("m");
                             ClickOk(form);
                             Move(&form, 0, 0);
                             ClickOk(form);
                             Click(Find<wxCheckBox>(&form));
                             auto* const draws = SamplerField(form, "20000");
                             auto* const seed = SamplerField(form, "42");
                             REQUIRE((draws && seed));
                             draws->SetValue("many");
                             ClickOk(form);
                             draws->SetValue("10");
                             seed->SetValue("x");
                             ClickOk(form);
                             for (auto const& shown : boxes.Shown())
                             {
                                 texts.push_back(shown.text);
                                 CHECK(shown.caption == "Linear Regression");
                                 CHECK(shown.parent == &form);
                             }
                             seed->SetValue("7");
                             ClickOk(form);
                         });
    CHECK(end == wxID_OK);
    REQUIRE(texts.size() == 5);
    CHECK(texts[0]
          == "The name must consist of letters, digits and underscores, and must not begin with a digit.");
    CHECK(texts[1] == "Choose a dependent variable.");
    CHECK(texts[2] == "Choose independent variables, or a constant.");
    CHECK(texts[3] == "The number of draws must be a whole number.");
    CHECK(texts[4].Contains("seed"));
    CHECK(form.Script()
          == "m = regress(macro, \"gdp\", \"\", \"constant\"=true, \"draws\"=10, \"burnin\"=10000, "
             "\"chains\"=1, \"thin\"=1, \"seed\"=7);");
}

TEST_CASE("regression form: a custom prior is part of the statement")
{
    Stage stage;
    auto datasets = Datasets();
    RegressionForm form(stage.Frame(), &datasets, "reg1");
    auto const define = [&] { return form.FindWindow(6022); };
    auto const refused = [](wxDialog* dialog)
    {
        CHECK(ShownDialog(dialog).text
              == "Choose variables or the constant first: each of them has a coefficient.");
        return wxID_OK;
    };
    auto const typed = [](wxDialog* dialog)
    {
        dialog->CallAfter(
            [dialog]
            {
                Pump(150);
                Find<wxNotebook>(dialog)->SetSelection(2);
                auto* const error = Find<PriorGrid>(dialog, 1);
                error->SetFocus();
                error->SetGridCursor(1, 0);
                Pump();
                TypeText("2.5");
                Keep(Photograph(dialog), "RegressionForm-prior");
                Click(dialog->FindWindow(wxID_OK));
            });
        return wxID_NONE;
    };
    int const end = Fill(form,
                         [&]
                         {
                             Click(Find<wxRadioButton>(&form, 1));
                             Click(define());
                             Move(&form, 0, 0);
                             Move(&form, 0, 1);
                             Click(Find<wxCheckBox>(&form));
                             Click(define());
                             ClickOk(form);
                         },
                         {refused, typed});
    CHECK(end == wxID_OK);
    CHECK(form.Script()
          == "reg1 = regress(macro, \"gdp\", \"cpi\", \"constant\"=true, \"mean\"=[0; 0], "
             "\"precision\"=[1e-04, 0; 0, 1e-04], \"shape\"=0.001, \"rate\"=2.5, \"draws\"=20000, "
             "\"burnin\"=10000, \"chains\"=1, \"thin\"=1, \"seed\"=42);");
}
