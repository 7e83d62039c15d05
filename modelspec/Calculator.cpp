#include "modelspec/Calculator.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "common/CaretText.h"
#include "common/Text.h"

namespace
{
/// A key as it is drawn; what it types stands with its handler.
struct Key
{
    char const* label;
    int width;
    void (Calculator::*press)(wxCommandEvent&);
};

/// The three blocks, one after the other, each in reading order.
constexpr std::array<Key, 23> KEYS = {{
    {"7", 35, &Calculator::OnSeven},
    {"8", 35, &Calculator::OnEight},
    {"9", 35, &Calculator::OnNine},
    {"4", 35, &Calculator::OnFour},
    {"5", 35, &Calculator::OnFive},
    {"6", 35, &Calculator::OnSix},
    {"1", 35, &Calculator::OnOne},
    {"2", 35, &Calculator::OnTwo},
    {"3", 35, &Calculator::OnThree},
    {"0", 35, &Calculator::OnZero},
    {".", 35, &Calculator::OnDot},
    {"+", 38, &Calculator::OnPlus},
    {"-", 38, &Calculator::OnMinus},
    {"*", 38, &Calculator::OnTimes},
    {".*", 38, &Calculator::OnDotTimes},
    {"/", 38, &Calculator::OnOver},
    {"./", 38, &Calculator::OnDotOver},
    {"^", 38, &Calculator::OnPower},
    {".^", 38, &Calculator::OnDotPower},
    {"ones( )", 57, &Calculator::OnOnes},
    {"sqrt( )", 57, &Calculator::OnSqrt},
    {"exp( )", 57, &Calculator::OnExp},
    {"log( )", 57, &Calculator::OnLog},
}};
} // namespace

Calculator::Calculator(wxWindow* parent, wxTextCtrl* target) : wxPanel(parent), m_target(target)
{
    auto* const digits = new wxGridSizer(4, 3, 0, 0);
    auto* const operators = new wxGridSizer(4, 2, 0, 0);
    auto* const functions = new wxGridSizer(4, 1, 0, 0);
    for (std::size_t i = 0; i < KEYS.size(); ++i)
    {
        auto const& key = KEYS[i];
        m_buttons[i]
            = new wxButton(this, wxID_ANY, key.label, wxDefaultPosition, wxSize(key.width, 28));
        m_buttons[i]->Bind(wxEVT_BUTTON, key.press, this);
        auto* const block = i < 11 ? digits : i < 19 ? operators : functions;
        block->Add(m_buttons[i], 0, wxALL, 3);
    }
    digits->Add(0, 0, 1, wxEXPAND, 3);

    auto* const sizer = new wxFlexGridSizer(1, 3, 0, 0);
    sizer->Add(digits, 1, wxEXPAND, 5);
    sizer->Add(operators, 1, wxEXPAND | wxLEFT, 5);
    sizer->Add(functions, 1, wxEXPAND | wxLEFT, 5);
    SetSizer(sizer);
    Layout();
}

void Calculator::SetTarget(wxTextCtrl* target) { m_target = target; }

void Calculator::Type(char const* text, long caret)
{
    zenqo::TypeAtCaret(m_target, zenqo::ToWide(text), caret);
}

void Calculator::OnZero(wxCommandEvent&) { Type("0", 1); }
void Calculator::OnOne(wxCommandEvent&) { Type("1", 1); }
void Calculator::OnTwo(wxCommandEvent&) { Type("2", 1); }
void Calculator::OnThree(wxCommandEvent&) { Type("3", 1); }
void Calculator::OnFour(wxCommandEvent&) { Type("4", 1); }
void Calculator::OnFive(wxCommandEvent&) { Type("5", 1); }
void Calculator::OnSix(wxCommandEvent&) { Type("6", 1); }
void Calculator::OnSeven(wxCommandEvent&) { Type("7", 1); }
void Calculator::OnEight(wxCommandEvent&) { Type("8", 1); }
void Calculator::OnNine(wxCommandEvent&) { Type("9", 1); }
void Calculator::OnDot(wxCommandEvent&) { Type(".", 1); }
void Calculator::OnPlus(wxCommandEvent&) { Type("+", 1); }
void Calculator::OnMinus(wxCommandEvent&) { Type("-", 1); }
void Calculator::OnTimes(wxCommandEvent&) { Type("*", 1); }
void Calculator::OnOver(wxCommandEvent&) { Type("/", 1); }
void Calculator::OnDotTimes(wxCommandEvent&) { Type(".*", 2); }
void Calculator::OnDotOver(wxCommandEvent&) { Type("./", 2); }
void Calculator::OnPower(wxCommandEvent&) { Type("^", 1); }
void Calculator::OnDotPower(wxCommandEvent&) { Type(".^", 2); }
// The label of a function has one blank, its text two: the argument stands between them.
void Calculator::OnOnes(wxCommandEvent&) { Type("ones(  )", 6); }
void Calculator::OnSqrt(wxCommandEvent&) { Type("sqrt(  )", 6); }
void Calculator::OnExp(wxCommandEvent&) { Type("exp(  )", 5); }
void Calculator::OnLog(wxCommandEvent&) { Type("log(  )", 5); }
