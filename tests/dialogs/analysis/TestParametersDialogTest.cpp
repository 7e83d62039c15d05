#include "dialogs/analysis/TestParametersDialog.h"

#include <wx/textctrl.h>

#include "dialogs/analysis/ModelChecks.h"
#include "modelspec/Calculator.h"
#include "pickers/ModelPicker.h"
#include "support/Layout.h"

using namespace model_checks;

namespace
{
constexpr char NO_CONDITIONS[] = "The list of conditions to be tested is empty.\nUse the \"Add to List\" "
                                 "button to add conditions to this list.\n";

constexpr int LIST_STYLES = wxLB_SINGLE | wxLB_EXTENDED | wxLB_MULTIPLE | wxLB_SORT | wxHSCROLL;

struct TestFixture : Fixture<TestParametersDialog>
{
    using Fixture::Fixture;

    /// What stands on the keys is told by the keypad's own test.
    wxButton* Key(wxString const& label)
    {
        for (auto* const key : FindAll<wxButton>(keypad))
            if (key->GetLabel() == label)
                return key;
        return nullptr;
    }

    void Call(void (TestParametersDialog::*handler)(wxCommandEvent&))
    {
        wxCommandEvent event;
        event.Skip(false);
        (dialog.*handler)(event);
        CHECK(!event.GetSkipped());
    }

    void AddCondition(wxString const& left, int relation, wxString const& right)
    {
        lhs->SetValue(left);
        relations->SetSelection(relation);
        rhs->SetValue(right);
        Call(&TestParametersDialog::OnAddButton);
    }

