#include "dialogs/analysis/CompareModelsDialog.h"

#include <random>

#include <wx/grid.h>
#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>

#include "dialogs/analysis/ModelChecks.h"
#include "modelspec/PriorDialog.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/PriorProbPicker.h"
#include "pickers/ModelPickerPMP.h"
#include "pickers/NotePanel.h"

using namespace model_checks;

namespace
{
constexpr char NONE_SELECTED[] = "No models have been selected.";
constexpr char NO_PROBABILITIES[] = "Prior model probabilities must be\npositive and sum to one.\n";
constexpr char OTHER_COUNT[] = "The number of selected models does not\nmatch the number of prior model "
                               "probabilities.\n\nRe-define the prior model probabilities\nor use the "
                               "defaults.";
constexpr char TITLE[] = "Prior model probabilities";

enum
{
    ID_DEFINE = 6022,
    ID_DEFAULT = 6023
};

using Texts = std::vector<wxString>;

std::shared_ptr<Model> WithLogML(Eigen::MatrixXd const& logML = Eigen::MatrixXd::Constant(1, 1, -250.5))
{
    auto model = std::make_shared<Model>();
    model->results["logML"] = logML;
    return model;
}

/// Models of these names, all with a log-ML.
ModelMap Comparable(std::vector<std::string> const& names)
{
    ModelMap models;
    for (auto const& name : names)
        models[name] = WithLogML();
    return models;
}

struct CompareFixture : Fixture<CompareModelsDialog>
{
    explicit CompareFixture(ModelMap given = Comparable({"linear", "loglinear", "probit", "tobit"}))
        : Fixture(std::move(given))
    {
    }

    void Choose(int count) { driver.MoveIn(0, FirstOnes(count)); }

    void ChooseCustom() { custom->SetValue(true); }

    void Define()
    {
        wxCommandEvent event(wxEVT_BUTTON, ID_DEFINE);
        event.Skip(false);
        dialog.OnDefinePriorProbButton(event);
        CHECK(!event.GetSkipped());
    }

    PriorDialog* Priors() { return Find<PriorDialog>(&dialog); }
    PriorGrid* Grid() { return Find<PriorGrid>(&dialog); }

    Texts Numbers()
    {
        Texts numbers;
        for (int row = 0; row < Grid()->GetNumberRows(); ++row)
            numbers.push_back(Grid()->GetCellValue(row, 0));
        return numbers;
    }

    Texts Labels()
    {
        Texts labels;
        for (int row = 0; row < Grid()->GetNumberRows(); ++row)
            labels.push_back(Grid()->GetRowLabelValue(row));
        return labels;
    }

    /// The user of the dialog for the priors, who types `numbers` and leaves it by `id`.
    ModalScript::Answer Typing(Texts numbers, int id = wxID_OK)
    {
        return [this, numbers = std::move(numbers), id](wxDialog* shown)
        {
            CHECK(shown == Priors());
            for (std::size_t row = 0; row < numbers.size(); ++row)
                Grid()->SetCellValue(static_cast<int>(row), 0, numbers[row]);
            return id;
        };
    }

    /// Presses "&Define" and answers the dialogs that come.
    std::vector<ShownDialog> Define(std::vector<ModalScript::Answer> const& answers)
    {
        ModalScript script;
        for (auto const& answer : answers)
            script.Then(answer);
        Define();
        return script.Shown();
    }

    void CheckPriors(Texts const& expected)
    {
        Texts found;
        Eigen::MatrixXd const priors = dialog.GetCustomPriors();
        CHECK(priors.cols() == 1);
        for (Eigen::Index row = 0; row < priors.rows(); ++row)
            found.push_back(wxString::Format("%g", priors(row, 0)));
        CHECK(found == expected);
    }

