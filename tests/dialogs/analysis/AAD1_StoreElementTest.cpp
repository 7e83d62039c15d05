#include "dialogs/analysis/AAD1_StoreElement.h"

#include "dialogs/analysis/ActionChecks.h"

using namespace action_checks;

namespace
{
constexpr char NO_NAME[] = "Please provide a name for the new variable.";
constexpr char BAD_NAME[] = "The variable name must not contain spaces\nor special characters and it "
                            "must not begin\nwith a number.";

struct StoreFixture
{
    explicit StoreFixture(Arguments given = {"efficiency scores", "frontier", "banks", "Variable name:",
                                             "eff_score", "A <b>short</b> note."})
        : arguments(std::move(given))
    {
    }

    Stage stage;
    Arguments arguments;
    AAD1_StoreElement dialog{stage.Frame(), arguments};
    wxTextCtrl* field = Find<wxTextCtrl>(&dialog);
};
} // namespace

TEST_CASE("store element dialog: layout")
{
    StoreFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto const parts
        = CheckFrame(dialog, "Store model element to dataset",
                     "Storing efficiency scores from model \"frontier\" in dataset \"banks\".", 320);
    REQUIRE(parts.size() == 3);
    CHECK(CheckNameRow(parts[0], "Variable name:", "eff_score") == fixture.field);
    CheckNote(dialog, parts, "A short note.");
    CheckCentre(dialog, dialog.GetSize());
    CHECK(dialog.GetVarName() == "eff_score");
}

TEST_CASE("store element dialog: an empty note is shown, and so is any other text")
{
    StoreFixture fixture({NIPPON, LONG_MODEL, SENTINEL, "", "", ""});
    auto const parts = CheckFrame(fixture.dialog, "Store model element to dataset",
                                  "Storing " + NIPPON + " from model \"" + LONG_MODEL
                                      + "\" in dataset \"" + SENTINEL + "\".",
                                  320);
    REQUIRE(parts.size() == 3);
    CheckNameRow(parts[0], "", "");
    CheckNote(fixture.dialog, parts, "");
    CHECK(fixture.dialog.GetVarName().empty());
}

TEST_CASE("store element dialog: entries behind the note are not read")
{
    auto const given = Joined({"e", "m", "d", "l", "v", "n"}, ManyNames(1000));
    StoreFixture fixture(given);
    CHECK(CheckFrame(fixture.dialog, "Store model element to dataset",
                     "Storing e from model \"m\" in dataset \"d\".", 320)
              .size()
          == 3);
    CHECK(fixture.arguments == given);
}

TEST_CASE("store element dialog: names that it takes, and names that it refuses")
{
    StoreFixture fixture;
    CheckNameCheck(fixture.dialog, fixture.field, NO_NAME, BAD_NAME);
}

TEST_CASE("store element dialog: the name is told as it was typed")
{
    StoreFixture fixture;
    for (auto const& text : Arguments{"abc", "", " a b ", "\"quoted\"", ZURICH, "p_"})
    {
        fixture.field->SetValue(Wide(text));
        CHECK(fixture.dialog.GetVarName() == text);
    }
    AsciiLocale const ascii;
    fixture.field->SetValue(Wide(ZURICH));
    CHECK(fixture.dialog.GetVarName().empty());
}

TEST_CASE("store element dialog: what does not convert is left out of the sentence")
{
    AsciiLocale const ascii;
    StoreFixture fixture({ZURICH, "m", ZURICH, ZURICH, ZURICH, ZURICH});
    CheckFrame(fixture.dialog, "Store model element to dataset",
               "Storing  from model \"m\" in dataset \"\".", 320);
    CHECK(fixture.field->GetValue().empty());
}

TEST_CASE("store element dialog: a name given by hand")
{
    StoreFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(RunDialog(dialog,
              [&]
              {
                  CHECK(dialog.FindWindow(wxID_OK)->HasFocus());
                  Click(fixture.field);
                  fixture.field->SelectAll();
                  TypeText("2nd");
                  CheckRefused(dialog, BAD_NAME, [] { Press(WXK_RETURN); });
                  CHECK(dialog.GetVarName() == "2nd");
                  fixture.field->Clear();
                  CheckRefused(dialog, NO_NAME, [&] { Click(dialog.FindWindow(wxID_OK)); });
                  Click(fixture.field);
                  TypeText("scores_2");
                  Keep(Photograph(&dialog), "AAD1_StoreElement");
                  Press(WXK_RETURN);
              })
          == wxID_OK);
    CHECK(dialog.GetVarName() == "scores_2");
    CheckWaysOut(dialog);
}
