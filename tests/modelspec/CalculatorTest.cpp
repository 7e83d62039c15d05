#include "modelspec/Calculator.h"

#include <catch2/catch.hpp>

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "support/Find.h"
#include "support/Stage.h"

namespace
{
struct Key
{
    char const* label;
    char const* text;
    long caret;
    int width;
    void (Calculator::*handler)(wxCommandEvent&);
};

/// All keys in the order in which the user reads them, block by block.
Key const KEYS[] = {
    {"7", "7", 1, 35, &Calculator::OnSeven},
    {"8", "8", 1, 35, &Calculator::OnEight},
    {"9", "9", 1, 35, &Calculator::OnNine},
    {"4", "4", 1, 35, &Calculator::OnFour},
    {"5", "5", 1, 35, &Calculator::OnFive},
    {"6", "6", 1, 35, &Calculator::OnSix},
    {"1", "1", 1, 35, &Calculator::OnOne},
    {"2", "2", 1, 35, &Calculator::OnTwo},
    {"3", "3", 1, 35, &Calculator::OnThree},
    {"0", "0", 1, 35, &Calculator::OnZero},
    {".", ".", 1, 35, &Calculator::OnDot},
    {"+", "+", 1, 38, &Calculator::OnPlus},
    {"-", "-", 1, 38, &Calculator::OnMinus},
    {"*", "*", 1, 38, &Calculator::OnTimes},
    {".*", ".*", 2, 38, &Calculator::OnDotTimes},
    {"/", "/", 1, 38, &Calculator::OnOver},
    {"./", "./", 2, 38, &Calculator::OnDotOver},
    {"^", "^", 1, 38, &Calculator::OnPower},
    {".^", ".^", 2, 38, &Calculator::OnDotPower},
    {"ones( )", "ones(  )", 6, 57, &Calculator::OnOnes},
    {"sqrt( )", "sqrt(  )", 6, 57, &Calculator::OnSqrt},
    {"exp( )", "exp(  )", 5, 57, &Calculator::OnExp},
    {"log( )", "log(  )", 5, 57, &Calculator::OnLog},
};

/// A text field with the keypad below it.
struct Desk
{
    Desk()
    {
        auto* const panel = new wxPanel(stage.Frame());
        field = new wxTextCtrl(panel, wxID_ANY);
        other = new wxTextCtrl(panel, wxID_ANY);
        calculator = new Calculator(panel, field);
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(field, 0, wxEXPAND);
        sizer->Add(other, 0, wxEXPAND);
        sizer->Add(calculator, 1, wxEXPAND);
        panel->SetSizer(sizer);
        stage.Fill(panel);
    }

    void Push(wxString const& label)
    {
        for (auto* const button : FindAll<wxButton>(calculator))
            if (button->GetLabel() == label)
                return Click(button);
        FAIL("no key " << label);
    }

    void Begin(char const* text, long caret)
    {
        field->ChangeValue(text);
        field->SetFocus();
        field->SetInsertionPoint(caret);
        Pump(20);
    }

    Stage stage;
    wxTextCtrl* field;
    wxTextCtrl* other;
    Calculator* calculator;
};

void CheckBlock(wxSizer* sizer, int cols, std::size_t firstKey, std::size_t keys)
{
    auto* const grid = dynamic_cast<wxGridSizer*>(sizer);
    REQUIRE(grid);
    CHECK_FALSE(dynamic_cast<wxFlexGridSizer*>(sizer));
    CHECK(grid->GetRows() == 4);
    CHECK(grid->GetCols() == cols);
    CHECK(grid->GetHGap() == 0);
    CHECK(grid->GetVGap() == 0);
    REQUIRE(grid->GetItemCount() >= keys);
    for (std::size_t i = 0; i < keys; ++i)
    {
        auto const& key = KEYS[firstKey + i];
        auto* const button = dynamic_cast<wxButton*>(Item(grid, i)->GetWindow());
        REQUIRE(button);
        INFO(key.label);
        CHECK(button->GetLabel() == key.label);
        CHECK(button->GetMinSize() == wxSize(key.width, 28));
        CHECK(button->GetSize() == wxSize(key.width, 28));
        CHECK(PlacementOf(Item(grid, i)) == Placement{0, wxALL, 3});
    }
}
} // namespace