    Driver<ModelPickerPMP> driver{Find<ModelPickerPMP>(&dialog),
                                  {&ModelPickerPMP::OnLhsModelsSelected,
                                   {&ModelPickerPMP::OnRhsModelsSelected},
                                   {&ModelPickerPMP::OnMoveButton}}};
    wxRadioButton* standard = Find<wxRadioButton>(&dialog, 0);
    wxRadioButton* custom = Find<wxRadioButton>(&dialog, 1);
    wxRadioBox* approximation = Find<wxRadioBox>(&dialog);
    wxWindow* define = dialog.FindWindow(ID_DEFINE);
};

ModalScript::Answer Say(int id)
{
    return [id](wxDialog*) { return id; };
}

/// What was shown one after the other: the dialog for the priors as "priors", warnings by their text.
Texts Story(std::vector<ShownDialog> const& shown, wxDialog const& parent)
{
    Texts story;
    for (auto const& dialog : shown)
    {
        CHECK(dialog.parent == &parent);
        if (dialog.text.empty())
        {
            CHECK(dialog.caption == TITLE);
            story.push_back("priors");
        }
        else
        {
            CheckWarning(dialog, dialog.text, &parent);
            story.push_back(dialog.text);
        }
    }
    return story;
}

/// Shows the dialog while `actions` are done to it, for a box drops a parent that isn't shown.
void WhileShown(CompareFixture& fixture, std::function<void()> const& actions)
{
    RunDialog(fixture.dialog,
              [&]
              {
                  actions();
                  fixture.dialog.EndModal(wxID_CANCEL);
              });
}
} // namespace

TEST_CASE("compare models dialog: the models and the note")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Compare Models", 4);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const box = dynamic_cast<wxStaticBoxSizer*>(Item(sizer, 0)->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxVERTICAL);
    CHECK(box->GetStaticBox()->GetLabel() == "Select Models to Compare");
    REQUIRE(box->GetItemCount() == 2);
    CHECK(Item(box, 0)->GetWindow() == fixture.driver.picker);
    CHECK(PlacementOf(Item(box, 0)) == Placement{1, wxEXPAND, 5});
    auto* const note = Find<NotePanel>(&dialog);
    CHECK(Item(box, 1)->GetWindow() == note);
    CHECK(PlacementOf(Item(box, 1)) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    auto* const html = Find<wxHtmlWindow>(note);
    CHECK(html->ToText().Trim(false).Trim()
          == "All models in memory with available log-ML are listed here. However, model comparison is "
             "valid only among models with the same dependent variable(s) and which were estimated using "
             "the same set of observations.");
    CHECK(html->GetClientSize().y >= html->GetInternalRepresentation()->GetHeight());
    CheckRunAndCancel(Item(sizer, 3), dialog);
}

TEST_CASE("compare models dialog: the priors and the approximation")
{
    CompareFixture fixture;
    auto* const sizer = fixture.dialog.GetSizer();
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    auto* const box = dynamic_cast<wxStaticBoxSizer*>(Item(sizer, 1)->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxHORIZONTAL);
    CHECK(box->GetStaticBox()->GetLabel() == "Prior Model Probabilities");
    REQUIRE(box->GetItemCount() == 1);
    CHECK(Item(box, 0)->GetWindow() == Find<PriorProbPicker>(&fixture.dialog));
    CHECK(PlacementOf(Item(box, 0)) == Placement{3, wxEXPAND, 5});

    auto* const approximation = fixture.approximation;
    CheckRadioBox(Item(sizer, 2), approximation, "Approximation of the log-ML",
                  {"Use the Lewis-Raftery approximation of the log-ML for all models",
                   "Use the Chib-Jeliazkov approximation of the log-ML if available"},
                  1);
    CHECK(!fixture.dialog.GetCJ());
    approximation->SetSelection(1);
    CHECK(fixture.dialog.GetCJ());
}

TEST_CASE("compare models dialog: models with a log-ML are offered, whatever it is")
{
    auto other = std::make_shared<Model>();
    other->results["logml"] = other->results["logML "] = Eigen::MatrixXd::Ones(1, 1);
    CompareFixture fixture{ModelMap{{"b", WithLogML()},
                                    {"a", WithLogML(Eigen::MatrixXd())},
                                    {"none", std::make_shared<Model>()},
                                    {"other", other},
                                    {"Z", WithLogML(Eigen::MatrixXd::Constant(2, 1, NAN))}}};
    CHECK(fixture.driver.controls.Left()->GetStrings() == Names({"Z", "a", "b"}));
    CHECK(fixture.dialog.GetModelsNames() == Names({""}));
}

