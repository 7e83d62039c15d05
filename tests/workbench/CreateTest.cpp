#include "workbench/engine/Expression.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "workbench/DataDesk.h"

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();
double const INF = std::numeric_limits<double>::infinity();

/// Four observations on x, y and the text t; the dataset e has four more on z, and s two on z.
void Fill(DataDesk& desk)
{
    auto const d = workbench::MakeDataset({"x", "t", "y"}, 4);
    d->data.col(1) << 1, -2, NA, 4;
    d->data.col(2) << 0, 1, 0, NA;
    d->data.col(3) << 10, 0, 30, 0.5;
    d->labelledColumns[2] = {{"a", "\xC3\xA9"}, {"a", "\xC3\xA9", "a", ""}};
    desk.workspace.Assign("d", d);
    auto const e = workbench::MakeDataset({"z", "\xC3\xA4u\xC3\x9F"}, 4);
    e->data.col(1) << 1, 2, 3, 4;
    e->data.col(2) << 5, 6, 7, 8;
    desk.workspace.Assign("e", e);
    auto const s = workbench::MakeDataset({"z"}, 2);
    s->data.col(1) << 1, 2;
    desk.workspace.Assign("s", s);
}

/// Missing where the other one is missing, else equal, the sign of zero included.
bool Same(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
}

/// Creates d.v and compares its values.
void Expect(std::string const& expression, std::vector<double> const& values)
{
    INFO(expression);
    DataDesk desk;
    Fill(desk);
    desk.Run("create(d, \"v\", \"" + expression + "\");");
    auto const& d = desk["d"];
    REQUIRE(d.varNames.size() == 5);
    CHECK(d.varNames[4] == "v");
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        INFO("observation " << i << ": " << d.data(static_cast<Eigen::Index>(i), 4));
        CHECK(Same(d.data(static_cast<Eigen::Index>(i), 4), values[i]));
    }
}

/// The error of `create(d, "v", "EXPRESSION");`, whose expression begins at column 17.
std::string Refusal(std::string const& expression)
{
    DataDesk desk;
    Fill(desk);
    return desk.Failure("create(d, \"v\", \"" + expression + "\");");
}
} // namespace

TEST_CASE("an expression is computed for each observation")
{
    Expect("d.y", {10, 0, 30, 0.5});
    Expect("d.x + d.y", {11, -2, NA, 4.5});
    Expect(" d.x-d.y*2 ", {-19, -2, NA, 3});
    Expect("d.y ./ 4", {2.5, 0, 7.5, 0.125});
    Expect("2 .* d.y / .5", {40, 0, 120, 2});
    Expect("2.*d.y", {20, 0, 60, 1});
    Expect("2.5.*d.y", {25, 0, 75, 1.25});
    Expect("3./d.x", {3, -1.5, NA, 0.75});
    Expect("d.x.^2.^1", {1, 4, NA, 16});
    Expect("e.z + d.y", {11, 2, 33, 4.5});
    Expect("e.\xC3\xA4u\xC3\x9F * 2", {10, 12, 14, 16});
    Expect("((e.z))", {1, 2, 3, 4});
    Expect("1e2 + 1.5E-1", {100.15, 100.15, 100.15, 100.15});
    Expect("\te.z\t", {1, 2, 3, 4});
}

TEST_CASE("powers bind closest and group from the right, then signs, products, sums, comparisons")
{
    Expect("2^3^2", {512, 512, 512, 512});
    Expect("2.^3.^2", {512, 512, 512, 512});
    Expect("-2^2", {-4, -4, -4, -4});
    Expect("2^-1", {0.5, 0.5, 0.5, 0.5});
    Expect("- - +e.z", {1, 2, 3, 4});
    Expect("8/4/2", {1, 1, 1, 1});
    Expect("8-4-2", {2, 2, 2, 2});
    Expect("2+3*4", {14, 14, 14, 14});
    Expect("(2+3)*4", {20, 20, 20, 20});
    Expect("1 + e.z < 2 * e.z", {0, 1, 1, 1});
    Expect("(1 < 2) == (e.z > 2)", {0, 0, 1, 1});
    Expect("-d.y", {-10, -0.0, -30, -0.5});
}

