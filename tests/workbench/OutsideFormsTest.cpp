#include "workbench/app/OutsideForms.h"

#include <catch2/catch.hpp>

#include <wx/checkbox.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/textctrl.h>

#include "dialogs/external/InitsNotebook.h"
#include "dialogs/external/JAGSDialog.h"
#include "pickers/GibbsPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"
#include "support/Find.h"
#include "support/RunDialog.h"
#include "support/TabClicks.h"

using workbench::Asked;

namespace
{
using Ask = Asked (*)(wxWindow* parent);

wxString const MODEL = "/models/my model.bug";

void SetScript(wxDialog* dialog, wxString const& path) { Find<wxFilePickerCtrl>(dialog)->SetPath(path); }

/// The n-th field for names.
wxTextCtrl* Names(wxDialog* dialog, std::size_t n) { return Find<wxTextCtrl>(Find<TextPicker>(dialog, n)); }

/// The sampler's fields, in their order.
enum Setting
{
    DRAWS,
    BURN_IN,
    CHAINS,
    THINNING,
    SEED
};

wxTextCtrl* Sampler(wxDialog* dialog, Setting setting)
{
    return Find<wxTextCtrl>(Find<GibbsPicker>(dialog), setting);
}

/// Asks, and does the first of `steps` to the dialog that comes, and so on, each until "&Run" is pressed.
/// The last is done on the screen, with a click; upon each other one the workbench must refuse in a box.
/// All dialogs that came are in `shown`.
struct Asking
{
    using Step = std::function<void(wxDialog*)>;

    Asked With(Ask ask, std::vector<Step> const& steps)
    {
        ModalScript script;
        for (auto step = steps.begin(); step != steps.end() - 1; ++step)
        {
            script.Then(
                [step](wxDialog* dialog)
                {
                    (*step)(dialog);
                    wxCommandEvent press(wxEVT_BUTTON, wxID_OK);
                    dynamic_cast<JAGSDialog&>(*dialog).OnButtonOk(press);
                    return wxID_OK;
                });
            script.Then(wxID_OK);
        }
        script.Then(
            [&](wxDialog* dialog)
            {
                return OnScreen(
                    [&steps, dialog]
                    {
                        steps.back()(dialog);
                        Click(dialog->FindWindow(wxID_OK));
                    })(dialog);
            });
        if (isTold)
            script.Then(wxID_OK);
        auto const asked = ask(stage.Frame());
        shown = script.Shown();
        return asked;
    }

    /// What a box told, which must have its icon and this parent.
    wxString Box(std::size_t n, long icon = wxICON_EXCLAMATION)
    {
        REQUIRE(shown.size() > 2 * n + 1);
        auto const& box = shown[2 * n + 1];
        CHECK(box.caption == shown[2 * n].caption);
        CHECK(box.style == (wxOK | icon));
        CHECK(box.parent == stage.Frame());
        return box.text;
    }

    Stage stage;
    bool isTold = false; ///< Whether a box follows on the last step, too.
    std::vector<ShownDialog> shown;
};
} // namespace

TEST_CASE("outside forms: what is filled in for JAGS becomes one statement")
{
    Asking asking;
    CHECK(asking.With(workbench::AskJags,
                      {[](wxDialog* dialog)
                       {
                           SetScript(dialog, MODEL);
                           Names(dialog, 0)->SetValue("A, d.y");
                           Names(dialog, 1)->SetValue("\"mu\", \"beta[2:4]\"");
                           Sampler(dialog, DRAWS)->SetValue("300");
                           Sampler(dialog, CHAINS)->SetValue("2");
                           auto* const store = Find<StorePicker>(dialog);
                           Click(Find<wxCheckBox>(store));
                           Find<wxTextCtrl>(store)->SetValue("m1");
                           Find<wxNotebook>(dialog)->SetSelection(1);
                           Pump(100);
                           auto* const inits = Find<InitsNotebook>(dialog);
                           ClickTab(inits, 1);
                           REQUIRE(inits->GetPageCount() == 3);
                           Click(Find<wxTextCtrl>(inits->GetPage(1)));
                           TypeText("mu = 1,");
                           Press(WXK_RETURN);
                           TypeText("beta = zeros(4,1)");
                           Keep(Photograph(dialog), "OutsideForms-JAGS");
                       }})
          == Asked("m1 = jags(\"/models/my model.bug\", \"A, d.y\", \"mu, beta[2:4]\", "
                   "\"inits\"=\"| mu = 1, beta = zeros(4,1)\", \"draws\"=300, \"burnin\"=10000, \"chains\"=2, "
                   "\"thin\"=1, \"seed\"=42);"));
    CHECK(asking.shown.size() == 1);
}