TEST_CASE("compare models dialog: equal priors for any number of models")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetCustomPriors().size() == 0);
    CHECK(dialog.GetDefaultPriors());
    fixture.Choose(3);
    CHECK(Accepts(dialog));
    CHECK(dialog.GetModelsNames() == Names({"linear", "loglinear", "probit"}));
    CHECK(dialog.GetCustomPriors() == Eigen::MatrixXd::Constant(3, 1, 1.0 / 3.0));
    CHECK(dialog.GetDefaultPriors());
    fixture.Choose(1);
    CHECK(Accepts(dialog));
    CHECK(dialog.GetCustomPriors() == Eigen::MatrixXd::Constant(4, 1, 0.25));
    // "Custom" alone defines nothing.
    fixture.ChooseCustom();
    CHECK(dialog.GetDefaultPriors());
    CHECK(Accepts(dialog));
    CHECK(dialog.GetCustomPriors() == Eigen::MatrixXd::Constant(4, 1, 0.25));
}

TEST_CASE("compare models dialog: without a model it warns, after it has made the default prior")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    WhileShown(fixture,
               [&]
               {
                   CHECK(fixture.Run()->HasFocus());
                   CheckRefused(dialog, NONE_SELECTED, [] { Press(WXK_RETURN); });
                   CHECK(dialog.GetCustomPriors() == Eigen::MatrixXd::Ones(1, 1));
               });
}

TEST_CASE("compare models dialog: Define without a model warns and opens nothing, but counts")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    WhileShown(fixture,
               [&]
               {
                   fixture.ChooseCustom();
                   CHECK(dialog.GetDefaultPriors());
                   CheckRefused(dialog, NONE_SELECTED, [&] { fixture.Define(); });
                   CHECK(!dialog.GetDefaultPriors());
                   CHECK(fixture.Labels() == Texts{""});
                   CHECK(fixture.Numbers() == Texts{"1"});
                   CHECK(!fixture.Priors()->IsShown());
                   // No model counts as one, for which no prior was defined yet.
                   CheckRefused(dialog, OTHER_COUNT, [&] { CHECK(!Accepts(dialog)); });
                   fixture.standard->SetValue(true);
                   CHECK(dialog.GetDefaultPriors());
                   CheckRefused(dialog, NONE_SELECTED, [&] { CHECK(!Accepts(dialog)); });
               });
}

TEST_CASE("compare models dialog: the count of the priors is checked before there is a model at all")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    fixture.Choose(2);
    fixture.ChooseCustom();
    WhileShown(fixture,
               [&]
               {
                   CHECK(fixture.Define({fixture.Typing({"0.25", "0.75"})}).size() == 1);
                   CHECK(Accepts(dialog));
                   fixture.driver.MoveOut(0, {0, 1});
                   CheckRefused(dialog, OTHER_COUNT, [&] { CHECK(!Accepts(dialog)); });
                   fixture.CheckPriors({"0.25", "0.75"});
                   // With one number the empty choice is told.
                   fixture.Choose(1);
                   CHECK(fixture.Define({fixture.Typing({"1"})}).size() == 1);
                   fixture.driver.MoveOut(0, {0});
                   CheckRefused(dialog, NONE_SELECTED, [&] { CHECK(!Accepts(dialog)); });
                   // The defaults always fit.
                   fixture.Choose(4);
                   CheckRefused(dialog, OTHER_COUNT, [&] { CHECK(!Accepts(dialog)); });
                   fixture.standard->SetValue(true);
                   CHECK(Accepts(dialog));
                   fixture.CheckPriors({"0.25", "0.25", "0.25", "0.25"});
               });
}