TEST_CASE("a comparison gives 1 or 0")
{
    Expect("e.z < 2", {1, 0, 0, 0});
    Expect("e.z <= 2", {1, 1, 0, 0});
    Expect("e.z > 2", {0, 0, 1, 1});
    Expect("2 >= e.z", {1, 1, 0, 0});
    Expect("e.z == d.x", {1, 0, NA, 1});
    Expect("e.z != 3", {1, 1, 0, 1});
    Expect("1 < 2", {1, 1, 1, 1});
}

TEST_CASE("the functions")
{
    Expect("exp(  0 )", {1, 1, 1, 1});
    Expect("exp(d.y - 1000)", {0, 0, 0, 0});
    Expect("exp(e.z)", {std::exp(1.0), std::exp(2.0), std::exp(3.0), std::exp(4.0)});
    Expect("log( e.z )", {0, std::log(2.0), std::log(3.0), std::log(4.0)});
    Expect("sqrt(e.z ^ 2)", {1, 2, 3, 4});
    Expect("ones(  )", {1, 1, 1, 1});
    Expect("ones() + 1", {2, 2, 2, 2});
    Expect("ones( d.x )", {1, 1, NA, 1});
    Expect("ones (7)", {1, 1, 1, 1});
}

TEST_CASE("a missing value is carried through whatever is done with it")
{
    for (auto const* const expression :
         {"d.x ^ 0", "1 ^ d.x", "d.x == d.x", "d.x != d.x", "d.x < 1", "ones(d.x)", "-d.x", "0 * d.x",
          "exp(d.x)", "sqrt(d.x ^ 2)", "log(d.x ^ 2)", "(d.x > 0) * 0", "d.x - d.x", "e.z / d.x",
          "d.x ^ 2"})
    {
        INFO(expression);
        DataDesk desk;
        Fill(desk);
        CHECK(desk.Run("create(d, \"v\", \"" + std::string(expression) + "\");")
              == "\nd.v: 4 observations, 1 missing\n");
        CHECK(std::isnan(desk["d"].data(2, 4)));
        CHECK(desk.output.warnings.empty());
    }
}

TEST_CASE("where an operation is not defined the value is missing, and the output tells how many are")
{
    DataDesk desk;
    Fill(desk);
    auto const warned
        = [&](std::string const& expression, std::string const& count, std::string const& text)
    {
        INFO(expression);
        desk.output.warnings.clear();
        CHECK(desk.Run("create(d, \"v\", \"" + expression + "\");")
              == "\nd.v: 4 observations, " + text + "\n");
        CHECK(desk.output.warnings
              == std::vector<std::string>{
                  "The expression has no value in " + count
                  + " in which its variables have one: an operation is not defined "
                    "there, as 0/0 or the logarithm of a negative number."});
    };
    warned("log(d.x)", "1 observation", "2 missing");
    warned("sqrt(-e.z)", "4 observations", "4 missing");
    warned("d.x ^ 0.5", "1 observation", "2 missing");
    warned("(d.y - d.y) / 0", "4 observations", "4 missing");
    warned("0 / d.y", "1 observation", "1 missing");
    // A missing value made on the way is carried through like any other.
    warned("log(-e.z) > 0", "4 observations", "4 missing");
    warned("log(d.y) + sqrt(d.x)", "1 observation", "2 missing");
    // All missing values are the same one.
    auto const value = desk["d"].data(1, 4);
    CHECK(SameBits(Eigen::MatrixXd::Constant(1, 1, value), Eigen::MatrixXd::Constant(1, 1, NA)));
    CHECK_FALSE(std::signbit(value));
}

