#include "workbench/estimation/EstimateRegression.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"

using workbench::EstimateRegression;
using workbench::RegressionTerms;
using workbench::SamplerSettings;

namespace
{
/// Fifty observations on y, x, z and the text t, the third of which misses x.
std::shared_ptr<Dataset> Data()
{
    auto const dataset = workbench::MakeDataset({"y", "x", "z", "t"}, 50);
    dataset->name = "data";
    for (Eigen::Index i = 0; i < 50; ++i)
    {
        double const t = static_cast<double>(i);
        dataset->data.row(i) << 1, 3 - 2 * std::sin(t) + 0.5 * std::cos(11 * t), std::sin(t), 0.1 * t, 0;
    }
    dataset->data(2, 2) = std::numeric_limits<double>::quiet_NaN();
    dataset->labelledColumns[4] = {{"a"}, std::vector<std::string>(50, "a")};
    return dataset;
}

SamplerSettings const SHORT{300, 50, 2, 2, 5};

std::shared_ptr<Model> Estimate(Dataset const& dataset, RegressionTerms const& terms,
                                SamplerSettings const& settings = SHORT)
{
    workbench::Progress progress;
    return EstimateRegression(dataset, terms, workbench::DefaultRegressionPrior(terms.Coefficients()),
                              settings, progress);
}

std::string Refusal(Dataset const& dataset, RegressionTerms const& terms)
{
    return ErrorOf([&] { Estimate(dataset, terms); });
}
} // namespace

TEST_CASE("an estimated regression knows all of itself")
{
    auto const model = Estimate(*Data(), {"y", {"x", "z"}});
    CHECK(model->type == "linear regression");
    CHECK(model->dataset == "data");
    CHECK(model->dependent == "y");
    CHECK(model->independent == std::vector<std::string>{"constant", "x", "z"});
    CHECK(model->drawNames == std::vector<std::string>{"constant", "x", "z", "tau", "sigma"});
    CHECK(model->chains == 2);
    REQUIRE(model->draws.rows() == 600);
    REQUIRE(model->draws.cols() == 5);
    CHECK(model->draws.allFinite());
    CHECK((model->draws.col(4).array().square().inverse() / model->draws.col(3).array() - 1)
              .abs()
              .maxCoeff()
          < 1e-14);
    CHECK(model->draws.col(0).mean() == Approx(3).margin(0.2));
    CHECK(model->draws.col(1).mean() == Approx(-2).margin(0.2));

    CHECK(model->results.size() == 6);
    CHECK(model->results.at("logML").rows() == 1);
    CHECK(model->results.at("logML").cols() == 2);
    CHECK(model->results.at("logML")(0, 0) == Approx(model->results.at("logML")(0, 1)).margin(0.5));
    CHECK(model->results.at("observations") == Eigen::MatrixXd(Eigen::RowVector2d(49, 1)));
    CHECK(model->results.at("sampler") == (Eigen::MatrixXd(1, 5) << 300, 50, 2, 2, 5).finished());
    CHECK(model->results.at("prior_mean") == Eigen::MatrixXd::Zero(3, 1));
    CHECK(model->results.at("prior_precision") == 1e-4 * Eigen::MatrixXd::Identity(3, 3));
    CHECK(model->results.at("prior_tau") == Eigen::MatrixXd(Eigen::RowVector2d(0.001, 0.001)));
}

TEST_CASE("a seed gives the same draws again, another seed others")
{
    RegressionTerms const terms{"y", {"x"}};
    auto const first = Estimate(*Data(), terms);
    CHECK(Estimate(*Data(), terms)->draws == first->draws);
    auto other = SHORT;
    other.seed = 6;
    CHECK(Estimate(*Data(), terms, other)->draws != first->draws);
    // The chains differ, and another chain leaves the others as they are.
    CHECK(first->draws.topRows(300) != first->draws.bottomRows(300));
    auto more = SHORT;
    more.chains = 3;
    CHECK(Estimate(*Data(), terms, more)->draws.topRows(600) == first->draws);
}

TEST_CASE("a regression without a constant, and one with nothing else")
{
    auto const without = Estimate(*Data(), {"y", {"z"}, false});
    CHECK(without->drawNames == std::vector<std::string>{"z", "tau", "sigma"});
    CHECK(without->independent == std::vector<std::string>{"z"});
    auto const alone = Estimate(*Data(), {"y", {}});
    CHECK(alone->drawNames == std::vector<std::string>{"constant", "tau", "sigma"});
    CHECK(alone->results.at("observations") == Eigen::MatrixXd(Eigen::RowVector2d(50, 0)));
}

TEST_CASE("regressors keep their names, and the other parameters give way")
{
    auto const dataset = Data();
    dataset->varNames[2] = "tau";
    dataset->varNames[3] = "sigma";
    CHECK(Estimate(*dataset, {"y", {"tau", "sigma"}})->drawNames
          == std::vector<std::string>{"constant", "tau", "sigma", "tau_2", "sigma_2"});
    dataset->varNames[3] = "tau_2";
    CHECK(Estimate(*dataset, {"y", {"tau", "tau_2"}})->drawNames
          == std::vector<std::string>{"constant", "tau", "tau_2", "tau_3", "sigma"});
}

TEST_CASE("what can't be estimated is refused in words")
{
    auto const dataset = Data();
    CHECK(Refusal(*dataset, {"y", {}, false}) == "the regression has no regressor");
    CHECK(Refusal(*dataset, {"w", {"x"}}) == "the dataset has no variable \"w\"");
    CHECK(Refusal(*dataset, {"y", {"x", "w"}}) == "the dataset has no variable \"w\"");
    CHECK(Refusal(*dataset, {"y", {"x", "y"}}) == "\"y\" is given twice");
    CHECK(Refusal(*dataset, {"y", {"t"}}) == "the variable \"t\" holds text");
    CHECK(Refusal(*dataset, {"t", {"x"}}) == "the variable \"t\" holds text");
    dataset->data.col(3).setConstant(std::numeric_limits<double>::quiet_NaN());
    CHECK(Refusal(*dataset, {"y", {"x", "z"}}) == "no observation has values of all variables");
    dataset->data(0, 3) = 1;
    CHECK(Refusal(*dataset, {"y", {"x", "z"}, false})
          == "the dependent variable \"y\" has the same value everywhere");
    dataset->data(1, 3) = 2;
    CHECK(Refusal(*dataset, {"y", {"x", "z"}})
          == "there are fewer observations with values of all variables (2) than coefficients (3)");
    dataset->data(1, 2) = std::numeric_limits<double>::infinity();
    CHECK(Refusal(*dataset, {"y", {"x", "z"}}) == "the variable \"x\" has infinite values");
    workbench::Progress progress;
    CHECK(ErrorOf(
              [&] {
        EstimateRegression(*Data(), {"y", {"x"}}, workbench::DefaultRegressionPrior(3), SHORT, progress);
    }) == "the prior mean has 3 elements, but the number of coefficients is 2");
}

TEST_CASE("an estimation can be stopped wherever it is")
{
    SamplerSettings const endless{100, std::int64_t{1} << 50, 3, 1, 1};
    for (int const stopAt : {1, 2, 3, 5})
    {
        Meter meter;
        meter.stopAt = stopAt;
        CHECK_THROWS_AS(EstimateRegression(*Data(), {"y", {"x"}}, workbench::DefaultRegressionPrior(2),
                                           endless, meter),
                        workbench::Interrupted);
        CHECK(meter.begun.size() == static_cast<std::size_t>(meter.ended));
    }
}