    wxChoice* choice = Find<wxChoice>(&dialog, 0);
    wxChoice* relations = Find<wxChoice>(&dialog, 1);
    wxListBox* draws = Find<wxListBox>(&dialog, 0);
    wxListBox* conditions = Find<wxListBox>(&dialog, 1);
    wxTextCtrl* lhs = Find<wxTextCtrl>(&dialog, 0);
    wxTextCtrl* rhs = Find<wxTextCtrl>(&dialog, 1);
    Calculator* keypad = Find<Calculator>(&dialog);
    wxButton* upper = Find<wxButton>(&dialog, 0);
    wxButton* lower = Find<wxButton>(&dialog, 1);
    wxButton* add = Find<wxButton>(&dialog, 25);
    wxButton* remove = Find<wxButton>(&dialog, 26);
};

void CheckListButton(wxSizerItem const* item, wxButton const* button, wxString const& label, int height)
{
    CHECK(item->GetWindow() == button);
    CHECK(PlacementOf(item) == Placement{0, wxRIGHT | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM, 5});
    CHECK(button->GetLabel() == label);
    CHECK(button->GetMinSize() == wxSize(110, height));
    CHECK(FontOf(button) == "10 points, modern");
    CHECK(button->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(!button->IsEnabled());
}
} // namespace

TEST_CASE("test parameters dialog: the frame and the draws")
{
    TestFixture fixture;
    auto& dialog = fixture.dialog;
    int const height = RowHeight(fixture.draws);
    CHECK(dialog.GetParent() == fixture.stage.Frame());
    auto* const sizer = CheckFrame(dialog, "Test Parameter Restrictions", 3);
    auto* const held = CheckBox(Item(sizer, 0), "Select Model && Construct Conditions");
    CheckRunAndCancel(Item(sizer, 2), dialog);

    auto* const rows = CheckGrid(held->GetSizer(), 4, 1, {}, {});
    REQUIRE(rows->GetItemCount() == 3);
    auto* const row = dynamic_cast<wxBoxSizer*>(Item(rows, 0)->GetSizer());
    REQUIRE(row);
    REQUIRE(row->GetItemCount() == 1);
    CHECK(Item(row, 0)->GetWindow() == Find<ModelPicker>(&dialog));
    CHECK(PlacementOf(Item(row, 0)) == Placement{0, wxEXPAND | wxTOP, 10});
    CHECK(PlacementOf(Item(rows, 1)) == Placement{1, wxEXPAND, 5});
    CheckListButton(Item(rows, 2), fixture.add, "Add to list", height);
    auto* const columns = CheckGrid(Item(rows, 1)->GetSizer(), 1, 2, {}, {});
    REQUIRE(columns->GetItemCount() == 2);

    auto* const left = CheckGrid(Item(columns, 0)->GetSizer(), 2, 1, {{1, 100}}, {});
    REQUIRE(left->GetItemCount() == 2);
    CheckCaption(Item(left, 0), "Draws in model");
    CHECK(Item(left, 1)->GetWindow() == fixture.draws);
    CHECK(PlacementOf(Item(left, 1)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK((fixture.draws->GetWindowStyle() & LIST_STYLES) == (wxLB_SINGLE | wxHSCROLL));
}

TEST_CASE("test parameters dialog: the list of conditions")
{
    TestFixture fixture;
    auto* const item = Item(fixture.dialog.GetSizer(), 1);
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxALL, 5});
    auto* const box = dynamic_cast<wxStaticBoxSizer*>(item->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxVERTICAL);
    CHECK(box->GetStaticBox()->GetLabel() == "List of Conditions to Test");
    REQUIRE(box->GetItemCount() == 2);
    CHECK(Item(box, 0)->GetWindow() == fixture.conditions);
    CHECK(PlacementOf(Item(box, 0)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK((fixture.conditions->GetWindowStyle() & LIST_STYLES) == (wxLB_EXTENDED | wxHSCROLL));
    CHECK(fixture.conditions->IsEmpty());
    CheckListButton(Item(box, 1), fixture.remove, "Remove", RowHeight(fixture.draws));
}

TEST_CASE("test parameters dialog: the fields and the keypad")
{
    TestFixture fixture;
    auto* const fields = CheckGrid(fixture.lhs->GetContainingSizer(), 6, 2, {{2, 100}}, {});
    REQUIRE(fields->GetItemCount() == 12);
    for (std::size_t const gap : {0, 4, 6, 10})
        CheckGap(Item(fields, gap));
    CheckCaption(Item(fields, 1), "Left-hand side expression");
    CheckCaption(Item(fields, 7), "Right-hand side expression");
    CHECK(Item(fields, 3)->GetWindow() == fixture.lhs);
    CHECK(PlacementOf(Item(fields, 3)) == Placement{1, wxEXPAND | wxALL, 5});
    CHECK(Item(fields, 5)->GetWindow() == fixture.relations);
    CHECK(PlacementOf(Item(fields, 5)) == Placement{0, wxALIGN_CENTRE | wxALL, 5});
    CHECK(Item(fields, 9)->GetWindow() == fixture.rhs);
    CHECK(PlacementOf(Item(fields, 9)) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(Item(fields, 11)->GetWindow() == fixture.keypad);
    CHECK(PlacementOf(Item(fields, 11)) == Placement{1, wxEXPAND | wxALL, 5});

    int const height = RowHeight(fixture.draws);
    CHECK(fixture.lhs->GetMinSize() == wxSize(120, height));
    CHECK(fixture.rhs->GetMinSize() == wxDefaultSize);
    for (auto const& [item, button] : {std::pair{2, fixture.upper}, {8, fixture.lower}})
    {
        CHECK(Item(fields, static_cast<std::size_t>(item))->GetWindow() == button);
        CHECK(button->GetLabel() == ">>");
        CHECK(button->GetMinSize() == wxSize(60, height));
        CHECK(FontOf(button) == "12 points, modern");
        CHECK(button->GetFont().GetFaceName() == "Courier 10 Pitch");
    }

    auto* const relations = fixture.relations;
    CHECK(relations->GetMinSize() == wxSize(55, height));
    CHECK(FontOf(relations) == "9 points, modern");
    CHECK(relations->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(relations->GetStrings() == Names({">", ">=", "==", "<=", "<", "~="}));
    CHECK(relations->GetSelection() == 0);
}

TEST_CASE("test parameters dialog: a condition is what was typed, with an operator between two blanks")
{
    TestFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetConditions() == Names({""}));
    wxArrayString expected;
    auto const adds = [&](char const* left, int relation, char const* right, char const* condition)
    {
        fixture.AddCondition(wxString::FromUTF8(left), relation, wxString::FromUTF8(right));
        expected.Add(wxString::FromUTF8(condition));
        CHECK(dialog.GetConditions() == expected);
        CHECK(fixture.conditions->IsSelected(static_cast<int>(expected.size()) - 1));
        CHECK(fixture.lhs->IsEmpty());
        CHECK(fixture.rhs->IsEmpty());
        CHECK(!fixture.add->IsEnabled());
        CHECK(fixture.relations->GetSelection() == relation);
    };
    adds("m.a", 0, "0", "m.a > 0");
    adds("m.a", 1, "m.b", "m.a >= m.b");
    adds("m.a", 2, "1", "m.a == 1");
    adds("m.a", 3, "1", "m.a <= 1");
    adds("m.a", 4, "1", "m.a < 1");
    adds("m.a", 5, "1", "m.a ~= 1");
    // Nothing is trimmed, read or looked up.
    adds("  x ", 0, " ", "  x  >  ");
    adds("((\"", 1, "no.such <= name", "((\" >= no.such <= name");
    adds("données", 2, "日本", "données == 日本");
    adds("m.a", 0, "0", "m.a > 0");
    // Without an operator there is none, and no blanks.
    adds("a", wxNOT_FOUND, "b", "ab");
}

TEST_CASE("test parameters dialog: a condition can be added while there is text on both sides")
{
    TestFixture fixture;
    auto const can = [&](char const* left, char const* right)
    {
        fixture.lhs->SetValue(left);
        fixture.rhs->SetValue(right);
        return fixture.add->IsEnabled();
    };
    CHECK(!can("", ""));
    CHECK(!can("a", ""));
    CHECK(!can("", "b"));
    CHECK(can("a", "b"));
    CHECK(!can("a", ""));
    CHECK(can(" ", " "));
    CHECK(!can("", " "));
    // Both handlers look at both sides.
    fixture.lhs->ChangeValue("a");
    CHECK(!fixture.add->IsEnabled());
    fixture.Call(&TestParametersDialog::OnRhsCtrlTextChanged);
    CHECK(fixture.add->IsEnabled());
    fixture.rhs->ChangeValue("");
    fixture.Call(&TestParametersDialog::OnLhsCtrlTextChanged);
    CHECK(!fixture.add->IsEnabled());
}

TEST_CASE("test parameters dialog: Remove is enabled by the user's selecting and disabled by removing")
{
    TestFixture fixture;
    auto const& conditions = fixture.conditions;
    for (char const* left : {"a", "b", "c", "d"})
        fixture.AddCondition(left, 0, "0");
    // What was added is selected, but not by the user.
    CHECK(Selected(conditions) == FirstOnes(4));
    CHECK(!fixture.remove->IsEnabled());
    SelectEntries(conditions, {1, 3});
    CHECK(!fixture.remove->IsEnabled());
    fixture.Call(&TestParametersDialog::OnConditionsListSelected);
    CHECK(fixture.remove->IsEnabled());
    SelectEntries(conditions, {});
    fixture.Call(&TestParametersDialog::OnConditionsListSelected);
    CHECK(fixture.remove->IsEnabled());

    SelectEntries(conditions, {1, 3});
    fixture.Call(&TestParametersDialog::OnRemoveButton);
    CHECK(fixture.dialog.GetConditions() == Names({"a > 0", "c > 0"}));
    CHECK(Selected(conditions).empty());
    CHECK(!fixture.remove->IsEnabled());
    SelectEntries(conditions, {0, 1});
    fixture.Call(&TestParametersDialog::OnRemoveButton);
    CHECK(fixture.dialog.GetConditions() == Names({""}));
    fixture.Call(&TestParametersDialog::OnConditionsListSelected);
    CHECK(!fixture.remove->IsEnabled());
    fixture.Call(&TestParametersDialog::OnRemoveButton);
    CHECK(fixture.dialog.GetConditions() == Names({""}));
}

TEST_CASE("test parameters dialog: conditions made, removed and accepted by hand")
{
    TestFixture fixture;
    auto& dialog = fixture.dialog;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            CHECK(fixture.Run()->HasFocus());
            CheckRefused(dialog, NO_CONDITIONS, [] { Press(WXK_RETURN); });
            Click(fixture.add);
            CHECK(fixture.conditions->IsEmpty());

            // The keypad types on the left at first, although no field had the keyboard yet.
            Click(fixture.Key("exp( )"));
            ClickEntry(fixture.draws, 1);
            Click(fixture.upper);
            CHECK(fixture.lhs->GetValue() == "exp( long_equation.educ )");
            CHECK(fixture.lhs->HasFocus());
            CHECK(fixture.lhs->GetInsertionPoint() == 23);
            CHECK(!fixture.add->IsEnabled());
            picker_checks::Pick(fixture.relations, 1);
            // Then where the keyboard was last, be it by a click, by ">>" or by Tab.
            Click(fixture.rhs);
            Click(fixture.Key("1"));
            Click(fixture.Key("."));
            TypeText("5");
            CHECK(fixture.rhs->GetValue() == "1.5");
            Keep(Photograph(&dialog), "TestParametersDialog");
            Click(fixture.add);
            CHECK(dialog.GetConditions() == Names({"exp( long_equation.educ ) >= 1.5"}));

            ClickEntry(fixture.draws, 3);
            Click(fixture.lower);
            CHECK(fixture.rhs->GetValue() == "long_equation.tenure");
            CHECK(fixture.rhs->HasFocus());
            Click(fixture.Key("*"));
            Click(fixture.Key("2"));
            CHECK(fixture.rhs->GetValue() == "long_equation.tenure*2");
            Click(fixture.upper);
            Click(fixture.Key("-"));
            CHECK(fixture.lhs->GetValue() == "long_equation.tenure-");
            Press(WXK_TAB);
            Press(WXK_TAB);
            Press(WXK_TAB);
            CHECK(fixture.rhs->HasFocus());
            Press(WXK_END);
            Click(fixture.Key("7"));
            CHECK(fixture.rhs->GetValue() == "long_equation.tenure*27");
            CHECK(fixture.lhs->GetValue() == "long_equation.tenure-");
            Click(fixture.add);

            fixture.AddCondition("tau", 4, "0");
            REQUIRE(fixture.conditions->GetCount() == 3);
            TopAtRest(fixture.conditions);
            ClickEntry(fixture.conditions, 2);
            CHECK(Selected(fixture.conditions) == std::vector<int>{2});
            CHECK(fixture.remove->IsEnabled());
            TopAtRest(fixture.conditions);
            ClickEntry(fixture.conditions, 0, WXK_CONTROL);
            CHECK(Selected(fixture.conditions) == std::vector<int>{0, 2});
            Click(fixture.remove);
            CHECK(dialog.GetConditions() == Names({"long_equation.tenure- >= long_equation.tenure*27"}));
            CHECK(Selected(fixture.conditions).empty());
            CHECK(!fixture.remove->IsEnabled());
            Click(fixture.Run());
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetModelName() == "long_equation");
    CHECK(dialog.GetConditions() == Names({"long_equation.tenure- >= long_equation.tenure*27"}));
}

TEST_CASE("test parameters dialog: a press with nothing selected changes nothing, not even the focus")
{
    TestFixture fixture;
    RunDialog(fixture.dialog,
              [&]
              {
                  fixture.lhs->SetValue("1+2");
                  fixture.lhs->SetInsertionPoint(1);
                  fixture.conditions->SetFocus();
                  Pump();
                  fixture.Call(&TestParametersDialog::OnUpperButton);
                  fixture.Call(&TestParametersDialog::OnLowerButton);
                  CHECK(fixture.conditions->HasFocus());
                  CHECK(fixture.lhs->GetValue() == "1+2");
                  CHECK(fixture.lhs->GetInsertionPoint() == 1);
                  CHECK(fixture.rhs->IsEmpty());
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("test parameters dialog: a draw goes where the caret is, and the caret behind it")
{
    TestFixture fixture;
    RunDialog(fixture.dialog,
              [&]
              {
                  fixture.draws->SetSelection(4);
                  fixture.lhs->SetValue("log(  )/2");
                  fixture.lhs->SetInsertionPoint(5);
                  fixture.Call(&TestParametersDialog::OnUpperButton);
                  CHECK(fixture.lhs->GetValue() == "log( long_equation.tau )/2");
                  CHECK(fixture.lhs->GetInsertionPoint() == 22);
                  CHECK(fixture.lhs->HasFocus());
                  fixture.rhs->SetValue("1/");
                  fixture.rhs->SetInsertionPointEnd();
                  fixture.Call(&TestParametersDialog::OnLowerButton);
                  CHECK(fixture.rhs->GetValue() == "1/long_equation.tau");
                  CHECK(fixture.rhs->GetInsertionPoint() == 19);
                  CHECK(fixture.rhs->HasFocus());
                  TypeText("+1");
                  CHECK(fixture.rhs->GetValue() == "1/long_equation.tau+1");
                  Press(WXK_ESCAPE);
              });
}

TEST_CASE("test parameters dialog: the keypad follows the focus events, which end there")
{
    TestFixture fixture;
    auto const focused = [&](void (TestParametersDialog::*handler)(wxFocusEvent&))
    {
        wxFocusEvent event(wxEVT_SET_FOCUS);
        event.Skip(false);
        (fixture.dialog.*handler)(event);
        CHECK(!event.GetSkipped());
        wxCommandEvent press;
        fixture.keypad->OnNine(press);
    };
    wxCommandEvent press;
    fixture.keypad->OnOne(press);
    CHECK(fixture.lhs->GetValue() == "1");
    focused(&TestParametersDialog::OnRhsCtrlFocus);
    focused(&TestParametersDialog::OnRhsCtrlFocus);
    CHECK(fixture.rhs->GetValue() == "99");
    focused(&TestParametersDialog::OnLhsCtrlFocus);
    CHECK(fixture.lhs->GetValue() == "19");
    CHECK(fixture.rhs->GetValue() == "99");
}

TEST_CASE("test parameters dialog: another model is listed, and conditions and fields stay")
{
    TestFixture fixture;
    auto& dialog = fixture.dialog;
    CHECK(fixture.choice->GetStrings() == Names({"long_equation", "no_draws", "wage_equation"}));
    CHECK(dialog.GetModelName() == "long_equation");
    CHECK(fixture.draws->GetStrings() == Names({"constant", "educ", "exper", "tenure", "tau"}));
    fixture.AddCondition("long_equation.educ", 0, "0");
    RunDialog(dialog,
              [&]
              {
                  fixture.lhs->SetValue("long_equation.exper");
                  picker_checks::Pick(fixture.choice, 2);
                  CHECK(dialog.GetModelName() == "wage_equation");
                  CHECK(fixture.draws->GetStrings() == Names({"constant", "educ", "tau"}));
                  CHECK(fixture.draws->GetSelection() == wxNOT_FOUND);
                  CHECK(fixture.lhs->GetValue() == "long_equation.exper");
                  CHECK(dialog.GetConditions() == Names({"long_equation.educ > 0"}));
                  picker_checks::Pick(fixture.choice, 1);
                  CHECK(fixture.draws->IsEmpty());
                  picker_checks::Pick(fixture.choice, 0);
                  CHECK(fixture.draws->GetCount() == 5);
                  dialog.EndModal(wxID_CANCEL);
              });
}

TEST_CASE("test parameters dialog: without models it opens, warns, and takes what is typed")
{
    TestFixture fixture{ModelMap()};
    auto& dialog = fixture.dialog;
    CHECK(fixture.choice->IsEmpty());
    CHECK(fixture.draws->IsEmpty());
    CHECK(dialog.GetModelName().empty());
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     Click(fixture.upper);
                                     CheckRefused(dialog, NO_CONDITIONS, [&] { Click(fixture.Run()); });
                                     Click(fixture.lhs);
                                     TypeText("1");
                                     Click(fixture.rhs);
                                     TypeText("0");
                                     CheckRefused(dialog, NO_CONDITIONS, [] { Press(WXK_RETURN); });
                                     CHECK(dialog.GetConditions() == Names({""}));
                                     Click(fixture.add);
                                     Click(fixture.Run());
                                 });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetConditions() == Names({"1 > 0"}));
}

TEST_CASE("test parameters dialog: odd names, a thousand draws, a thousand conditions")
{
    auto const odd = pair_checks::HostileNames();
    auto const many = ThousandNames();
    TestFixture fixture{ModelMap{{"many", MakeModel(many)}, {"mod\xc3\xa8" "le", MakeModel(odd)}}};
    auto& dialog = fixture.dialog;
    CHECK(fixture.draws->GetStrings() == pair_checks::Wide(many));
    for (int i = 0; i < 1000; ++i)
    {
        fixture.draws->SetSelection(i);
        fixture.Call(&TestParametersDialog::OnUpperButton);
        fixture.rhs->SetValue("0");
        fixture.Call(&TestParametersDialog::OnAddButton);
    }
    CHECK(dialog.GetConditions().size() == 1000);
    CHECK(dialog.GetConditions().back() == "many.name_1999 > 0");
    CHECK(Selected(fixture.conditions).size() == 1000);
    fixture.conditions->Deselect(999);
    fixture.Call(&TestParametersDialog::OnRemoveButton);
    CHECK(dialog.GetConditions() == Names({"many.name_1999 > 0"}));

    fixture.choice->SetSelection(1);
    fixture.Call(&TestParametersDialog::OnModelChanged);
    CHECK(fixture.draws->GetStrings() == pair_checks::Wide(odd));
    fixture.draws->SetSelection(5);
    fixture.Call(&TestParametersDialog::OnLowerButton);
    CHECK(fixture.rhs->GetValue() == wxString::FromUTF8("modèle.日本"));
    CHECK(fixture.rhs->GetInsertionPoint() == 9);
}

TEST_CASE("test parameters dialog: Escape, Cancel and closing the window cancel")
{
    TestFixture fixture;
    CheckWaysOut(fixture.dialog);
}

TEST_CASE("test parameters dialog: the Tab key goes from the draws to the fields, the keys and the lists")
{
    TestFixture fixture;
    fixture.AddCondition("a", 0, "b");
    fixture.Call(&TestParametersDialog::OnConditionsListSelected);
    fixture.lhs->SetValue("a");
    fixture.rhs->SetValue("b");
    // The toolkit does not tell when the keyboard has come to a choice.
    std::vector<wxWindow*> controls{fixture.draws, fixture.upper, fixture.lhs,
                                    nullptr,       fixture.lower, fixture.rhs};
    for (auto* const key : FindAll<wxButton>(fixture.keypad))
        controls.push_back(key);
    controls.insert(controls.end(), {fixture.add, fixture.conditions, fixture.remove});
    REQUIRE(controls.size() == 32);
    CheckTabs(fixture.dialog, controls);
}