TEST_CASE("what is beyond all numbers is infinite, and the output tells how many are")
{
    Expect("log(d.y)", {std::log(10.0), -INF, std::log(30.0), std::log(0.5)});
    Expect("1 / d.y", {0.1, INF, 1.0 / 30.0, 2});
    DataDesk desk;
    Fill(desk);
    CHECK(desk.Run("create(d, \"v\", \"exp(1000 * d.x)\");")
          == "\nd.v: 4 observations, 1 missing, 2 infinite\n");
    CHECK(desk.output.warnings.empty());
    // Infinity less infinity is not defined, and compares as it should.
    Expect("1 / d.y - 1 / d.y", {0, NA, 0, 0});
    Expect("1 / d.y > 1e308", {0, 1, 0, 0});
}

TEST_CASE("a variable is made behind the others or replaced in its place")
{
    DataDesk desk;
    Fill(desk);
    auto const before = desk.workspace.datasets.at("d");
    Dataset const copy = *before;
    desk.Run("create(d, \"x\", \"d.x + 1\"); create(d, \"w\", \"d.x\");");
    auto const& d = desk["d"];
    CHECK(d.name == "d");
    REQUIRE(d.varNames.size() == 5);
    CHECK(d.varNames[0] == "constant");
    CHECK(d.varNames[1] == "x");
    CHECK(d.varNames[4] == "w");
    CHECK(d.data(0, 1) == 2);
    CHECK(SameBits(d.data.col(4), d.data.col(1)));
    CHECK(SameBits(d.data.col(0), copy.data.col(0)));
    CHECK(SameBits(d.data.col(2), copy.data.col(2)));
    CHECK(SameBits(d.data.col(3), copy.data.col(3)));
    CHECK(d.labelledColumns.at(2).labels == copy.labelledColumns.at(2).labels);
    // The old object is not touched: others may hold it.
    CHECK(SameBits(*before, copy));

    // A text variable that is replaced is one of numbers from then on.
    desk.Run("create(d, \"t\", \"d.y\"); create(d, \"u\", \"d.t + 1\");");
    CHECK(desk["d"].labelledColumns.empty());
    CHECK(desk["d"].data(0, 5) == 11);
    CHECK(desk["d"].varNames.size() == 6);
}

