#include <catch2/catch.hpp>

#include "common/Number.h"
#include "workbench/DataDesk.h"
#include "workbench/analysis/ModelMaking.h"
#include "workbench/analysis/MonteCarloError.h"

namespace
{
/// Two chains of ten draws; beta[1] is 1 to 20 in another order, k a whole number.
std::shared_ptr<Model> Sampled()
{
    Eigen::MatrixXd draws(20, 2);
    draws.col(0) << 3, 18, 7, 1, 12, 20, 9, 5, 16, 2, 14, 6, 11, 19, 4, 8, 17, 10, 13, 15;
    draws.col(1) << 0, 1, 0, 2, 1, 0, 0, 3, 1, 0, 1, 0, 0, 0, 2, 1, 0, 1, 0, 0;
    return ModelOfDraws({"beta[1]", "k"}, draws, 2);
}

struct TestDesk : DataDesk
{
    TestDesk()
    {
        workspace.Assign("m", Sampled());
        workspace.Assign("bare", std::make_shared<Model>());
        auto const broken = Sampled();
        broken->drawNames.emplace_back("more");
        workspace.Assign("broken", broken);
        workspace.Assign("d", workbench::MakeDataset({"x"}, 20));
    }
};

/// The error of the share of draws in `holds`, as the table has it.
std::string ErrorCell(Eigen::ArrayXd const& holds)
{
    return zenqo::FormatNumber(workbench::MonteCarloError(holds, 2));
}

/// `cell` on the right of a column as wide as `width`.
std::string Right(std::string const& cell, std::size_t width)
{
    return std::string(width - std::min(width, cell.size()), ' ') + cell;
}
} // namespace

TEST_CASE("a test prints each condition, and all of them together")
{
    TestDesk desk;
    auto const text = desk.Run("test(m, \"m.beta[1] > 5\", \"m.k == 0\");");
    auto const draws = Sampled()->draws;
    Eigen::ArrayXd const first = (draws.col(0).array() > 5).cast<double>();
    Eigen::ArrayXd const second = (draws.col(1).array() == 0).cast<double>();
    auto const errors = {ErrorCell(first), ErrorCell(second), ErrorCell(first * second)};
    std::size_t width = 8;
    for (auto const& error : errors)
        width = std::max(width, error.size());
    CHECK(text
          == "\nTest of 2 conditions on m\n"
             "condition    \tdraws\tprobability\t" + Right("st.error", width) + "\n"
             "m.beta[1] > 5\t   20\t       0.75\t" + Right(errors.begin()[0], width) + "\n"
             "m.k == 0     \t   20\t       0.55\t" + Right(errors.begin()[1], width) + "\n"
             "all together \t   20\t       0.45\t" + Right(errors.begin()[2], width) + "\n");
    CHECK(desk.output.warnings.empty());
}

TEST_CASE("one condition has no line of all, and what every draw says has no error")
{
    TestDesk desk;
    CHECK(desk.Run("test(m, \"m.k >= 0\");")
          == "\nTest of 1 condition on m\n"
             "condition\tdraws\tprobability\t st.error\n"
             "m.k >= 0 \t   20\t          1\t        0\n");
}

TEST_CASE("draws in which a condition is undefined are left out and told")
{
    TestDesk desk;
    auto const text = desk.Run("test(m, \"log( m.beta[1] - 18.5 ) > -5\", \"m.k < 4\");");
    CHECK(text.find("log( m.beta[1] - 18.5 ) > -5\t    2\t          1\t        0\n") != std::string::npos);
    CHECK(text.find("m.k < 4                     \t   20\t          1\t        0\n") != std::string::npos);
    CHECK(text.find("all together                \t    2\t          1\t        0\n") != std::string::npos);
    CHECK(desk.output.warnings
          == std::vector<std::string>{
              "The condition \"log( m.beta[1] - 18.5 ) > -5\" has no value in 18 draws of 20, which are left "
              "out: an operation is not defined there, as the logarithm of a negative number."});
    desk.output.warnings.clear();
    CHECK(desk.Run("test(m, \"sqrt( -m.beta[1] ) == 1\");")
          == "\nTest of 1 condition on m\n"
             "condition              \tdraws\tprobability\t st.error\n"
             "sqrt( -m.beta[1] ) == 1\t    0\t          .\t        .\n");
    CHECK(desk.output.warnings.size() == 1);
}

TEST_CASE("equality that no draw has is told to say nothing")
{
    TestDesk desk;
    std::string const behind =
        " says nothing about the model: two draws of continuous quantities are never equal, whatever is true. "
        "Test whether the difference is small, with a condition for each of its bounds.";
    desk.Run("test(m, \"m.beta[1] == 5.5\");");
    CHECK(desk.output.warnings
          == std::vector<std::string>{"The probability of \"m.beta[1] == 5.5\"" + behind});
    desk.output.warnings.clear();
    desk.Run("test(m, \"m.beta[1] ~= 5.5\");");
    CHECK(desk.output.warnings
          == std::vector<std::string>{"The probability of \"m.beta[1] ~= 5.5\"" + behind});
    desk.output.warnings.clear();
    desk.Run("test(m, \"m.k ~= 0\", \"m.k == 0\");");
    CHECK(desk.output.warnings.empty());
}

TEST_CASE("a test that can't be made is one error with its place")
{
    TestDesk desk;
    CHECK(desk.Failure("test(m);")
          == "Line 1, column 1: \"test\" does not take 1 argument; expected test(model, \"condition\", ...);");
    CHECK(desk.Failure("test(d, \"d.x > 0\");")
          == "Line 1, column 6: expected the name of a model, but \"d\" is none");
    CHECK(desk.Failure("test(bare, \"bare.x > 0\");") == "Line 1, column 1: the model \"bare\" has no draws");
    CHECK(desk.Failure("test(broken, \"broken.k > 0\");")
          == "Line 1, column 1: the model \"broken\" has 2 columns of draws, but 3 names of draws");
    CHECK(desk.Failure("test(m, \"m.k > 0\",\n  \"m.k > m.b\");")
          == "Line 2, column 10: the model \"m\" has no draw \"b\"");
    CHECK(desk.Failure("test(m, \"d.x > 0\");")
          == "Line 1, column 10: the test is one of the model \"m\", not of \"d\"");
    desk.meter = Meter();
    desk.meter.stopAt = 1;
    CHECK(desk.Failure("test(m, \"m.k > 0\");")
          == "Line 1, column 1: interrupted; the statement changed nothing");
    CHECK(desk.output.text.empty());
}