TEST_CASE("compare models dialog: the page on which the priors are typed")
{
    CompareFixture fixture;
    CHECK(!fixture.Priors());
    // Nothing is there yet to be written.
    fixture.dialog.WritePriorProbOnDialog();
    fixture.dialog.RewritePriorProbOnDialog();
    wxCommandEvent press(wxEVT_BUTTON, ID_DEFAULT);
    fixture.dialog.ProcessWindowEvent(press);
    CHECK(!fixture.Priors());

    fixture.Choose(3);
    CHECK(fixture.driver.picker->GetChanged());
    auto const shown = fixture.Define({Say(wxID_CANCEL)});
    REQUIRE(shown.size() == 1);
    auto* const priors = fixture.Priors();
    REQUIRE(priors);
    CHECK(priors->GetParent() == &fixture.dialog);
    CHECK(priors->GetTitle() == TITLE);
    CHECK(!Find<NotePanel>(priors));
    auto* const notebook = priors->GetNotebook();
    REQUIRE(notebook->GetPageCount() == 1);
    CHECK(notebook->GetPage(0) == fixture.Grid());
    CHECK(notebook->GetPageText(0) == TITLE);
    CHECK(notebook->GetPageImage(0) == wxNOT_FOUND);
    CHECK(fixture.Labels() == Texts{"linear", "loglinear", "probit"});
    CHECK(fixture.Numbers() == Texts{"0.333333", "0.333333", "0.333333"});
    CHECK(!fixture.driver.picker->GetChanged());
    CHECK(fixture.dialog.GetCustomPriors().size() == 0);
}

TEST_CASE("compare models dialog: what was typed stays until the models are touched")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    fixture.Choose(2);
    fixture.ChooseCustom();
    WhileShown(
        fixture,
        [&]
        {
            fixture.Define({fixture.Typing({"0.2", "0.8"})});
            fixture.CheckPriors({"0.2", "0.8"});
            // Left another way than by OK nothing is read; the numbers stay for the next time.
            fixture.Define({fixture.Typing({"0.9", "7"}, wxID_CANCEL)});
            fixture.CheckPriors({"0.2", "0.8"});
            CHECK(fixture.Numbers() == Texts{"0.9", "7"});
            auto* const priors = fixture.Priors();
            fixture.Define({fixture.Typing({"0.4", "0.6"})});
            fixture.CheckPriors({"0.4", "0.6"});
            CHECK(fixture.Priors() == priors);
            CHECK(priors->GetNotebook()->GetPageCount() == 1);

            // Another model: the count does not fit, and the next time starts from thirds.
            fixture.Choose(1);
            CheckRefused(dialog, OTHER_COUNT, [&] { CHECK(!Accepts(dialog)); });
            CHECK(fixture.Numbers() == Texts{"0.4", "0.6"});
            fixture.Define({fixture.Typing({})});
            CHECK(fixture.Labels() == Texts{"linear", "loglinear", "probit"});
            CHECK(fixture.Numbers() == Texts{"0.333333", "0.333333", "0.333333"});
            fixture.CheckPriors({"0.333333", "0.333333", "0.333333"});
            CHECK(Accepts(dialog));
            CHECK(!dialog.GetDefaultPriors());
            fixture.CheckPriors({"0.333333", "0.333333", "0.333333"});

            // A press that moves nothing is a touch too, even without a model to be warned of.
            fixture.Define({fixture.Typing({"0.5", "0.25", "0.25"})});
            fixture.driver.SelectLeft({});
            fixture.driver.Press(0);
            fixture.Define({fixture.Typing({}, wxID_CANCEL)});
            CHECK(fixture.Numbers() == Texts{"0.333333", "0.333333", "0.333333"});
            fixture.CheckPriors({"0.5", "0.25", "0.25"});
        });
}