TEST_CASE("what is wrong with an expression is told with its place, and nothing changes")
{
    CHECK(Refusal("")
          == "Line 1, column 17: expected a number, a variable, a function or \"(\", but found its end");
    CHECK(Refusal("  ")
          == "Line 1, column 19: expected a number, a variable, a function or \"(\", but found its end");
    CHECK(Refusal("d.y +")
          == "Line 1, column 22: expected a number, a variable, a function or \"(\", but found its end");
    CHECK(Refusal("d.y d.x")
          == "Line 1, column 21: expected an operator or the end of the expression, but found \"d\"");
    CHECK(Refusal("(d.y") == "Line 1, column 21: expected an operator or \")\", but found its end");
    CHECK(Refusal("d.y)")
          == "Line 1, column 20: expected an operator or the end of the expression, but found \")\"");
    CHECK(Refusal("d.y = 1")
          == "Line 1, column 21: expected an operator or the end of the expression, but found \"=\"");
    CHECK(Refusal("d.y & 1")
          == "Line 1, column 21: expected an operator or the end of the expression, but found \"&\"");
    CHECK(Refusal("1 < 2 < 3")
          == "Line 1, column 23: a comparison that is compared again stands in parentheses");
    CHECK(Refusal("1.2.3") == "Line 1, column 17: expected a number, but found \"1.2.3\"");
    CHECK(Refusal("2d.y") == "Line 1, column 17: expected a number, but found \"2d.y\"");
    CHECK(Refusal("1e999")
          == "Line 1, column 17: the number \"1e999\" is beyond what can be stored, about 1e-308 to "
             "1e308 in size");
    CHECK(Refusal(".")
          == "Line 1, column 17: expected a number, a variable, a function or \"(\", but found \".\"");
    CHECK(
        Refusal("y + 1")
        == "Line 1, column 17: a variable is written with its dataset, as d.y, but \"y\" stands alone");
    CHECK(
        Refusal("1 + d.")
        == "Line 1, column 21: a variable is written with its dataset, as d.d, but \"d\" stands alone");
    CHECK(Refusal("sin(d.y)")
          == "Line 1, column 17: there is no function \"sin\"; the functions are: exp, log, ones, sqrt");
    CHECK(Refusal("exp()")
          == "Line 1, column 21: expected a number, a variable, a function or \"(\", but found \")\"");
    CHECK(Refusal("exp d.y")
          == "Line 1, column 17: a variable is written with its dataset, as d.exp, but \"exp\" stands "
             "alone");
    CHECK(Refusal("1 + f.y") == "Line 1, column 21: there is no dataset \"f\"");
    CHECK(Refusal("d.Y") == "Line 1, column 17: the dataset \"d\" has no variable \"Y\"");
    CHECK(Refusal("d.constant") == "Line 1, column 17: the dataset \"d\" has no variable \"constant\"");
    CHECK(Refusal("1 + d.t") == "Line 1, column 21: the variable d.t holds text");
    CHECK(Refusal("s.z + d.y")
          == "Line 1, column 17: the dataset \"s\" has 2 observations, and \"d\" has 4");
    // Columns count characters.
    CHECK(Refusal("e.\xC3\xA4u\xC3\x9F + \xE2\x82\xAC")
          == "Line 1, column 25: a variable is written with its dataset, as d.\xE2\x82\xAC, but "
             "\"\xE2\x82\xAC\" "
             "stands alone");
    CHECK(Refusal("d.y \xC3\x97 2").find("Line 1, column 21: expected an operator") == 0);

    DataDesk desk;
    Fill(desk);
    CHECK(desk.Failure("// two lines\n  create(d, \"v\",\n \"d.y + \");")
          == "Line 3, column 9: expected a number, a variable, a function or \"(\", but found its end");
}

TEST_CASE("an expression that is nested without end is refused")
{
    for (std::string const piece : {"(", "-", "2^", "exp("})
    {
        std::string expression;
        for (int i = 0; i < 100000; ++i)
            expression += piece;
        CHECK(Refusal(expression + "1").find(": the expression is more than 200 levels deep")
              != std::string::npos);
    }
    // A long one is not a deep one.
    std::string sum = "1";
    for (int i = 1; i < 20000; ++i)
        sum += "+1";
    Expect(sum, {20000, 20000, 20000, 20000});
    Expect(std::string(150, '(') + "1" + std::string(150, ')'), {1, 1, 1, 1});
}

TEST_CASE("a variable that cannot be made is refused")
{
    DataDesk desk;
    Fill(desk);
    std::string const rule = " cannot be the name of a variable: it may have letters, digits and "
                             "underscores, and does not begin with "
                             "a digit";
    CHECK(desk.Failure("create(d, \"\", \"1\");") == "Line 1, column 1: \"\"" + rule);
    CHECK(desk.Failure("create(d, \"1a\", \"1\");") == "Line 1, column 1: \"1a\"" + rule);
    CHECK(desk.Failure("create(d, \"a b\", \"1\");") == "Line 1, column 1: \"a b\"" + rule);
    CHECK(desk.Failure("create(d, \"\xC3\xA9\", \"1\");") == "Line 1, column 1: \"\xC3\xA9\"" + rule);
    CHECK(desk.Failure("create(d, \"constant\", \"1\");")
          == "Line 1, column 1: the name \"constant\" is kept for the program's own use");
    CHECK(desk.Failure("create(f, \"v\", \"1\");").find("there is nothing called \"f\" in the workspace")
          != std::string::npos);
    desk.Run("m = 1;");
    CHECK(desk.Failure("create(m, \"v\", \"1\");")
          == "Line 1, column 8: expected the name of a dataset, but \"m\" is none");
    CHECK(
        desk.Failure("w = create(d, \"v\", \"1\");")
        == "Line 1, column 5: \"create\" gives nothing that could have a name; expected create(dataset, "
           "\"name\", \"expression\");");
    CHECK(desk.output.text.empty());
}

