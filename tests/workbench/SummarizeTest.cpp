#include "workbench/engine/Summary.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "workbench/DataDesk.h"
#include "workbench/SampleFolder.h"

using workbench::Summary;
using workbench::SummaryRows;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();
double const INF = std::numeric_limits<double>::infinity();

Summary Of(std::vector<double> const& values)
{
    auto const dataset = workbench::MakeDataset({"x"}, static_cast<Eigen::Index>(values.size()));
    std::copy(values.begin(), values.end(), dataset->data.col(1).begin());
    workbench::Progress progress;
    auto const summaries = workbench::Summarize(*dataset, {1}, SummaryRows::Available, progress);
    REQUIRE(summaries.size() == 1);
    return summaries[0];
}

/// To how many digits `value` is `certified`; 15, which is what is certified, if it is equal.
double Digits(double value, double certified)
{
    auto const error = std::abs(value - certified) / std::abs(certified);
    return error == 0 ? 15 : std::min(15.0, -std::log10(error));
}

void CheckCertified(std::vector<double> const& values, double mean, double deviation, double meanDigits,
                    double deviationDigits)
{
    auto const summary = Of(values);
    CHECK(summary.observations == static_cast<Eigen::Index>(values.size()));
    CAPTURE(summary.mean, summary.deviation);
    CHECK(Digits(summary.mean, mean) >= meanDigits);
    CHECK(Digits(summary.deviation, deviation) >= deviationDigits);
}

/// `first`, and then `count` times `low` and `high` in turn.
std::vector<double> Alternating(double first, double low, double high, int count)
{
    std::vector<double> values{first};
    for (int i = 0; i < count; ++i)
        values.insert(values.end(), {low, high});
    return values;
}
} // namespace

TEST_CASE("mean and standard deviation have the certified digits on NIST's univariate data")
{
    // NIST Statistical Reference Datasets, univariate summary statistics. The certified values have
    // 15 digits; the doubles next to the values of NumAcc3 and NumAcc4 are so far from them that
    // their own deviation agrees to no more digits than are asked for here.
    SECTION("NumAcc1")
    {
        CheckCertified({10000001, 10000003, 10000002}, 10000002, 1, 15, 15);
    }
    SECTION("NumAcc2")
    {
        CheckCertified(Alternating(1.2, 1.1, 1.3, 500), 1.2, 0.1, 15, 14.5);
    }
    SECTION("NumAcc3")
    {
        CheckCertified(Alternating(1000000.2, 1000000.1, 1000000.3, 500), 1000000.2, 0.1, 15, 9);
    }
    SECTION("NumAcc4")
    {
        CheckCertified(Alternating(10000000.2, 10000000.1, 10000000.3, 500), 10000000.2, 0.1, 15, 8);
    }
    SECTION("Michelso, the speed of light")
    {
        CheckCertified({299.85, 299.74, 299.90, 300.07, 299.93, 299.85, 299.95, 299.98, 299.98, 299.88,
                        300.00, 299.98, 299.93, 299.65, 299.76, 299.81, 300.00, 300.00, 299.96, 299.96,
                        299.96, 299.94, 299.96, 299.94, 299.88, 299.80, 299.85, 299.88, 299.90, 299.84,
                        299.83, 299.79, 299.81, 299.88, 299.88, 299.83, 299.80, 299.79, 299.76, 299.80,
                        299.88, 299.88, 299.88, 299.86, 299.72, 299.72, 299.62, 299.86, 299.97, 299.95,
                        299.88, 299.91, 299.85, 299.87, 299.84, 299.84, 299.85, 299.84, 299.84, 299.84,
                        299.89, 299.81, 299.81, 299.82, 299.80, 299.77, 299.76, 299.74, 299.75, 299.76,
                        299.91, 299.92, 299.89, 299.86, 299.88, 299.72, 299.84, 299.85, 299.85, 299.78,
                        299.89, 299.84, 299.78, 299.81, 299.76, 299.81, 299.79, 299.81, 299.82, 299.85,
                        299.87, 299.87, 299.81, 299.74, 299.81, 299.94, 299.95, 299.80, 299.81, 299.87},
                       299.852400000000, 0.0790105478190518, 15, 13);
    }
}

