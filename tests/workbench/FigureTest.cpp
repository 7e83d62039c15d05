#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/plot/Figure.h"

using namespace workbench;
using Style = workbench::Series::Style;

namespace
{
constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();
constexpr double INFINITE = std::numeric_limits<double>::infinity();

/// Six observations of variables of all sorts.
std::shared_ptr<Dataset> Data()
{
    auto data = MakeDataset({"x", "y", "gaps", "same", "none", "text", "huge", "far"}, 6);
    data->data.col(1) << 1, 2, 3, 4, 5, 6;
    data->data.col(2) << 2.5, 1, 4, 3, 6, 5;
    data->data.col(3) << 1, MISSING, 3, INFINITE, -INFINITE, 6;
    data->data.col(4).setConstant(7);
    data->data.col(5) << MISSING, INFINITE, MISSING, MISSING, MISSING, MISSING;
    data->data.col(6).setZero();
    data->labelledColumns[6] = {{"a"}, std::vector<std::string>(6, "a")};
    data->data.col(7) << 1, 2, 3, 4, 5, 1e200;
    data->data.col(8) << 1e15, 1e15 + 1, 1e15, 1e15, 1e15, 1e15;
    return data;
}

Figure Make(std::vector<std::string> const& names, PlotType type)
{
    Progress progress;
    return MakeFigure(*Data(), names, type, progress);
}

std::string Refusal(std::vector<std::string> const& names, PlotType type)
{
    return ErrorOf([&] { Make(names, type); });
}

constexpr PlotType ALL_TYPES[] = {PlotType::Histogram, PlotType::Scatter, PlotType::History,
                                  PlotType::Density,   PlotType::Lines,   PlotType::Correlogram};
} // namespace

TEST_CASE("the types have the order of the dialog")
{
    CHECK(PlotTypeNames()
          == std::vector<std::string>{"histogram", "scatter", "history", "density", "lines", "correlogram",
                                      "all"});
    CHECK(static_cast<int>(PlotType::Correlogram) == 5);
}

TEST_CASE("a histogram has a panel for each variable")
{
    auto const figure = Make({"x", "same"}, PlotType::Histogram);
    CHECK(figure.title == "histogram of x, same");
    CHECK(figure.columns == 2);
    REQUIRE(figure.panels.size() == 2);
    auto const& panel = figure.panels[0];
    CHECK(panel.xLabel == "x");
    CHECK(panel.yLabel == "Frequency");
    CHECK(panel.y.low == 0);
    REQUIRE(panel.series.size() == 1);
    CHECK(panel.series[0].style == Style::Bars);
    CHECK(panel.series[0].x == std::vector<double>{2, 5});
    CHECK(panel.series[0].y == std::vector<double>{3, 3});
    CHECK(panel.series[0].width == 3);
    CHECK(figure.description
          == "x: 6 values; 2 bins of width 3 (Freedman-Diaconis)\n"
             "same: 6 values; 1 bin of width 1 (Freedman-Diaconis)\n");
}

TEST_CASE("scatter has a panel for each variable but the last, which is on the horizontal axis")
{
    auto const figure = Make({"y", "gaps", "x"}, PlotType::Scatter);
    CHECK(figure.title == "scatter of y, gaps against x");
    REQUIRE(figure.panels.size() == 2);
    CHECK(figure.panels[0].xLabel == "x");
    CHECK(figure.panels[0].yLabel == "y");
    REQUIRE(figure.panels[0].series.size() == 1);
    CHECK(figure.panels[0].series[0].style == Style::Marks);
    CHECK(figure.panels[0].series[0].x == std::vector<double>{1, 2, 3, 4, 5, 6});
    CHECK(figure.panels[0].series[0].y == std::vector<double>{2.5, 1, 4, 3, 6, 5});
    CHECK(figure.panels[1].series[0].x == std::vector<double>{1, 3, 6});
    CHECK(figure.panels[1].series[0].y == std::vector<double>{1, 3, 6});
    CHECK(figure.description
          == "y and x: 6 observations, 0 left out\ngaps and x: 3 observations, 3 left out\n");
}

