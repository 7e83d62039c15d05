#include <catch2/catch.hpp>

#include <cmath>
#include <random>

#include "workbench/analysis/Predictions.h"
#include "workbench/analysis/RegressionDesk.h"
#include "workbench/analysis/RegressionDraws.h"
#include "workbench/plot/Distribution.h"

namespace
{
double constexpr NA = RegressionDesk::NA;

/// The standard normal distribution function.
double Phi(double z) { return 0.5 * std::erfc(-z / std::sqrt(2.0)); }
} // namespace

TEST_CASE("by default the expected value at the posterior mean is predicted")
{
    RegressionDesk desk;
    CHECK(desk.Run("predict(m, d);") == "\nd.p_y: 6 observations, 2 missing\n");
    CHECK(Near(desk.Values("d", "p_y"), (Eigen::VectorXd(6) << 5, 8, 11, 14, NA, NA).finished()));
    desk.Run("predict(m, d, \"prefix\" = hat_, \"type\"=1);");
    CHECK(Near(desk.Values("d", "hat_y"), desk.Values("d", "p_y")));
    CHECK(desk["d"].varNames.size() == 7);
}

TEST_CASE("over the draws a prediction has a mean, a deviation and two quantiles")
{
    RegressionDesk desk;
    CHECK(desk.Run("predict(m, d, \"stats\"=true);")
          == "\nd.p_y_mean: 6 observations, 2 missing\n"
             "\nd.p_y_sd: 6 observations, 2 missing\n"
             "\nd.p_y_q05: 6 observations, 2 missing\n"
             "\nd.p_y_q95: 6 observations, 2 missing\n");
    // At observation 3, where y is missing, E(y) is 9 and 13.
    CHECK(Near(desk.Values("d", "p_y_mean"), (Eigen::VectorXd(6) << 5, 8, 11, 14, NA, NA).finished()));
    CHECK(Near(desk.Values("d", "p_y_sd"),
               (Eigen::VectorXd(6) << 0, 4, 4, 8, NA, NA).finished() / std::sqrt(2.0)));
    CHECK(Near(desk.Values("d", "p_y_q05"), (Eigen::VectorXd(6) << 5, 6.2, 9.2, 10.4, NA, NA).finished()));
    CHECK(Near(desk.Values("d", "p_y_q95"), (Eigen::VectorXd(6) << 5, 9.8, 12.8, 17.6, NA, NA).finished()));
}

TEST_CASE("the second type is the probability of at most what was observed")
{
    RegressionDesk desk;
    desk.Run("predict(m, d, \"type\"=2); predict(m, d, \"prefix\" = q, \"stats\"=true, \"type\"=2);");
    // The posterior mean of sigma is 0.75.
    CHECK(Near(desk.Values("d", "p_y"),
               (Eigen::VectorXd(6) << Phi(-2 / 0.75), Phi(-3 / 0.75), NA, Phi(-6 / 0.75), NA, NA).finished()));
    // At observation 2 y is 5, and E(y) 6 with sigma 0.5, and 10 with 1.
    CHECK(desk.Values("d", "qy_mean")[1] == Approx((Phi(-2) + Phi(-5)) / 2).epsilon(1e-12));
    CHECK(desk.Values("d", "qy_sd")[1] == Approx((Phi(-2) - Phi(-5)) / std::sqrt(2.0)).epsilon(1e-12));
    CHECK(std::isnan(desk.Values("d", "qy_mean")[2]));
}

TEST_CASE("variables that are there already are replaced in their places")
{
    RegressionDesk desk;
    desk.Run("create(d, \"p_y_sd\", \"ones(  )\"); create(d, \"last\", \"ones(  )\");");
    desk.Run("predict(m, d, \"stats\"=true);");
    auto const& d = desk["d"];
    REQUIRE(d.varNames.size() == 10);
    CHECK(d.varNames[5] == "p_y_sd");
    CHECK(d.varNames[6] == "last");
    CHECK(d.varNames[7] == "p_y_mean");
    CHECK(d.data(0, 5) == 0.0);
    CHECK(d.data(0, 6) == 1.0);
}