TEST_CASE("compare models dialog: which priors are taken")
{
    CompareFixture fixture;
    fixture.Choose(2);
    fixture.ChooseCustom();
    auto const takes = [&](wxString const& first, wxString const& second)
    {
        INFO(first << " and " << second);
        auto const shown = fixture.Define({fixture.Typing({first, second})});
        CHECK(shown.size() == 1);
    };
    auto const refuses = [&](wxString const& first, wxString const& second)
    {
        INFO(first << " and " << second);
        auto const shown = fixture.Define(
            {fixture.Typing({first, second}), Say(wxID_OK), fixture.Typing({"0.125", "0.875"})});
        CHECK(Story(shown, fixture.dialog) == Texts{"priors", NO_PROBABILITIES, "priors"});
        fixture.CheckPriors({"0.125", "0.875"});
    };
    WhileShown(fixture,
               [&]
               {
                   takes("0.5", "0.5");
                   takes("0.5", "0.500001");
                   takes("0.5", "0.499999");
                   takes("1e-300", "1");
                   refuses("0.5", "0.6");
                   refuses("0.5", "0.500002");
                   refuses("0.5", "0.499998");
                   refuses("1.5", "-0.5");
                   refuses("1", "0");
                   refuses("0", "1");
                   refuses("1", "-0");
                   refuses("", "1");
                   refuses("nan", "1");
                   refuses("inf", "-inf");
                   refuses("inf", "1");
                   // A cell without a number repeats the one above it.
                   takes("0.5", "");
                   refuses("0.4", "");
               });
}

TEST_CASE("compare models dialog: six equal priors with six digits are too much, and are refused")
{
    CompareFixture fixture(Comparable({"a", "b", "c", "d", "e", "f", "g", "h", "i"}));
    fixture.Choose(6);
    fixture.ChooseCustom();
    WhileShown(fixture,
               [&]
               {
                   // 6 by 0.166667 is 1.000002.
                   auto const shown
                       = fixture.Define({fixture.Typing({}), Say(wxID_OK), fixture.Typing({"0.166665"})});
                   CHECK(Story(shown, fixture.dialog) == Texts{"priors", NO_PROBABILITIES, "priors"});
                   fixture.CheckPriors(
                       {"0.166665", "0.166667", "0.166667", "0.166667", "0.166667", "0.166667"});
                   // 7 by 0.142857 and 9 by 0.111111 are 0.999999, which is enough.
                   fixture.Choose(1);
                   CHECK(fixture.Define({fixture.Typing({})}).size() == 1);
                   fixture.Choose(2);
                   CHECK(fixture.Define({fixture.Typing({})}).size() == 1);
               });
}

TEST_CASE("compare models dialog: the bounds of the sum hold to the last millionth, whatever the parts")
{
    CompareFixture fixture(Comparable({"a", "b", "c", "d", "e", "f", "g"}));
    fixture.ChooseCustom();
    unsigned const seed = 20261121;
    std::mt19937 random(seed);
    WhileShown(fixture,
               [&]
               {
                   for (int models = 1; models <= 7; ++models)
                   {
                       fixture.Choose(1);
                       for (int step = 0; step < 40; ++step)
                       {
                           // Whole millionths, so that what must come out is plain.
                           int left = 999997 + static_cast<int>(random() % 7);
                           bool const good = left >= 999999 && left <= 1000001;
                           Texts numbers;
                           for (int row = models; row > 1; --row)
                           {
                               int const part = 1 + static_cast<int>(random() % unsigned(left / row));
                               numbers.push_back(wxString::Format("0.%06d", part));
                               left -= part;
                           }
                           numbers.push_back(wxString::Format("%d.%06d", left / 1000000, left % 1000000));
                           INFO("seed " << seed << ", " << models << " models, step " << step);
                           std::vector<ModalScript::Answer> answers{fixture.Typing(numbers)};
                           Texts const rest(static_cast<std::size_t>(models - 1), "0.0625");
                           Texts mended = rest;
                           mended.push_back(wxString::Format("%g", 1 - 0.0625 * (models - 1)));
                           if (!good)
                               answers.insert(answers.end(), {Say(wxID_OK), fixture.Typing(mended)});
                           REQUIRE(fixture.Define(answers).size() == (good ? 1 : 3));
                       }
                   }
               });
}

TEST_CASE("compare models dialog: the user stays in the loop until the priors are good")
{
    CompareFixture fixture;
    fixture.Choose(2);
    fixture.ChooseCustom();
    WhileShown(fixture,
               [&]
               {
                   // However the dialog is left, the same stored numbers are tested again.
                   auto const shown = fixture.Define(
                       {fixture.Typing({"0.5", "0.6"}), Say(wxID_OK),
                        // What stands in the grid is good, but it is not read.
                        fixture.Typing({"0.5", "0.5"}, wxID_CANCEL), Say(wxID_OK),
                        fixture.Typing({}, wxID_CLOSE), Say(wxID_CANCEL),
                        fixture.Typing({"0", "0"}), Say(wxID_OK),
                        fixture.Typing({"0.5", "0.5"})});
                   CHECK(Story(shown, fixture.dialog)
                         == Texts{"priors", NO_PROBABILITIES, "priors", NO_PROBABILITIES, "priors",
                                  NO_PROBABILITIES, "priors", NO_PROBABILITIES, "priors"});
                   fixture.CheckPriors({"0.5", "0.5"});
               });
}