TEST_CASE("lines are all in one panel, with a legend if there are several")
{
    auto const one = Make({"y", "x"}, PlotType::Lines);
    REQUIRE(one.panels.size() == 1);
    CHECK(one.panels[0].xLabel == "x");
    CHECK(one.panels[0].yLabel == "y");
    CHECK(one.panels[0].series[0].name.empty());

    auto const two = Make({"y", "gaps", "x"}, PlotType::Lines);
    REQUIRE(two.panels.size() == 1);
    CHECK(two.panels[0].yLabel.empty());
    REQUIRE(two.panels[0].series.size() == 4);
    CHECK(two.panels[0].series[0].name == "y");
    CHECK(two.panels[0].series[0].style == Style::Line);
    CHECK(two.panels[0].series[1].style == Style::Marks);
    CHECK(two.panels[0].series[2].name == "gaps");
    CHECK(two.panels[0].series[2].colour == 1);
    CHECK(std::isnan(two.panels[0].series[2].y[1]));
    CHECK(two.panels[0].series[3].x == std::vector<double>{1, 3, 6});
}

TEST_CASE("a history breaks where a value is left out")
{
    auto const figure = Make({"gaps"}, PlotType::History);
    REQUIRE(figure.panels.size() == 1);
    auto const& panel = figure.panels[0];
    CHECK(panel.xLabel == "Observation");
    CHECK(panel.yLabel == "gaps");
    CHECK(panel.x.low < 1);
    CHECK(panel.x.high > 6);
    REQUIRE(panel.series.size() == 2);
    CHECK(panel.series[0].x == std::vector<double>{1, 2, 3, 4, 5, 6});
    CHECK(panel.series[0].y[2] == 3);
    CHECK(std::isnan(panel.series[0].y[3]));
    CHECK(panel.series[1].x == std::vector<double>{1, 3, 6});
    CHECK(figure.description == "gaps: 3 values, 1 missing, 2 infinite and left out\n");
    CHECK(Make({"x", "y", "gaps"}, PlotType::History).columns == 1);
}

TEST_CASE("all that is plotted of one variable goes into one figure")
{
    auto const figure = Make({"x", "y"}, PlotType::All);
    CHECK(figure.title == "all plots of x, y");
    CHECK(figure.columns == 4);
    REQUIRE(figure.panels.size() == 8);
    CHECK(figure.panels[1].xLabel == "Observation");
    CHECK(Refusal(std::vector<std::string>(7, "x"), PlotType::All)
          == "a figure of all types takes at most 6 variables, but 7 are given");
}

TEST_CASE("a long line has marks only where no line meets")
{
    auto data = MakeDataset({"x"}, 1000);
    data->data.col(1).setLinSpaced(0, 1);
    data->data(499, 1) = data->data(501, 1) = MISSING;
    Progress progress;
    auto const figure = MakeFigure(*data, {"x"}, PlotType::History, progress);
    REQUIRE(figure.panels[0].series.size() == 2);
    CHECK(figure.panels[0].series[1].x == std::vector<double>{501});
}

TEST_CASE("a density reaches three bandwidths beyond the values, and its area is one")
{
    auto const figure = Make({"y"}, PlotType::Density);
    auto const& panel = figure.panels.at(0);
    CHECK(panel.xLabel == "y");
    CHECK(panel.yLabel == "Density");
    REQUIRE(panel.series.size() == 2);
    auto const& curve = panel.series[1];
    CHECK(curve.style == Style::Line);
    double area = 0;
    for (std::size_t i = 1; i < curve.x.size(); ++i)
        area += (curve.x[i] - curve.x[i - 1]) * (curve.y[i] + curve.y[i - 1]) / 2;
    CHECK(area == Approx(1).margin(0.003));
    // The quartiles are 2.625 and 4.75, and 0.9 * 2.125 / 1.34 * 6^(-1/5) is 0.99739.
    CHECK(figure.description == "y: 6 values; bandwidth 0.997393 (Silverman)\n");
    CHECK(curve.x.front() == Approx(1 - 3 * 0.997393).epsilon(1e-5));
    CHECK(panel.note == "n = 6, bandwidth 0.9974");
}

TEST_CASE("a correlogram has its lags, a level at zero and the band")
{
    auto const figure = Make({"y"}, PlotType::Correlogram);
    auto const& panel = figure.panels.at(0);
    CHECK(panel.xLabel == "Lag");
    CHECK(panel.yLabel == "ACF of y");
    CHECK(panel.y.low == -1);
    CHECK(panel.y.high == 1);
    REQUIRE(panel.series.size() == 4);
    CHECK(panel.series[0].y == std::vector<double>{0, 0});
    CHECK(panel.series[1].y[0] == Approx(0.8001519));
    CHECK(panel.series[2].y[0] == Approx(-0.8001519));
    CHECK(panel.series[3].style == Style::Impulses);
    CHECK(panel.series[3].x == std::vector<double>{1, 2, 3, 4, 5});
    // Of two values the band is wider than any correlation.
    auto data = MakeDataset({"x"}, 2);
    data->data.col(1) << 1, 2;
    Progress progress;
    auto const narrow = MakeFigure(*data, {"x"}, PlotType::Correlogram, progress);
    CHECK(narrow.panels[0].y.high > 1.96 / std::sqrt(2.0));
}