TEST_CASE("many observations and draws give what each by itself does")
{
    constexpr Eigen::Index OBSERVATIONS = 75;
    constexpr Eigen::Index DRAWS = 301;
    std::mt19937_64 random(3);
    std::normal_distribution<double> normal;
    Eigen::MatrixXd draws = Eigen::MatrixXd::NullaryExpr(DRAWS, 4, [&] { return normal(random); });
    draws.col(3) = draws.col(3).array().exp();
    auto const model = RegressionOfDraws("y", {"x", "constant"}, draws);
    auto const data = workbench::MakeDataset({"y", "x"}, OBSERVATIONS);
    data->data.rightCols(2) = Eigen::MatrixXd::NullaryExpr(OBSERVATIONS, 2, [&] { return normal(random); });
    data->data(40, 2) = NA;
    workbench::RegressionDraws const regression(*model, "m");
    workbench::Progress progress;
    auto const values = workbench::PredictOverDraws(regression, *data, workbench::PredictionType::Probability,
                                                    progress);
    REQUIRE(values.rows() == OBSERVATIONS);
    for (Eigen::Index row = 0; row < OBSERVATIONS; ++row)
    {
        workbench::SortedValues sorted;
        for (Eigen::Index draw = 0; draw < DRAWS; ++draw)
            sorted.push_back(Phi((data->data(row, 1) - draws(draw, 0) * data->data(row, 2) - draws(draw, 1))
                                 / draws(draw, 3)));
        std::sort(sorted.begin(), sorted.end());
        Eigen::Map<Eigen::ArrayXd const> const all(sorted.data(), DRAWS);
        Eigen::RowVector4d expected(all.mean(), std::sqrt((all - all.mean()).square().sum() / (DRAWS - 1)),
                                    workbench::Quantile(sorted, 0.05), workbench::Quantile(sorted, 0.95));
        if (row == 40)
            expected.setConstant(NA);
        CHECK(Near(values.row(row), expected));
    }
}

TEST_CASE("what can't be predicted is one error with its place")
{
    RegressionDesk desk;
    CHECK(desk.Failure("predict(bare, d);")
          == "Line 1, column 1: the model \"bare\" is no linear regression, and of another model no more is "
             "known than its draws");
    for (auto const* const type : {"0", "3", "1.5", "-1", "+nan"})
        CHECK(desk.Failure(std::string("predict(m, d, \"type\"=") + type + ");")
              == "Line 1, column 22: the type is a whole number from 1 to 2");
    CHECK(desk.Failure("predict(m, d, \"prefix\"=\"p\");").find("expected a name as the option \"prefix\"")
          != std::string::npos);
    CHECK(desk.Failure("predict(m, d, \"stats\"=1);").find("expected true or false as the option \"stats\"")
          != std::string::npos);
    auto const e = workbench::MakeDataset({"z", "x"}, 3);
    e->data.setOnes();
    desk.workspace.Assign("e", e);
    CHECK(desk.Failure("predict(m, e, \"type\"=2);") == "Line 1, column 1: the dataset has no variable \"y\"");
    desk.workspace.Assign("umlaut", RegressionOfDraws("\xC3\xA4", {"x"}, Eigen::MatrixXd::Ones(2, 3)));
    CHECK(desk.Failure("predict(umlaut, e);")
          == "Line 1, column 1: \"p_\xC3\xA4\" cannot be the name of a variable: it may have letters, digits "
             "and underscores, and does not begin with a digit");
    for (auto const* const options : {"", ", \"stats\"=true"})
        for (int const stop : {1, 2})
        {
            desk.meter = Meter();
            desk.meter.stopAt = stop;
            CHECK(desk.Failure(std::string("predict(m, d") + options + ");")
                  == "Line 1, column 1: interrupted; the statement changed nothing");
        }
    CHECK(desk.output.text.empty());
}
