#include "dialogs/analysis/AAD0_NotReady.h"

#include "dialogs/analysis/ActionChecks.h"

using namespace action_checks;

TEST_CASE("not ready dialog: it works with any list, and with an empty one")
{
    Stage stage;
    for (auto const& given : {Arguments{}, Arguments{SENTINEL}, ManyNames(1000)})
    {
        Arguments arguments = given;
        AAD0_NotReady dialog(stage.Frame(), arguments);
        CHECK(arguments == given);
        CHECK(dialog.GetParent() == stage.Frame());
        auto const between = CheckFrame(dialog, "Funtion not implemented",
                                        "This function has not been implemented yet.", 320);
        CHECK(between.empty());
        CHECK(dialog.GetChildren().size() == 3);
        CheckCentre(dialog, wxSize(400, 300));
        CHECK(Accepts(dialog));
    }
}

TEST_CASE("not ready dialog: the keyboard is on OK, and all ways lead out")
{
    Stage stage;
    Arguments arguments;
    AAD0_NotReady dialog(stage.Frame(), arguments);
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Keep(Photograph(&dialog), "AAD0_NotReady");
                  Press(WXK_RETURN);
              })
          == wxID_OK);
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_OK)); }) == wxID_OK);
    CheckWaysOut(dialog);
}
