#include "workbench/analysis/Conditions.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/Scratch.h"
#include "workbench/analysis/ModelMaking.h"
#include "workbench/engine/Progress.h"

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

/// Four draws, with names as samplers give them.
std::shared_ptr<Model> Sampled()
{
    Eigen::MatrixXd draws(4, 7);
    draws << 1, -1, 10, 100, 5, 0, 1e-3, //
        2, 0, 20, 200, 5, NA, 2e-3,      //
        3, 1, 30, 300, 5, 0, 3e-3,       //
        4, 2, 40, 400, 5, 1, 4e-3;
    return ModelOfDraws({"a", "beta", "beta[1]", "beta[1,2]", "a.b", "gap", "\xCF\x83"}, draws);
}

workbench::Condition Evaluated(std::string const& text)
{
    workbench::Progress progress;
    return workbench::EvaluateCondition(text, "m", *Sampled(), progress);
}

/// In which of the draws a condition holds: 1, 0, or a dot where it is undefined.
std::string Holds(std::string const& text)
{
    std::string holds;
    for (double const value : Evaluated(text).holds)
        holds += std::isnan(value) ? '.' : value == 1.0 ? '1' : value == 0.0 ? '0' : '?';
    return holds;
}

std::string Refusal(std::string const& text)
{
    return ErrorOf([&] { Evaluated(text); });
}
} // namespace

TEST_CASE("the six comparisons of the dialog")
{
    CHECK(Holds("m.a > 2") == "0011");
    CHECK(Holds("m.a >= 2") == "0111");
    CHECK(Holds("m.a == 2") == "0100");
    CHECK(Holds("m.a <= 2") == "1100");
    CHECK(Holds("m.a < 2") == "1000");
    CHECK(Holds("m.a ~= 2") == "1011");
    CHECK(Holds("m.a != 2") == "1011");
    CHECK(Evaluated("m.a ~= 2").comparison == "!=");
    CHECK(Evaluated("(m.a >= 2)").comparison == ">=");
}

TEST_CASE("a draw is written by all of its name")
{
    CHECK(Holds("m.beta > 0") == "0011");
    CHECK(Holds("m.beta[1] > 15") == "0111");
    CHECK(Holds("m.beta[1,2] > 250") == "0011");
    CHECK(Holds("m.a.b > 4") == "1111");
    CHECK(Holds("m.\xCF\x83 > 0.0025") == "0011");
    CHECK(Holds("m.beta[1,2]/m.beta[1] == 10") == "1111");
    CHECK(Holds("m.beta[1]-m.a*10 == 0") == "1111");
}

TEST_CASE("all that the keypad types is understood")
{
    CHECK(Holds("m.a + 1.5 - 0.5 > 3") == "0011");
    CHECK(Holds("m.a .* m.a ./ 2 > 2 * 1 / 1") == "0011");
    CHECK(Holds("m.a.*m.a > 9") == "0001");
    CHECK(Holds("m.a .^ 2 > 9") == "0001");
    CHECK(Holds("m.a ^ 2 >= 9") == "0011");
    CHECK(Holds("ones(  ) < m.a") == "0111");
    CHECK(Holds("ones( m.a ) < m.a") == "0111");
    CHECK(Holds("sqrt( m.a ) == 2") == "0001");
    CHECK(Holds("exp( m.beta ) >= 1") == "0111");
    CHECK(Holds("log( m.a ) > 1") == "0011");
    CHECK(Holds("-m.a < -3") == "0001");
    CHECK(Holds("0 < m.beta") == "0011");
}

TEST_CASE("where an operation is not defined, or a draw has no value, a condition has none")
{
    CHECK(Holds("log( m.beta ) > 0") == ".001");
    CHECK(Holds("sqrt( m.beta ) >= 0") == ".111");
    CHECK(Holds("m.gap >= 0") == "1.11");
    CHECK(Holds("m.beta / m.beta == 1") == "1.11");
    CHECK(Holds("1 / m.beta > 0") == "0111"); // infinite, and larger
}

TEST_CASE("what is no condition on the model is refused")
{
    CHECK(Refusal("m.b > 0") == "the model \"m\" has no draw \"b\"");
    CHECK(Refusal("m.beta[2] > 0") == "the model \"m\" has no draw \"beta[2]\"");
    CHECK(Refusal("m.beta[2 > 0") == "the model \"m\" has no draw \"beta[2 > 0\"");
    CHECK(Refusal("m.beta2 > 0") == "the model \"m\" has no draw \"beta2\"");
    CHECK(Refusal("n.a > 0") == "the test is one of the model \"m\", not of \"n\"");
    CHECK(Refusal("a > 0") == "a draw is written with its model, as m.a, but \"a\" stands alone");
    CHECK(Refusal("m.a") == "a condition compares two expressions with >, >=, ==, <=, < or ~=");
    CHECK(Refusal("(m.a > 1) + 1") == "a condition compares two expressions with >, >=, ==, <=, < or ~=");
    CHECK(Refusal("m.a > ") == "expected a number, a draw, a function or \"(\", but found its end");
    CHECK(Refusal("m.a = 2") == "expected an operator or the end of the expression, but found \"=\"");
    CHECK(Refusal("m.a > 1 > 0") == "a comparison that is compared again stands in parentheses");
    CHECK(Refusal("sin(m.a) > 1") == "there is no function \"sin\"; the functions are: exp, log, ones, sqrt");
    CHECK(Refusal("") == "expected a number, a draw, a function or \"(\", but found its end");
}

TEST_CASE("a verdict counts the draws in which a condition is defined")
{
    auto const verdict = workbench::Judge(Evaluated("log( m.beta ) > 0").holds, 1);
    CHECK(verdict.draws == 3);
    CHECK(verdict.probability == Approx(1.0 / 3.0));
    auto const none = workbench::Judge(Eigen::ArrayXd::Constant(4, NA), 1);
    CHECK(none.draws == 0);
    CHECK(std::isnan(none.probability));
    CHECK(std::isnan(none.error));
}