TEST_CASE("calculator: layout")
{
    Desk desk;
    CHECK(FindAll<wxButton>(desk.calculator).size() == 23);
    auto* const sizer = dynamic_cast<wxFlexGridSizer*>(desk.calculator->GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetRows() == 1);
    CHECK(sizer->GetCols() == 3);
    REQUIRE(sizer->GetItemCount() == 3);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{1, wxEXPAND, 5});
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{1, wxEXPAND | wxLEFT, 5});
    CHECK(PlacementOf(Item(sizer, 2)) == Placement{1, wxEXPAND | wxLEFT, 5});

    auto* const digits = Item(sizer, 0)->GetSizer();
    CheckBlock(digits, 3, 0, 11);
    REQUIRE(digits->GetItemCount() == 12);
    CHECK(Item(digits, 11)->IsSpacer());
    CHECK(Item(digits, 11)->GetMinSize() == wxSize(0, 0));
    CHECK(PlacementOf(Item(digits, 11)) == Placement{1, wxEXPAND, 3});
    CheckBlock(Item(sizer, 1)->GetSizer(), 2, 11, 8);
    CHECK(Item(sizer, 1)->GetSizer()->GetItemCount() == 8);
    CheckBlock(Item(sizer, 2)->GetSizer(), 1, 19, 4);
    CHECK(Item(sizer, 2)->GetSizer()->GetItemCount() == 4);
    Keep(Photograph(desk.stage.Frame()), "Calculator");
}

TEST_CASE("calculator: every key clicked types at the start, in the middle and at the end")
{
    Desk desk;
    for (auto const& key : KEYS)
        for (long const caret : {0L, 1L, 2L})
        {
            INFO(key.label << " at " << caret);
            desk.Begin("ab", caret);
            desk.Push(key.label);
            auto expected = wxString("ab");
            expected.insert(static_cast<std::size_t>(caret), key.text);
            CHECK(desk.field->GetValue() == expected);
            CHECK(desk.field->GetInsertionPoint() == caret + key.caret);
            CHECK(desk.field->HasFocus());
            CHECK(desk.field->GetStringSelection() == "");
        }
    CHECK(desk.other->GetValue() == "");
}

TEST_CASE("calculator: every handler can be called")
{
    Desk desk;
    for (auto const& key : KEYS)
    {
        desk.Begin("", 0);
        wxCommandEvent event(wxEVT_BUTTON);
        (desk.calculator->*key.handler)(event);
        CHECK(desk.field->GetValue() == key.text);
        CHECK(desk.field->GetInsertionPoint() == key.caret);
    }
}

TEST_CASE("calculator: an argument is typed between the two blanks of a function")
{
    Desk desk;
    desk.Push("exp( )");
    CHECK(desk.field->GetValue() == "exp(  )");
    CHECK(desk.field->GetInsertionPoint() == 5);
    desk.Push("2");
    CHECK(desk.field->GetValue() == "exp( 2 )");
    CHECK(desk.field->GetInsertionPoint() == 6);

    // And so it is on the keyboard.
    TypeText("5");
    CHECK(desk.field->GetValue() == "exp( 25 )");
}

TEST_CASE("calculator: digits one after the other make a number")
{
    Desk desk;
    desk.Push("1");
    desk.Push(".");
    desk.Push("5");
    CHECK(desk.field->GetValue() == "1.5");
    CHECK(desk.field->GetInsertionPoint() == 3);
}

TEST_CASE("calculator: a selection gives way to what is typed")
{
    Desk desk;
    desk.Begin("alpha+beta", 0);
    desk.field->SetSelection(6, 10);
    auto const before = desk.field->GetInsertionPoint();
    desk.Push("log( )");
    CHECK(desk.field->GetValue() == "alpha+log(  )");
    // Counted from where the caret stood before, wherever the text is now.
    CHECK(desk.field->GetInsertionPoint() == std::min(before + 5, 13L));
    CHECK(desk.field->HasFocus());
}

TEST_CASE("calculator: another target")
{
    Desk desk;
    desk.Begin("a", 1);
    desk.Push("+");
    desk.calculator->SetTarget(desk.other);
    desk.Push("sqrt( )");
    desk.Push("9");
    CHECK(desk.field->GetValue() == "a+");
    CHECK(desk.other->GetValue() == "sqrt( 9 )");
    CHECK(desk.other->HasFocus());
}

TEST_CASE("calculator: a target that can't be typed into")
{
    Desk desk;
    desk.Begin("ab", 1);
    SECTION("read-only: the program may still write")
    {
        desk.field->SetEditable(false);
        desk.Push("7");
        CHECK(desk.field->GetValue() == "a7b");
        CHECK(desk.field->GetInsertionPoint() == 2);
        CHECK(desk.field->HasFocus());
        TypeText("8");
        CHECK(desk.field->GetValue() == "a7b");
    }
    SECTION("disabled: the same, but the user's own keys go nowhere")
    {
        desk.field->Disable();
        desk.Push("7");
        CHECK(desk.field->GetValue() == "a7b");
        CHECK(desk.field->GetInsertionPoint() == 2);
        TypeText("8");
        CHECK(desk.field->GetValue() == "a7b");
    }
}
