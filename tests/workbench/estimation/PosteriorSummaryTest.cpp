#include "workbench/estimation/PosteriorSummary.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/Recorder.h"
#include "workbench/estimation/Convergence.h"

using workbench::DrawSummary;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

/// A model whose one quantity has these draws.
Model Of(std::vector<double> const& draws, int chains = 1)
{
    Model model;
    model.drawNames = {"beta[2]"};
    model.chains = chains;
    model.draws =
        Eigen::Map<Eigen::VectorXd const>(draws.data(), static_cast<Eigen::Index>(draws.size()));
    return model;
}

DrawSummary Summary(Model const& model)
{
    workbench::Progress progress;
    auto const summaries = workbench::SummarizeDraws(model, progress);
    REQUIRE(summaries.size() == 1);
    CHECK(summaries[0].name == "beta[2]");
    return summaries[0];
}

bool IsNothing(DrawSummary const& summary)
{
    return std::isnan(summary.mean) && std::isnan(summary.deviation) && std::isnan(summary.error)
           && std::isnan(summary.effectiveSize) && std::isnan(summary.rHat)
           && std::all_of(summary.quantiles.begin(), summary.quantiles.end(),
                          [](double quantile) { return std::isnan(quantile); });
}
} // namespace

TEST_CASE("draws are summarized by what is known of them")
{
    std::vector<double> draws(41);
    for (std::size_t i = 0; i < draws.size(); ++i)
        draws[i] = static_cast<double>((i * 17) % 41);
    auto const summary = Summary(Of(draws));
    CHECK(summary.mean == Approx(20));
    CHECK(summary.deviation == Approx(std::sqrt(41 * 42 / 12.0)));
    CHECK(summary.quantiles[0] == Approx(1));
    CHECK(summary.quantiles[1] == Approx(2));
    CHECK(summary.quantiles[2] == Approx(20));
    CHECK(summary.quantiles[3] == Approx(38));
    CHECK(summary.quantiles[4] == Approx(39));
    Eigen::MatrixXd const chain = Of(draws).draws;
    CHECK(summary.effectiveSize == workbench::EffectiveSize(chain));
    CHECK(summary.rHat == workbench::RHat(chain));
    CHECK(summary.error == Approx(summary.deviation / std::sqrt(summary.effectiveSize)));
}

TEST_CASE("the chains are told apart")
{
    std::vector<double> draws(100);
    for (std::size_t i = 0; i < draws.size(); ++i)
        draws[i] = std::sin(static_cast<double>(i * i)) + (i < 50 ? 0 : 5);
    CHECK(Summary(Of(draws, 2)).rHat > 1.5);
    Eigen::MatrixXd const chains = Of(draws).draws.reshaped(50, 2);
    CHECK(Summary(Of(draws, 2)).rHat == workbench::RHat(chains));
    // A number of chains that cannot be: as one.
    for (int const wrong : {0, 3, -1})
        CHECK(Summary(Of(draws, wrong)).rHat == workbench::RHat(Of(draws).draws));
}

TEST_CASE("few, equal, missing and infinite draws tell what they can")
{
    auto const one = Summary(Of({3.5}));
    CHECK(one.mean == 3.5);
    CHECK(std::isnan(one.deviation));
    for (double const quantile : one.quantiles)
        CHECK(quantile == 3.5);
    CHECK(std::isnan(one.error));
    CHECK(std::isnan(one.effectiveSize));
    CHECK(std::isnan(one.rHat));

    auto const equal = Summary(Of({0.1, 0.1, 0.1, 0.1, 0.1}));
    CHECK(equal.mean == Approx(0.1));
    CHECK(equal.deviation == Approx(0).margin(1e-15));
    CHECK(equal.quantiles[2] == 0.1);
    CHECK(std::isnan(equal.error));
    CHECK(std::isnan(equal.rHat));

    CHECK(IsNothing(Summary(Of({}))));
    CHECK(IsNothing(Summary(Of({1, NA, 3, 4, 5}))));
    auto const infinite = Summary(Of({1, 2, 3, 4, std::numeric_limits<double>::infinity()}));
    CHECK(std::isinf(infinite.mean));
    CHECK(infinite.quantiles[2] == 3);
    CHECK(std::isnan(infinite.error));
}

TEST_CASE("draws that do not fit their names are none")
{
    auto model = Of({1, 2, 3, 4, 5});
    model.draws.conservativeResize(5, 2);
    CHECK(IsNothing(Summary(model)));
    model.draws.resize(0, 0);
    CHECK(IsNothing(Summary(model)));
    workbench::Progress progress;
    CHECK(workbench::SummarizeDraws(Model(), progress).empty());
}

TEST_CASE("a summary of many quantities reports its progress and can be stopped")
{
    Model model;
    model.drawNames = {"a", "b", "c", "d"};
    model.draws = Eigen::MatrixXd::Random(20, 4);
    model.chains = 2;
    Meter meter;
    workbench::SummarizeDraws(model, meter);
    CHECK(meter.begun == std::vector<std::string>{"Summarizing the draws"});
    CHECK(meter.fractions == std::vector<double>{0, 0.25, 0.5, 0.75});
    meter.stopAt = 6;
    CHECK_THROWS_AS(workbench::SummarizeDraws(model, meter), workbench::Interrupted);
    CHECK(meter.ended == 2);
}