TEST_CASE("a dataset without observations, or without variables, gets a variable")
{
    DataDesk desk;
    desk.workspace.Assign("none", workbench::MakeDataset({"x"}, 0));
    CHECK(desk.Run("create(none, \"v\", \"log(none.x)\");") == "\nnone.v: 0 observations, 0 missing\n");
    CHECK(desk["none"].data.rows() == 0);
    CHECK(desk["none"].data.cols() == 3);
    desk.workspace.Assign("bare", workbench::MakeDataset({}, 2));
    CHECK(desk.Run("create(bare, \"v\", \"2\");") == "\nbare.v: 2 observations, 0 missing\n");
    CHECK(desk["bare"].data(1, 1) == 2);
}

TEST_CASE("a long computation reports its progress and can be stopped")
{
    DataDesk desk;
    auto const large = workbench::MakeDataset({"x", "y"}, 300000);
    large->data.rightCols(2).setConstant(2);
    desk.workspace.Assign("large", large);
    desk.Run("create(large, \"v\", \"large.x + 1\");");
    CHECK(desk.meter.begun == std::vector<std::string>{"Computing the variable", "Copying the dataset"});
    CHECK(desk.meter.ended == 2);
    CHECK(desk.meter.fractions.size() > 10);
    auto const reports = static_cast<int>(desk.meter.fractions.size());
    for (int stop = 1; stop <= reports; ++stop)
    {
        desk.meter.fractions.clear();
        desk.meter.stopAt = stop;
        CHECK(desk.Failure("create(large, \"w\", \"large.x + 1\");")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.meter.begun.size() == static_cast<std::size_t>(desk.meter.ended));
}

namespace
{
/// A random expression: its text, with no more parentheses than needed, and its value.
struct Tree
{
    std::string text;
    int strength; ///< Of the outermost operator: 0 comparison, 1 sum, 2 product, 3 sign, 4 power, 5
                  ///< none.
    std::function<double(Eigen::Index)> value;
};

class Gardener
{
public:
    Gardener(unsigned seed, Eigen::MatrixXd const& data) : m_random(seed), m_data(data) {}

    Tree Grow(int depth)
    {
        switch (depth == 0 ? Pick(2) : Pick(10))
        {
        case 0:
            return Leaf();
        case 1:
        {
            static char const* const texts[] = {"0", "1", ".25", "3", "1.5e1", "10.", "0.5"};
            static double const values[] = {0, 1, .25, 3, 15, 10, 0.5};
            auto const i = Pick(7);
            return {texts[i], 5, [value = values[i]](Eigen::Index) { return value; }};
        }
        case 2:
            return Function(Grow(depth - 1));
        case 3:
        {
            auto const operand = Grow(depth - 1);
            return {"-" + Blank() + Wrapped(operand, 3), 3,
                    [f = operand.value](Eigen::Index i) { return -f(i); }};
        }
        default:
            return Operation(Grow(depth - 1), Grow(depth - 1));
        }
    }

private:
    std::size_t Pick(std::size_t count) { return m_random() % count; }

    std::string Blank() { return std::string(Pick(2), ' '); }

    static std::string Wrapped(Tree const& tree, int least)
    {
        return tree.strength >= least ? tree.text : "(" + tree.text + ")";
    }

    Tree Leaf()
    {
        auto const column = static_cast<Eigen::Index>(1 + Pick(3));
        return {"d.x" + std::to_string(column), 5,
                [this, column](Eigen::Index i) { return m_data(i, column); }};
    }

    Tree Function(Tree const& operand)
    {
        static char const* const names[] = {"exp", "log", "sqrt", "ones"};
        auto const which = Pick(4);
        return {names[which] + Blank() + "(" + Blank() + operand.text + Blank() + ")", 5,
                [which, f = operand.value](Eigen::Index i)
                {
                    double const x = f(i);
                    return which == 0   ? std::exp(x)
                           : which == 1 ? std::log(x)
                           : which == 2 ? std::sqrt(x)
                                        : (x == x ? 1.0 : x);
                }};
    }

    Tree Operation(Tree const& left, Tree const& right)
    {
        struct Operator
        {
            char const* text;
            int strength;
            int left;  ///< What the operand must at least bind as to stand without parentheses.
            int right;
            double (*value)(double, double);
        };
        static Operator const operators[] = {
            {"+", 1, 1, 2, [](double a, double b) { return a + b; }},
            {"-", 1, 1, 2, [](double a, double b) { return a - b; }},
            {"*", 2, 2, 3, [](double a, double b) { return a * b; }},
            {".*", 2, 2, 3, [](double a, double b) { return a * b; }},
            {"/", 2, 2, 3, [](double a, double b) { return a / b; }},
            {"./", 2, 2, 3, [](double a, double b) { return a / b; }},
            {"^", 4, 5, 3, [](double a, double b) { return a != a || b != b ? NA : std::pow(a, b); }},
            {".^", 4, 5, 3, [](double a, double b) { return a != a || b != b ? NA : std::pow(a, b); }},
            {"<", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a < b); }},
            {"<=", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a <= b); }},
            {">", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a > b); }},
            {">=", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a >= b); }},
            {"==", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a == b); }},
            {"!=", 0, 1, 1, [](double a, double b) { return a != a || b != b ? NA : double(a != b); }}};
        auto const& chosen = operators[Pick(std::size(operators))];
        return {
            Wrapped(left, chosen.left) + Blank() + chosen.text + Blank() + Wrapped(right, chosen.right),
            chosen.strength, [f = left.value, g = right.value, value = chosen.value](Eigen::Index i) {
                return value(f(i), g(i));
            }};
    }

    std::mt19937 m_random;
    Eigen::MatrixXd const& m_data;
};
} // namespace

