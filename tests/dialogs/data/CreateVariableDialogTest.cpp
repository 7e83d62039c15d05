#include "dialogs/data/CreateVariableDialog.h"

#include <wx/textctrl.h>

#include "dialogs/data/DialogChecks.h"
#include "modelspec/Calculator.h"
#include "pickers/DatasetPicker.h"
#include "support/AsciiLocale.h"

using namespace dialog_checks;

namespace
{
constexpr char NO_NAME[] = "No name has been provided for the new variable.";
constexpr char BAD_NAME[] = "The new variable name must not contain spaces\nor special characters and "
                            "it must not begin\nwith a number.";
constexpr char NO_EXPRESSION[] = "No expression has been provided for the new variable.";

struct CreateFixture
{
    CreateFixture() = default;
    explicit CreateFixture(DatasetMap given) : datasets(std::move(given)) {}

    wxWindow* Run() { return dialog.FindWindow(wxID_OK); }
    wxWindow* Key(std::size_t index) { return Find<wxButton>(Find<Calculator>(&dialog), index); }
    void PressMove()
    {
        wxCommandEvent event;
        dialog.OnMoveButton(event);
    }

    Stage stage;
    DatasetMap datasets = TwoDatasets();
    CreateVariableDialog dialog{stage.Frame(), &datasets};
    wxChoice* choice = Find<wxChoice>(&dialog);
    wxListBox* list = Find<wxListBox>(&dialog);
    wxButton* move = Find<wxButton>(&dialog);
    wxTextCtrl* name = Find<wxTextCtrl>(&dialog, 0);
    wxTextCtrl* expression = Find<wxTextCtrl>(&dialog, 1);
};
} // namespace