TEST_CASE("compare models dialog: left at once, numbers that are no good stay unread")
{
    CompareFixture fixture;
    fixture.Choose(2);
    fixture.ChooseCustom();
    WhileShown(fixture,
               [&]
               {
                   auto const shown = fixture.Define({fixture.Typing({"3", "4"}, wxID_CANCEL)});
                   CHECK(Story(shown, fixture.dialog) == Texts{"priors"});
                   CHECK(fixture.dialog.GetCustomPriors().size() == 0);
                   CheckRefused(fixture.dialog, OTHER_COUNT, [&] { CHECK(!Accepts(fixture.dialog)); });
               });
}

TEST_CASE("compare models dialog: Default brings equal priors back, which count once they are accepted")
{
    CompareFixture fixture;
    fixture.Choose(4);
    fixture.ChooseCustom();
    fixture.Define({fixture.Typing({"0.1", "0.2", "0.3", "0.4"})});
    wxCommandEvent press(wxEVT_BUTTON, ID_DEFAULT);
    press.Skip(false);
    fixture.dialog.OnDefaultPriorProb(press);
    CHECK(!press.GetSkipped());
    CHECK(fixture.Numbers() == Texts{"0.25", "0.25", "0.25", "0.25"});
    fixture.CheckPriors({"0.1", "0.2", "0.3", "0.4"});
    fixture.Define({fixture.Typing({})});
    fixture.CheckPriors({"0.25", "0.25", "0.25", "0.25"});
}

TEST_CASE("compare models dialog: priors defined by hand")
{
    CompareFixture fixture;
    auto& dialog = fixture.dialog;
    auto const& controls = fixture.driver.controls;
    auto const goTo = [&](int row)
    {
        fixture.Grid()->SetFocus();
        Pump(20);
        fixture.Grid()->GoToCell(row, 0);
    };
    int const answer = RunDialog(
        dialog,
        [&]
        {
            Click(fixture.define);
            CHECK(!fixture.Priors());
            ClickEntry(controls.Left(), 0);
            ClickEntry(controls.Left(), 1, WXK_SHIFT);
            Click(controls.Button(0));
            Click(fixture.custom);
            Click(fixture.define);
            fixture.CheckPriors({"0.3", "0.7"});
            Keep(Photograph(&dialog), "CompareModelsDialog");
            ClickAt(fixture.approximation, wxPoint(20, fixture.approximation->GetSize().y - 12));
            Click(fixture.Run());
        },
        {OnScreen(
             [&]
             {
                 auto* const priors = fixture.Priors();
                 CHECK(priors->FindWindow(wxID_OK)->HasFocus());
                 CHECK(fixture.Numbers() == Texts{"0.5", "0.5"});
                 goTo(0);
                 TypeText("0.3");
                 Press(WXK_RETURN);
                 Keep(Photograph(priors), "CompareModelsDialog-priors");
                 // "Default" while a number is being typed.
                 TypeText("0.9");
                 Click(priors->FindWindow(ID_DEFAULT));
                 CHECK(priors->IsModal());
                 CHECK(fixture.Numbers() == Texts{"0.5", "0.5"});
                 CHECK(dialog.GetCustomPriors().size() == 0);
                 goTo(0);
                 TypeText("0.3");
                 Click(priors->FindWindow(wxID_OK));
             }),
         [&](wxDialog* warning)
         {
             CheckWarning(ShownDialog(warning), NO_PROBABILITIES, &dialog);
             fixture.CheckPriors({"0.3", "0.5"});
             return wxID_OK;
         },
         // Closing the window is "OK" to a dialog that has nothing to cancel; no way leads out.
         OnScreen([&] { fixture.Priors()->Close(); }),
         [&](wxDialog* warning)
         {
             CheckWarning(ShownDialog(warning), NO_PROBABILITIES, &dialog);
             return wxID_OK;
         },
         OnScreen(
             [&]
             {
                 CHECK(fixture.Numbers() == Texts{"0.3", "0.5"});
                 goTo(1);
                 TypeText("0.7");
                 Press(WXK_RETURN);
                 Press(WXK_ESCAPE);
             })});
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetModelsNames() == Names({"linear", "loglinear"}));
    CHECK(!dialog.GetDefaultPriors());
    CHECK(dialog.GetCJ());
    fixture.CheckPriors({"0.3", "0.7"});
}