TEST_CASE("quartiles are those of definition 7 in Hyndman and Fan")
{
    auto const quartiles = [](std::vector<double> const& values)
    {
        auto const s = Of(values);
        return std::vector<double>{s.minimum, s.lowerQuartile, s.median, s.upperQuartile, s.maximum};
    };
    using Values = std::vector<double>;
    CHECK(quartiles({7}) == Values{7, 7, 7, 7, 7});
    CHECK(quartiles({2, 1}) == Values{1, 1.25, 1.5, 1.75, 2});
    CHECK(quartiles({3, 1, 2}) == Values{1, 1.5, 2, 2.5, 3});
    CHECK(quartiles({4, 2, 3, 1}) == Values{1, 1.75, 2.5, 3.25, 4});
    CHECK(quartiles({5, 4, 3, 2, 1}) == Values{1, 2, 3, 4, 5});
    CHECK(quartiles({10, 10, 10, 0, 0, 0}) == Values{0, 0, 5, 10, 10});
    CHECK(quartiles({-INF, 1, 2, 3, INF}) == Values{-INF, 1, 2, 3, INF});
    CHECK(quartiles({-INF, -INF, INF, INF})[1] == -INF);
    CHECK(std::isnan(quartiles({-INF, -INF, INF, INF})[2]));
    // Numbers whose difference is beyond all numbers.
    auto const far = quartiles({-1.7e308, 1.7e308});
    CHECK(far[1] == Approx(-0.85e308));
    CHECK(far[2] == 0);
    CHECK(far[3] == Approx(0.85e308));

    auto const seed = std::random_device()();
    INFO("seed " << seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 300; ++round)
    {
        Values values(1 + random() % 60);
        for (auto& value : values)
            value = static_cast<double>(random() % 100);
        Values sorted = values;
        std::sort(sorted.begin(), sorted.end());
        auto const line = [&](double p)
        {
            double const place = p * static_cast<double>(sorted.size() - 1);
            auto const below = static_cast<std::size_t>(place);
            auto const above = std::min(below + 1, sorted.size() - 1);
            return sorted[below]
                   + (place - static_cast<double>(below)) * (sorted[above] - sorted[below]);
        };
        CHECK(quartiles(values)
              == Values{sorted.front(), line(.25), line(.5), line(.75), sorted.back()});
    }
}

TEST_CASE("what few, missing and infinite values tell")
{
    auto const none = Of({NA, NA});
    CHECK(none.observations == 0);
    for (double const value : {none.mean, none.deviation, none.minimum, none.lowerQuartile, none.median,
                               none.upperQuartile, none.maximum})
        CHECK(std::isnan(value));
    auto const one = Of({NA, 3});
    CHECK(one.observations == 1);
    CHECK(one.mean == 3);
    CHECK(std::isnan(one.deviation));
    CHECK(one.median == 3);
    auto const infinite = Of({1, INF});
    CHECK(infinite.mean == INF);
    CHECK(std::isnan(infinite.deviation));
    CHECK(std::isnan(Of({-INF, INF}).mean));
    auto const large = Of({1.7e308, 1.7e308, 1.7e308});
    CHECK(large.mean == 1.7e308);
    CHECK(large.deviation == 0);
}

TEST_CASE("the statement prints a table with tabs")
{
    SampleFolder const samples;
    DataDesk desk;
    desk.Run("cars = import(\"cars.csv\", \",\"); air = import(\"airquality.csv\", \",\");");
    CHECK(desk.Run("summarize(cars, \"mpg\");")
          == "\nSummary of cars: 1 variable, available observations\n"
             "variable \tobs\t   mean\tst.dev.\t min\t    q1\tmedian\t  q3\t max\n"
             "mpg      \t 32\t20.0906\t6.02695\t10.4\t15.425\t  19.2\t22.8\t33.9\n");
    // The names of the columns are those of the sample file.
    CHECK(desk.Run("summarize(air, \"Ozone Wind\", \"available\");")
          == "\nSummary of air: 2 variables, available observations\n"
             "variable \tobs\t   mean\tst.dev.\tmin\t q1\tmedian\t   q3\t max\n"
             "Ozone    \t116\t42.1293\t32.9879\t  1\t 18\t  31.5\t63.25\t 168\n"
             "Wind     \t153\t9.95752\t  3.523\t1.7\t7.4\t   9.7\t 11.5\t20.7\n");
    auto const complete = desk.Run("summarize(air, \"Wind Ozone\", \"complete\");");
    CHECK(complete.find("\nSummary of air: 2 variables, complete observations\n") == 0);
    CHECK(complete.find("\nWind     \t116\t") != std::string::npos);
    CHECK(complete.find("\nOzone    \t116\t42.1293\t") != std::string::npos);
}