TEST_CASE("create variable dialog: the frame")
{
    CreateFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Create Variable", 2);
    auto* const held = CheckBox(Item(sizer, 0), "Select Dataset && Construct New Variable");
    CheckRunAndCancel(Item(sizer, 1), dialog);

    CHECK(PlacementOf(held) == Placement{0, wxEXPAND, 5});
    auto* const rows = CheckGrid(held->GetSizer(), 3, 1, {}, {});
    REQUIRE(rows->GetItemCount() == 2);
    auto* const row = dynamic_cast<wxBoxSizer*>(Item(rows, 0)->GetSizer());
    REQUIRE(row);
    REQUIRE(row->GetItemCount() == 1);
    CHECK(Item(row, 0)->GetWindow() == Find<DatasetPicker>(&dialog));
    CHECK(PlacementOf(Item(row, 0)) == Placement{0, wxEXPAND | wxTOP, 10});
    CHECK(PlacementOf(Item(rows, 1)) == Placement{1, wxEXPAND, 5});
    auto* const columns = CheckGrid(Item(rows, 1)->GetSizer(), 1, 2, {}, {});
    REQUIRE(columns->GetItemCount() == 2);
    CHECK(PlacementOf(Item(columns, 0)) == Placement{1, wxEXPAND, 5});
    CHECK(PlacementOf(Item(columns, 1)) == Placement{1, wxEXPAND, 5});

    auto* const left = CheckGrid(Item(columns, 0)->GetSizer(), 2, 1, {{1, 100}}, {});
    REQUIRE(left->GetItemCount() == 2);
    CheckCaption(Item(left, 0), "Variables in dataset");
    CHECK(Item(left, 1)->GetWindow() == fixture.list);
    CHECK(PlacementOf(Item(left, 1)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK(fixture.list->GetMinSize() == wxSize(180, -1));
    CHECK((fixture.list->GetWindowStyle()
           & (wxLB_SINGLE | wxLB_EXTENDED | wxLB_MULTIPLE | wxLB_SORT | wxHSCROLL))
          == (wxLB_SINGLE | wxHSCROLL));
}

TEST_CASE("create variable dialog: the fields and the keypad")
{
    CreateFixture fixture;
    auto* const keypad = Find<Calculator>(&fixture.dialog);
    auto* const fields = CheckGrid(fixture.name->GetContainingSizer(), 5, 2, {}, {});
    REQUIRE(fields->GetItemCount() == 10);
    for (std::size_t const gap : {0, 2, 4, 8})
        CheckGap(Item(fields, gap));
    CheckCaption(Item(fields, 1), "New variable name");
    CHECK(Item(fields, 3)->GetWindow() == fixture.name);
    CHECK(PlacementOf(Item(fields, 3)) == Placement{1, wxEXPAND | wxALL, 5});
    CheckCaption(Item(fields, 5), "Expression for new variable");
    CHECK(Item(fields, 6)->GetWindow() == fixture.move);
    CHECK(PlacementOf(Item(fields, 6)) == Placement{0, wxALL, 5});
    CHECK(Item(fields, 7)->GetWindow() == fixture.expression);
    CHECK(PlacementOf(Item(fields, 7)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(fields, 9)->GetWindow() == keypad);
    CHECK(PlacementOf(Item(fields, 9)) == Placement{1, wxEXPAND | wxALL, 5});

    int const height = RowHeight(fixture.list);
    CHECK(fixture.name->GetMinSize() == wxSize(120, height));
    CHECK(fixture.expression->GetMinSize() == wxSize(120, height));
    CHECK(fixture.move->GetMinSize() == wxSize(60, height));
    CHECK(fixture.move->GetLabel() == ">>");
    wxFont const font = fixture.move->GetFont();
    CHECK(font.GetPointSize() == 12);
    CHECK(font.GetFaceName() == "Courier 10 Pitch");
    CHECK(font.GetStyle() == wxFONTSTYLE_NORMAL);
    CHECK(font.GetWeight() == wxFONTWEIGHT_NORMAL);
    CHECK(fixture.name->GetValue().empty());
    CHECK(fixture.expression->GetValue().empty());
}

TEST_CASE("create variable dialog: the first failure is told, and all that was typed stays")
{
    CreateFixture fixture;
    auto& dialog = fixture.dialog;
    RunDialog(dialog,
              [&]
              {
                  auto const refuses = [&](char const* name, char const* expression, char const* text)
                  {
                      INFO("name: " << name << ", expression: " << expression);
                      fixture.name->SetValue(wxString::FromUTF8(name));
                      fixture.expression->SetValue(expression);
                      CheckRefused(dialog, text, [&] { CHECK(!Accepts(dialog)); });
                      CHECK(dialog.GetVarName() == wxString::FromUTF8(name));
                      CHECK(dialog.GetExpression() == expression);
                  };
                  refuses("", "", NO_NAME);
                  refuses("", "1", NO_NAME);
                  for (char const* bad : {" ", "   ", "a b", "2nd", "a.b", "x-y", "données", "\t"})
                      for (char const* expression : {"", "1"})
                          refuses(bad, expression, BAD_NAME);
                  refuses("log_gdp", "", NO_EXPRESSION);
                  {
                      // What has no narrow form is no legal name.
                      AsciiLocale const ascii;
                      refuses("donn\xc3\xa9" "es", "1", BAD_NAME);
                  }

                  // What the expression says is not looked at.
                  fixture.name->SetValue("log_gdp");
                  for (char const* any : {" ", "((", "\"", "no.such * variable"})
                  {
                      fixture.expression->SetValue(any);
                      CHECK(Accepts(dialog));
                  }
                  dialog.EndModal(wxID_CANCEL);
              });
}

TEST_CASE("create variable dialog: a variable made by hand")
{
    CreateFixture fixture;
    auto& dialog = fixture.dialog;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            CHECK(fixture.Run()->HasFocus());
            CheckRefused(dialog, NO_NAME, [&] { Click(fixture.Run()); });
            Click(fixture.name);
            TypeText("2_gdp");
            CheckRefused(dialog, BAD_NAME, [] { Press(WXK_RETURN); });
            CHECK(dialog.GetVarName() == "2_gdp");
            fixture.name->SetSelection(0, 2);
            TypeText("log_");
            CheckRefused(dialog, NO_EXPRESSION, [&] { Click(fixture.Run()); });
            CHECK(dialog.GetVarName() == "log_gdp");

            // log( macro.gdp )*2, with the keypad, the list and the keyboard.
            Click(fixture.Key(22));
            ClickEntry(fixture.list, 0);
            Click(fixture.move);
            CHECK(fixture.expression->HasFocus());
            CHECK(dialog.GetExpression() == "log( macro.gdp )");
            CHECK(fixture.expression->GetInsertionPoint() == 14);
            Press(WXK_END);
            Click(fixture.Key(13));
            TypeText("2");
            Keep(Photograph(&dialog), "CreateVariableDialog");
            Press(WXK_RETURN);
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetDatasetName() == "macro");
    CHECK(dialog.GetVarName() == "log_gdp");
    CHECK(dialog.GetExpression() == "log( macro.gdp )*2");
}

TEST_CASE("create variable dialog: a press with nothing selected changes nothing, not even the focus")
{
    CreateFixture fixture;
    RunDialog(fixture.dialog,
              [&]
              {
                  fixture.expression->SetValue("1+2");
                  fixture.expression->SetInsertionPoint(1);
                  fixture.name->SetFocus();
                  Pump();
                  fixture.PressMove();
                  CHECK(fixture.name->HasFocus());
                  CHECK(fixture.expression->GetValue() == "1+2");
                  CHECK(fixture.expression->GetInsertionPoint() == 1);
                  Click(fixture.move);
                  CHECK(!fixture.expression->HasFocus());
                  CHECK(fixture.expression->GetValue() == "1+2");
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("create variable dialog: the name goes where the caret is, and the caret behind it")
{
    CreateFixture fixture;
    RunDialog(fixture.dialog,
              [&]
              {
                  fixture.dialog.SetDataset(1);
                  fixture.expression->SetValue("exp(  )/2");
                  fixture.expression->SetInsertionPoint(5);
                  fixture.list->SetSelection(1);
                  fixture.PressMove();
                  CHECK(fixture.expression->GetValue() == "exp( wages.age )/2");
                  CHECK(fixture.expression->GetInsertionPoint() == 14);
                  CHECK(fixture.expression->HasFocus());
                  // It stays selected, and can be had again.
                  TypeText("+");
                  fixture.PressMove();
                  CHECK(fixture.expression->GetValue() == "exp( wages.age+wages.age )/2");

                  // What is selected in the expression is written over.
                  fixture.expression->SelectAll();
                  fixture.PressMove();
                  CHECK(fixture.expression->GetValue() == "wages.age");
                  CHECK(fixture.expression->GetInsertionPoint() == 9);
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("create variable dialog: another dataset is listed, and what was typed stays")
{
    CreateFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(fixture.choice->GetStrings() == Names({"macro", "wages"}));
    CHECK(fixture.list->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
    RunDialog(dialog,
              [&]
              {
                  fixture.name->SetValue("x");
                  fixture.expression->SetValue("macro.gdp");
                  picker_checks::Pick(fixture.choice, 1);
                  CHECK(dialog.GetDatasetName() == "wages");
                  CHECK(fixture.list->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
                  CHECK(fixture.list->GetSelection() == wxNOT_FOUND);
                  CHECK(dialog.GetVarName() == "x");
                  CHECK(dialog.GetExpression() == "macro.gdp");
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("create variable dialog: SetDataset lists too, and the user's next pick is heard")
{
    CreateFixture fixture;
    auto& dialog = fixture.dialog;
    dialog.SetDataset(1);
    CHECK(dialog.GetDatasetName() == "wages");
    CHECK(fixture.list->GetStrings() == Names({"wage", "age", "educ", "tenure"}));
    RunDialog(dialog,
              [&]
              {
                  picker_checks::Pick(fixture.choice, 0);
                  CHECK(fixture.list->GetStrings() == Names({"gdp", "cpi", "rate", "m2", "fx"}));
                  Press(WXK_ESCAPE);
              });
    for (int const outside : {2, -1, -2, 1000})
    {
        dialog.SetDataset(outside);
        CHECK(dialog.GetDatasetName().empty());
        CHECK(fixture.list->IsEmpty());
        fixture.PressMove();
        CHECK(dialog.GetExpression().empty());
    }
}

TEST_CASE("create variable dialog: the hidden first name is never offered")
{
    auto const bare = std::make_shared<Dataset>();
    CreateFixture fixture{DatasetMap{{"bare", bare}, {"full", MakeDataset(Names({"x"}))}, {"one", MakeDataset({})}}};
    CHECK(fixture.list->IsEmpty());
    fixture.dialog.SetDataset(2);
    CHECK(fixture.dialog.GetDatasetName() == "one");
    CHECK(fixture.list->IsEmpty());
    fixture.dialog.SetDataset(1);
    CHECK(fixture.list->GetStrings() == Names({"x"}));
    fixture.dialog.SetDataset(2);
    CHECK(fixture.list->IsEmpty());
}

TEST_CASE("create variable dialog: without datasets it opens and checks the two texts")
{
    CreateFixture fixture{DatasetMap()};
    auto& dialog = fixture.dialog;
    CHECK(fixture.choice->IsEmpty());
    CHECK(fixture.list->IsEmpty());
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     Keep(Photograph(&dialog), "CreateVariableDialog-empty");
                                     Click(fixture.move);
                                     CheckRefused(dialog, NO_NAME, [&] { Click(fixture.Run()); });
                                     Click(fixture.name);
                                     TypeText("x");
                                     CheckRefused(dialog, NO_EXPRESSION, [&] { Click(fixture.Run()); });
                                     Click(fixture.Key(0));
                                     Click(fixture.Run());
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetDatasetName().empty());
    CHECK(dialog.GetVarName() == "x");
    CHECK(dialog.GetExpression() == "7");
}

TEST_CASE("create variable dialog: odd names and a thousand names")
{
    auto const odd = pair_checks::Wide(pair_checks::HostileNames());
    wxArrayString many;
    for (int i = 0; i < 1000; ++i)
        many.Add(wxString::Format("name_%d", i));
    CreateFixture fixture{DatasetMap{{"donn\xc3\xa9" "es", MakeDataset(odd)}, {"many", MakeDataset(many)}}};
    CHECK(fixture.list->GetStrings() == odd);
    fixture.list->SetSelection(5);
    fixture.PressMove();
    CHECK(fixture.dialog.GetExpression() == wxString::FromUTF8("données.日本"));
    CHECK(fixture.expression->GetInsertionPoint() == 10);
    fixture.dialog.SetDataset(1);
    CHECK(fixture.list->GetStrings() == many);
    fixture.list->SetSelection(999);
    fixture.PressMove();
    CHECK(fixture.dialog.GetExpression() == wxString::FromUTF8("données.日本many.name_999"));
}

TEST_CASE("create variable dialog: Escape, Cancel and closing the window cancel")
{
    CreateFixture fixture;
    CheckWaysOut(fixture.dialog);
}

TEST_CASE("create variable dialog: the Tab key goes from the list to the fields, the keys and the buttons")
{
    CreateFixture fixture;
    std::vector<wxWindow*> controls{fixture.list, fixture.move, fixture.name, fixture.expression};
    for (auto* const key : FindAll<wxButton>(Find<Calculator>(&fixture.dialog)))
        controls.push_back(key);
    REQUIRE(controls.size() == 27);
    CheckTabs(fixture.dialog, controls);
}
