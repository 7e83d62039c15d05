#include "workbench/engine/DesignMatrix.h"

#include <catch2/catch.hpp>

#include <cmath>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"

using workbench::DesignMatrix;
using workbench::MakeDesignMatrix;

namespace
{
/// Five observations on y, x, z and the text t; y misses its fourth value.
std::shared_ptr<Dataset> Macro()
{
    auto const dataset = workbench::MakeDataset({"y", "x", "z", "t"}, 5);
    dataset->data.col(1) << 1, 2, 3, std::nan(""), 5;
    dataset->data.col(2) << 10, 20, 30, 40, 50;
    dataset->data.col(3) << -1, -2, -3, -4, -5;
    dataset->data.col(4) << 0, 0, 1, 1, 0;
    dataset->labelledColumns[4] = {{"a", "b"}, {"a", "a", "b", "b", "a"}};
    return dataset;
}

Eigen::MatrixXd Rows(std::initializer_list<std::initializer_list<double>> rows) { return Eigen::MatrixXd(rows); }

std::string Refusal(std::string const& dependent, std::vector<std::string> const& independent,
                    std::vector<int> const& lags = {})
{
    return ErrorOf([&] { MakeDesignMatrix(*Macro(), dependent, independent, lags); });
}
} // namespace

TEST_CASE("a design matrix has the complete observations alone")
{
    auto const design = MakeDesignMatrix(*Macro(), "y", {"z", "x"}, {});
    CHECK(design.columns == std::vector<std::string>{"y", "z", "x"});
    CHECK(design.values == Rows({{1, -1, 10}, {2, -2, 20}, {3, -3, 30}, {5, -5, 50}}));
    CHECK(design.omitted == 1);
}

TEST_CASE("a lag is the value that many observations earlier, a negative one a later value")
{
    auto const lagged = MakeDesignMatrix(*Macro(), "x", {}, {1, 3});
    CHECK(lagged.columns == std::vector<std::string>{"x", "x(-1)", "x(-3)"});
    CHECK(lagged.values == Rows({{40, 30, 10}, {50, 40, 20}}));
    CHECK(lagged.omitted == 3);

    auto const led = MakeDesignMatrix(*Macro(), "x", {"z"}, {-1});
    CHECK(led.columns == std::vector<std::string>{"x", "z", "x(+1)"});
    CHECK(led.values == Rows({{10, -1, 20}, {20, -2, 30}, {30, -3, 40}, {40, -4, 50}}));

    // The missing value is missing as a lag too.
    auto const missing = MakeDesignMatrix(*Macro(), "y", {}, {1});
    CHECK(missing.values == Rows({{2, 1}, {3, 2}}));
    CHECK(missing.omitted == 3);
}

TEST_CASE("what can't be a design matrix is refused in words")
{
    CHECK(Refusal("w", {}) == "the dataset has no variable \"w\"");
    CHECK(Refusal("y", {"x", "w"}) == "the dataset has no variable \"w\"");
    CHECK(Refusal("Y", {}) == "the dataset has no variable \"Y\"");
    CHECK(Refusal("", {"x"}) == "the dataset has no variable \"\"");
    // The hidden first column is none of the variables.
    CHECK(Refusal("constant", {"x"}) == "the dataset has no variable \"constant\"");
    CHECK(Refusal("y", {"t"}) == "the variable \"t\" holds text");
    CHECK(Refusal("y", {"x", "x"}) == "\"x\" is given twice");
    CHECK(Refusal("y", {"y"}) == "\"y\" is given twice");
    CHECK(Refusal("y", {}, {1, 1}) == "\"y(-1)\" is given twice");
    CHECK(Refusal("y", {}, {0}) == "lag 0 of the dependent variable is the dependent variable itself");
    CHECK(Refusal("y", {}, {5}) == "no observation has values of all variables");
    CHECK(Refusal("y", {}, {-1000000}) == "no observation has values of all variables");
}

TEST_CASE("the statement makes the matrix, tells its columns, and changes nothing when it fails")
{
    workbench::Workspace workspace;
    Recorder output;
    Meter meter;
    workbench::Interpreter interpreter(workspace, output, meter);
    auto const run = [&](std::string const& script)
    { return interpreter.Run(script, workbench::Interpreter::Echo::None); };
    workspace.Assign("macro", Macro());

    REQUIRE(run("X = design(macro, \"y\", \"x z\", [1; -1]);"));
    CHECK(*workspace.matrices.at("X") == Rows({{2, 20, -2, 1, 3}}));
    CHECK(output.text == "\n1 observations, 4 left out; columns: y x z y(-1) y(+1)\n");
    REQUIRE(run("lags = [1, 2]; Y = design(macro, \"x\", \"\", lags);"));
    CHECK(workspace.matrices.at("Y")->rows() == 3);
    REQUIRE(run("Z = design(macro, \"x\", \" z \", []);"));
    CHECK(workspace.matrices.at("Z")->cols() == 2);

    for (auto const& [script, error] : std::vector<std::pair<std::string, std::string>>{
             {"X = design(macro, \"w\", \"x\");", "the dataset has no variable \"w\""},
             {"X = design(macro, \"x\", \"z\", [1.5]);", "a lag is a whole number between -1000000 and 1000000"},
             {"X = design(macro, \"x\", \"z\", [nan]);", "a lag is a whole number between -1000000 and 1000000"},
             {"X = design(macro, \"x\", \"z\", 1e300);", "a lag is a whole number between -1000000 and 1000000"},
             {"design(macro, \"x\", \"z\");", "what \"design\" gives needs a name"}})
    {
        output.errors.clear();
        auto const before = workspace.matrices;
        CHECK_FALSE(run(script));
        REQUIRE(output.errors.size() == 1);
        CHECK(output.errors[0].find(error) != std::string::npos);
        CHECK(workspace.matrices == before);
    }
}