TEST_CASE("a summary of nothing, of letters outside ASCII, and of no observation")
{
    DataDesk desk;
    auto const dataset = workbench::MakeDataset({"\xC3\xA9t\xC3\xA9", "b"}, 2);
    dataset->data.col(1) << 5, NA;
    dataset->data.col(2) << NA, 7;
    desk.workspace.Assign("d", dataset);
    CHECK(desk.Run("summarize(d, \"\xC3\xA9t\xC3\xA9 b\", \"complete\");")
          == "\nSummary of d: 2 variables, complete observations\n"
             "variable \tobs\tmean\tst.dev.\tmin\tq1\tmedian\tq3\tmax\n"
             "\xC3\xA9t\xC3\xA9      \t  0\t   .\t      .\t  .\t .\t     .\t .\t  .\n"
             "b        \t  0\t   .\t      .\t  .\t .\t     .\t .\t  .\n");
    CHECK(desk.Run("summarize(d, \"\xC3\xA9t\xC3\xA9\");")
          == "\nSummary of d: 1 variable, available observations\n"
             "variable \tobs\tmean\tst.dev.\tmin\tq1\tmedian\tq3\tmax\n"
             "\xC3\xA9t\xC3\xA9      \t  1\t   5\t      .\t  5\t 5\t     5\t 5\t  5\n");
    desk.workspace.Assign("none", workbench::MakeDataset({"x"}, 0));
    CHECK(desk.Run("summarize(none, \"x\");").find("\nx        \t  0\t   .\t") != std::string::npos);
}

TEST_CASE("what cannot be summarized is told")
{
    DataDesk desk;
    auto const dataset = workbench::MakeDataset({"x", "t"}, 2);
    dataset->data.rightCols(2).setZero();
    dataset->labelledColumns[2] = {{"a"}, {"a", "a"}};
    desk.workspace.Assign("d", dataset);
    CHECK(desk.Failure("summarize(d, \"\");") == "Line 1, column 1: no variable is named");
    CHECK(desk.Failure("summarize(d, \"y\");") == "Line 1, column 1: the dataset has no variable \"y\"");
    CHECK(desk.Failure("summarize(d, \"x t\");") == "Line 1, column 1: the variable \"t\" holds text");
    CHECK(desk.Failure("summarize(d, \"x x\");") == "Line 1, column 1: \"x\" is given twice");
    CHECK(desk.Failure("summarize(d, \"x\", \"all\");")
          == "Line 1, column 19: expected \"available\" or \"complete\" as the rows, but found \"all\"");
    CHECK(desk.Failure("summarize(d, \"x\", \"\");")
          == "Line 1, column 19: expected \"available\" or \"complete\" as the rows, but found \"\"");
    CHECK(desk.output.text.empty());
}

TEST_CASE("a summary reports its progress and can be stopped")
{
    DataDesk desk;
    auto const dataset = workbench::MakeDataset({"x", "y"}, 1000);
    dataset->data.setRandom();
    desk.workspace.Assign("d", dataset);
    desk.Run("summarize(d, \"x y\");");
    CHECK(desk.meter.begun == std::vector<std::string>{"Summarizing the variables"});
    CHECK(desk.meter.fractions == std::vector<double>{0, .125, .25, .375, .5, .625, .75, .875});
    desk.output.text.clear();
    for (desk.meter.stopAt = 1; desk.meter.stopAt <= 8; ++desk.meter.stopAt)
    {
        desk.meter.fractions.clear();
        CHECK(desk.Failure("summarize(d, \"x y\");")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.meter.begun.size() == static_cast<std::size_t>(desk.meter.ended));
    CHECK(desk.output.text.empty());
}
