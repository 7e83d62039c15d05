#include <catch2/catch.hpp>

#include <cmath>
#include <filesystem>

#include "workbench/Recorder.h"
#include "workbench/SampleFolder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/script/Interpreter.h"

namespace fs = std::filesystem;

TEST_CASE("the tour runs and saves what it made")
{
    SampleFolder const samples;
    workbench::Workspace workspace;
    Recorder output;
    Meter meter;
    workbench::Interpreter interpreter(workspace, output, meter);
    REQUIRE(interpreter.Run(ReadFile("tour.zqs"), workbench::Interpreter::Echo::Statements));
    CHECK(output.errors.empty());
    CHECK(output.warnings.empty());
    CHECK(output.codes.size() == 11);
    CHECK(fs::exists("sample.zws"));

    // The least-squares coefficients, which the vague prior hardly moves.
    auto const& fuel = *workspace.models.at("fuel");
    REQUIRE(fuel.drawNames == std::vector<std::string>{"constant", "wt", "hp", "tau", "sigma"});
    CHECK(fuel.draws.col(0).mean() == Approx(37.22727).margin(0.15));
    CHECK(fuel.draws.col(1).mean() == Approx(-3.87783).margin(0.06));
    CHECK(fuel.draws.col(2).mean() == Approx(-0.03177).margin(0.001));

    workspace = {};
    REQUIRE(interpreter.Run("load(\"sample.zws\");", workbench::Interpreter::Echo::None));
    CHECK(workspace.Names() == std::vector<std::string>{"airquality", "cars", "longley", "weights"});

    auto const& longley = *workspace.datasets["longley"];
    CHECK(longley.data.rows() == 16);
    CHECK(longley.varNames.GetCount() == 8);
    CHECK(longley.labelledColumns.empty());
    // The sums of employment and of the years, and the mean of unemployment.
    CHECK(longley.data.col(1).sum() == 1045072.0);
    CHECK(longley.data.col(7).sum() == 31272.0);
    CHECK(longley.data.col(4).mean() == Approx(3193.3125));

    auto const& air = *workspace.datasets["airquality"];
    CHECK(air.data.rows() == 153);
    CHECK(air.data.col(1).array().isNaN().count() == 37);
    CHECK(air.data.col(2).array().isNaN().count() == 7);
    CHECK(air.data.col(4).mean() == Approx(77.88235));

    auto const& cars = *workspace.datasets["cars"];
    CHECK(cars.data.rows() == 32);
    REQUIRE(cars.labelledColumns.size() == 1);
    CHECK(cars.labelledColumns.at(1).labels.front() == "Mazda RX4");
    CHECK(cars.labelledColumns.at(1).labels.back() == "Volvo 142E");
    CHECK(cars.data.col(2).mean() == Approx(20.090625));
}

TEST_CASE("the workspace file among the samples is the one that the tour saves")
{
    SampleFolder const samples;
    auto const kept = ReadFile("sample.zws");
    workbench::Workspace workspace;
    Recorder output;
    workbench::Progress progress;
    workbench::Interpreter interpreter(workspace, output, progress);
    REQUIRE(interpreter.Run(ReadFile("tour.zqs"), workbench::Interpreter::Echo::None));
    CHECK_FALSE(kept.empty());
    CHECK(ReadFile("sample.zws") == kept);
}