TEST_CASE("compare models dialog: names outside ASCII")
{
    CompareFixture fixture(Comparable({"mod\xc3\xa8" "le", "\xe6\x97\xa5\xe6\x9c\xac", "a && b"}));
    CHECK(fixture.driver.controls.Left()->GetStrings() == Names({"a && b", "modèle", "日本"}));
    fixture.Choose(3);
    fixture.ChooseCustom();
    fixture.Define({fixture.Typing({"0.5", "0.25", "0.25"})});
    CHECK(fixture.Labels()
          == Texts{"a && b", wxString::FromUTF8("modèle"), wxString::FromUTF8("日本")});
    CHECK(Accepts(fixture.dialog));
    CHECK(fixture.dialog.GetModelsNames() == Names({"a && b", "modèle", "日本"}));
    fixture.CheckPriors({"0.5", "0.25", "0.25"});
}

TEST_CASE("compare models dialog: a thousand models")
{
    CompareFixture fixture(Comparable(ThousandNames()));
    auto& dialog = fixture.dialog;
    fixture.Choose(1000);
    CHECK(Accepts(dialog));
    CHECK(dialog.GetCustomPriors() == Eigen::MatrixXd::Constant(1000, 1, 0.001));
    fixture.ChooseCustom();
    fixture.Define({fixture.Typing({"0.002", "0.0005", "0.0005"})});
    CHECK(Accepts(dialog));
    CHECK(dialog.GetModelsNames() == pair_checks::Wide(ThousandNames()));
    Eigen::MatrixXd expected = Eigen::MatrixXd::Constant(1000, 1, 0.001);
    expected.topRows(3) << 0.002, 0.0005, 0.0005;
    CHECK(dialog.GetCustomPriors() == expected);
}

TEST_CASE("compare models dialog: without models it opens and warns")
{
    CompareFixture fixture{ModelMap()};
    auto& dialog = fixture.dialog;
    CHECK(fixture.driver.controls.Left()->IsEmpty());
    WhileShown(fixture,
               [&]
               {
                   Click(fixture.driver.controls.Button(0));
                   CheckRefused(dialog, NONE_SELECTED, [&] { Click(fixture.Run()); });
                   CheckRefused(dialog, NONE_SELECTED, [&] { fixture.Define(); });
               });
}

TEST_CASE("compare models dialog: Escape, Cancel and closing the window cancel")
{
    CompareFixture fixture;
    CheckWaysOut(fixture.dialog);
    // The dialog for the priors goes with it, asked for or not.
    fixture.Choose(1);
    fixture.Define({Say(wxID_CANCEL)});
    CheckWaysOut(fixture.dialog);
}

TEST_CASE("compare models dialog: the Tab key goes from top to bottom")
{
    CompareFixture fixture;
    auto const& controls = fixture.driver.controls;
    wxCommandEvent event;
    Find<PriorProbPicker>(&fixture.dialog)->OnCustomButton(event);
    fixture.ChooseCustom();
    std::vector<wxWindow*> const expected{controls.Left(),
                                          controls.Button(0),
                                          controls.Role(0),
                                          fixture.custom,
                                          fixture.define,
                                          fixture.approximation,
                                          fixture.dialog.FindWindow(wxID_CANCEL),
                                          fixture.Run()};
    WhileShown(fixture, [&] { CHECK(TabOrder(controls.Left()) == expected); });
}