TEST_CASE("what can't be plotted is refused in words")
{
    for (auto const type : ALL_TYPES)
    {
        CHECK(Refusal({}, type) == "no variables are given to be plotted");
        CHECK(Refusal({"x", "z"}, type) == "the dataset has no variable \"z\"");
        CHECK(Refusal({"x", "constant"}, type) == "the dataset has no variable \"constant\"");
        CHECK(Refusal({"x", "text"}, type) == "the variable \"text\" holds text");
        CHECK(Refusal({"x", "y", "x"}, type) == "\"x\" is given twice");
        CHECK(Refusal({"x", "none"}, type) == "the variable \"none\" has no value that can be plotted");
        CHECK(Refusal({"x", "huge"}, type)
              == "the variable \"huge\" has values beyond 1e+150 in size, too large to be drawn");
    }
    CHECK(Refusal({"x"}, PlotType::Scatter)
          == "a plot of type \"scatter\" needs two variables at least; the last one goes on the horizontal "
             "axis");
    CHECK(Refusal({"x"}, PlotType::Lines)
          == "a plot of type \"lines\" needs two variables at least; the last one goes on the horizontal axis");
    CHECK(Refusal({"same"}, PlotType::Density)
          == "the variable \"same\" has the same value at all observations, and such values have no density");
    CHECK(Refusal({"same"}, PlotType::Correlogram)
          == "the variable \"same\" has the same value at all observations, or no two near each other, and "
             "so no autocorrelations");
    std::vector<std::string> many;
    for (int i = 0; i < 26; ++i)
        many.push_back("v" + std::to_string(i));
    CHECK(Refusal(many, PlotType::History) == "a figure takes at most 25 variables, but 26 are given");
}

TEST_CASE("variables that never have a value at one observation are refused as a pair")
{
    auto data = MakeDataset({"x", "y"}, 2);
    data->data.col(1) << 1, MISSING;
    data->data.col(2) << MISSING, 1;
    Progress progress;
    for (auto const type : {PlotType::Scatter, PlotType::Lines})
        CHECK(ErrorOf([&] { MakeFigure(*data, {"y", "x"}, type, progress); })
              == "no observation has values of both \"y\" and \"x\" that can be plotted");
}

TEST_CASE("one observation is plotted where that has a meaning")
{
    auto data = MakeDataset({"x", "y"}, 1);
    data->data.col(1) << 3;
    data->data.col(2) << 4;
    Progress progress;
    for (auto const type : {PlotType::Histogram, PlotType::History, PlotType::Scatter, PlotType::Lines})
        for (auto const& panel : MakeFigure(*data, {"x", "y"}, type, progress).panels)
        {
            CHECK(panel.x.low < panel.x.high);
            CHECK(panel.y.low < panel.y.high);
            CHECK(panel.series.back().x.size() == 1);
        }
    CHECK(ErrorOf([&] { MakeFigure(*data, {"x"}, PlotType::Density, progress); })
          == "the variable \"x\" has the same value at all observations, and such values have no density");
    CHECK(ErrorOf([&] { MakeFigure(*data, {"x"}, PlotType::Correlogram, progress); })
          == "the variable \"x\" has one value only, and needs two at least for a correlogram");
    data->data.resize(0, 3);
    CHECK(ErrorOf([&] { MakeFigure(*data, {"x"}, PlotType::History, progress); })
          == "the variable \"x\" has no value that can be plotted");
}

TEST_CASE("an axis is never shorter than what its numbers can tell apart")
{
    auto const flat = Make({"same"}, PlotType::History).panels[0].y;
    CHECK(flat.low == Approx(6.3));
    CHECK(flat.high == Approx(7.7));
    auto const far = Make({"far"}, PlotType::History).panels[0].y;
    CHECK(far.high - far.low > 1e13);
}

TEST_CASE("the computation of a density can be stopped")
{
    Meter meter;
    meter.stopAt = 3;
    CHECK_THROWS_AS(MakeFigure(*Data(), {"y"}, PlotType::Density, meter), Interrupted);
}
