#include <catch2/catch.hpp>

#include <cmath>

#include "workbench/Scratch.h"
#include "workbench/analysis/ModelMaking.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/plot/Autocorrelation.h"
#include "workbench/plot/Figure.h"

using namespace workbench;

namespace
{
/// Two chains of six draws around different values.
std::shared_ptr<Model> Sampled()
{
    Eigen::MatrixXd draws(12, 3);
    draws.col(0) << 1, 3, 2, 4, 1, 3, 11, 13, 12, 14, 11, 13;
    draws.col(1) << 2, 1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11;
    draws.col(2).setConstant(7);
    return ModelOfDraws({"beta[1]", "tau", "fixed"}, draws, 2);
}

Figure Make(std::vector<std::string> const& names, PlotType type, int chains = 2)
{
    auto const model = Sampled();
    model->chains = chains;
    Progress progress;
    return MakeFigure(*model, names, type, progress);
}
} // namespace

TEST_CASE("all plots of a draw are in one figure")
{
    auto const figure = Make({"beta[1]"}, PlotType::All);
    CHECK(figure.title == "all plots of beta[1]");
    CHECK(figure.columns == 2);
    REQUIRE(figure.panels.size() == 4);
    CHECK(figure.panels[0].yLabel == "Frequency");
    CHECK(figure.panels[1].xLabel == "Draw");
    CHECK(figure.panels[2].yLabel == "Density");
    CHECK(figure.panels[3].yLabel == "ACF of beta[1]");

    auto const two = Make({"tau", "beta[1]"}, PlotType::All);
    CHECK(two.columns == 4);
    REQUIRE(two.panels.size() == 8);
    CHECK(two.panels[0].xLabel == "tau");
    CHECK(two.panels[4].xLabel == "beta[1]");
}

TEST_CASE("a history has the chains one behind the other")
{
    auto const panel = Make({"beta[1]"}, PlotType::History).panels.at(0);
    CHECK(panel.xLabel == "Draw");
    CHECK(panel.yLabel == "beta[1]");
    CHECK(panel.series.at(0).y == std::vector<double>{1, 3, 2, 4, 1, 3, 11, 13, 12, 14, 11, 13});
}

TEST_CASE("a correlogram looks at pairs within the chains")
{
    auto const strokes = Make({"beta[1]"}, PlotType::Correlogram).panels.at(0).series.at(3);
    // Around the mean 22/3 the deviations are in thirds; six draws apart there is no pair.
    REQUIRE(strokes.x == std::vector<double>{1, 2, 3, 4, 5});
    auto const d = (3 * Sampled()->draws.col(0).array() - 22).eval();
    auto const pairs = (d.segment(0, 5) * d.segment(1, 5)).sum() + (d.segment(6, 5) * d.segment(7, 5)).sum();
    CHECK(strokes.y[0] == Approx(pairs / 11 / (d.square().sum() / 12)));
    // As one chain, the step from one to the other counts.
    auto const joined = Make({"beta[1]"}, PlotType::Correlogram, 1).panels.at(0).series.at(3);
    CHECK(joined.y[0] == Approx((pairs + d[5] * d[6]) / d.square().sum()));
}

TEST_CASE("draws are plotted against each other too")
{
    auto const figure = Make({"beta[1]", "tau"}, PlotType::Scatter);
    CHECK(figure.title == "scatter of beta[1] against tau");
    CHECK(figure.description == "beta[1] and tau: 12 draws, 0 left out\n");
    CHECK(Make({"beta[1]", "tau"}, PlotType::Lines).panels.size() == 1);
}

TEST_CASE("draws that can't be plotted are refused in words")
{
    auto const refusal = [](std::vector<std::string> const& names, PlotType type)
    { return ErrorOf([&] { Make(names, type); }); };
    CHECK(refusal({}, PlotType::All) == "no draws are given to be plotted");
    CHECK(refusal({"sigma"}, PlotType::All) == "the model has no draw \"sigma\"");
    CHECK(refusal({"tau", "tau"}, PlotType::All) == "\"tau\" is given twice");
    CHECK(refusal({"fixed"}, PlotType::All)
          == "the draw \"fixed\" has the same value at all draws, and such values have no density");
    CHECK(refusal({"fixed"}, PlotType::Correlogram)
          == "the draw \"fixed\" has the same value at all draws, or no two near each other, and so no "
             "autocorrelations");
    CHECK(refusal({"tau"}, PlotType::Scatter)
          == "a plot of type \"scatter\" needs two draws at least; the last one goes on the horizontal axis");
    CHECK(refusal({"a", "b", "c", "d", "e", "f", "g"}, PlotType::All)
          == "a figure of all types takes at most 6 draws, but 7 are given");
}