TEST_CASE("random expressions have the values that an evaluation one by one gives")
{
    auto const seed = std::random_device()();
    INFO("seed " << seed);
    // More than two blocks, the last one short.
    auto const d = workbench::MakeDataset({"x1", "x2", "x3"}, 2100);
    std::mt19937 random(seed);
    double const specials[] = {0, -0.0, 1, 2, NA, INF, -INF, -1, 1e308, 4.9e-324, 1000};
    for (auto& value : d->data.rightCols(3).reshaped())
        value = random() % 4 == 0 ? specials[random() % std::size(specials)]
                                  : std::uniform_real_distribution<>(-10, 10)(random);
    DatasetMap const datasets{{"d", d}};
    workbench::Progress progress;
    Gardener gardener(seed, d->data);
    for (int round = 0; round < 400; ++round)
    {
        auto const tree = gardener.Grow(1 + round % 6);
        INFO(tree.text);
        auto const computed = workbench::Compute(tree.text, "d", datasets, progress);
        REQUIRE(computed.values.size() == 2100);
        Eigen::Index missing = 0;
        Eigen::Index infinite = 0;
        for (Eigen::Index i = 0; i < 2100; ++i)
        {
            double const expected = tree.value(i);
            missing += std::isnan(expected);
            infinite += std::isinf(expected);
            if (!Same(computed.values[i], expected))
                FAIL("observation " << i << ": " << computed.values[i] << " instead of " << expected);
        }
        CHECK(computed.missing == missing);
        CHECK(computed.infinite == infinite);
        CHECK(computed.undefined <= missing);
    }
}