TEST_CASE("outside forms: what JAGS could not take is refused, and what was typed stays")
{
    Asking asking;
    auto const inits = [](wxDialog* dialog, wxString const& text)
    { Find<wxTextCtrl>(Find<InitsNotebook>(dialog)->GetPage(0))->SetValue(text); };
    auto const name = [](wxDialog* dialog) { return Find<wxTextCtrl>(Find<StorePicker>(dialog)); };
    CHECK(asking.With(workbench::AskJags,
                      {[](wxDialog* dialog) { Names(dialog, 0)->SetValue("A"); },
                       [](wxDialog* dialog) { SetScript(dialog, MODEL); },
                       [](wxDialog* dialog) { Names(dialog, 1)->SetValue(" , "); },
                       [&](wxDialog* dialog)
                       {
                           Names(dialog, 1)->SetValue("2b");
                           Find<wxCheckBox>(Find<StorePicker>(dialog))->SetValue(true);
                       },
                       [&](wxDialog* dialog) { name(dialog)->SetValue("1st"); },
                       [&](wxDialog* dialog) { name(dialog)->SetValue("first"); },
                       [](wxDialog* dialog)
                       {
                           Names(dialog, 1)->SetValue("mu");
                           Sampler(dialog, DRAWS)->SetValue("many");
                       },
                       [](wxDialog* dialog)
                       {
                           Sampler(dialog, DRAWS)->SetValue("7");
                           Sampler(dialog, CHAINS)->SetValue("-1");
                       },
                       [](wxDialog* dialog)
                       {
                           Sampler(dialog, CHAINS)->SetValue("1");
                           Sampler(dialog, SEED)->SetValue("18446744073709551615");
                       },
                       [&](wxDialog* dialog)
                       {
                           Sampler(dialog, SEED)->SetValue("7");
                           inits(dialog, "mu 1");
                       },
                       [&](wxDialog* dialog) { inits(dialog, "mu = 1 | mu = 2"); },
                       [&](wxDialog* dialog)
                       {
                           inits(dialog, "mu = 1");
                           Sampler(dialog, THINNING)->SetValue("2000000000");
                       },
                       [](wxDialog* dialog) { Sampler(dialog, THINNING)->SetValue("2"); }})
          == Asked("first = jags(\"/models/my model.bug\", \"A\", \"mu\", \"inits\"=\"mu = 1\", \"draws\"=7, "
                   "\"burnin\"=10000, \"chains\"=1, \"thin\"=2, \"seed\"=7);"));
    REQUIRE(asking.shown.size() == 25);
    std::size_t n = 0;
    CHECK(asking.Box(n++) == "Choose the file of the model.");
    CHECK(asking.Box(n++) == "Name at least one parameter to monitor.");
    CHECK(asking.Box(n++) == "Name at least one parameter to monitor.");
    for (int i = 0; i < 2; ++i)
        CHECK(asking.Box(n++)
              == "The name of the model must consist of letters, digits and underscores, and must not begin with "
                 "a digit.");
    CHECK(asking.Box(n++) == "\"2b\" can't be monitored; what can is written as mu, beta[2] or beta[2:4].");
    CHECK(asking.Box(n++) == "The number of draws must be a positive whole number.");
    CHECK(asking.Box(n++) == "The number of chains must be a positive whole number.");
    CHECK(asking.Box(n++) == "The seed is too large.");
    CHECK(asking.Box(n++)
          == "\"mu 1\" is no initial value; one is written as tau = 10, beta = zeros(3,1), beta = ones(3,1), or "
             "beta = [1, 2, 3].");
    CHECK(asking.Box(n++) == "Initial values are given for chain 2, but the number of chains is 1.");
    CHECK(asking.Box(n++)
          == "Burn-in, draws and thinning make more iterations than JAGS can count, which are 2147483647.");
}

TEST_CASE("outside forms: a script's statement has what goes out before what comes back")
{
    struct
    {
        Ask ask;
        std::string command;
        wxString title;
        wxString warning;
    } const bridges[] = {
        {workbench::AskOctave, "octave", "GNU Octave Interface", "No GNU Octave script has been provided."},
        {workbench::AskRproject, "rproject", "R-project Interface", "No R script has been provided."}};
    for (auto const& bridge : bridges)
    {
        Asking asking;
        CHECK(asking.With(bridge.ask,
                          {[&](wxDialog* dialog)
                           {
                               CHECK(dialog->GetTitle() == bridge.title);
                               Names(dialog, 0)->SetValue("A, d.y");
                               Click(Names(dialog, 1));
                               TypeText("B,");
                               Press(WXK_RETURN);
                               TypeText("C");
                               CheckRefused(*dialog, bridge.warning,
                                            [&] { Click(dialog->FindWindow(wxID_OK)); });
                               SetScript(dialog, "/scripts/a script");
                           }})
              == Asked(bridge.command + "(\"/scripts/a script\", \"A, d.y\", \"B, C\");"));
        CHECK(asking.With(bridge.ask, {[](wxDialog* dialog) { SetScript(dialog, "s"); }})
              == Asked(bridge.command + "(\"s\", \"\", \"\");"));
    }
}

TEST_CASE("outside forms: of a program that is not run that is said, and nothing is done")
{
    wxString const rest = " can't be run by this workbench, and nothing was done.\n\nWhat it runs are JAGS, GNU "
                          "Octave and R.";
    std::pair<Ask, wxString> const programs[] = {{workbench::AskOpenBugs, "OpenBUGS"},
                                                 {workbench::AskStan, "Stan"},
                                                 {workbench::AskMatlab, wxString::FromUTF8("MATLAB®")},
                                                 {workbench::AskStata, wxString::FromUTF8("Stata®")}};
    for (auto const& [ask, name] : programs)
    {
        Asking asking;
        asking.isTold = true;
        CHECK(!asking.With(ask, {[](wxDialog* dialog) { SetScript(dialog, "s"); }}));
        CHECK(asking.Box(0, wxICON_INFORMATION) == name + rest);
    }
}

TEST_CASE("outside forms: cancel gives no statement and asks nothing")
{
    Stage stage;
    ModalScript script;
    for (Ask const ask : {workbench::AskJags, workbench::AskOpenBugs, workbench::AskStan, workbench::AskOctave,
                          workbench::AskRproject, workbench::AskMatlab, workbench::AskStata})
    {
        script.Then(wxID_CANCEL);
        CHECK(!ask(stage.Frame()));
    }
    CHECK(script.Shown().size() == 7);
}
