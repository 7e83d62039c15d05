#include "workbench/estimation/RegressionData.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include <Eigen/QR>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/estimation/NistData.h"
#include "workbench/estimation/TriangularFactor.h"

using workbench::DesignMatrix;
using workbench::RegressionData;

namespace
{
double const INF = std::numeric_limits<double>::infinity();

/// To how many digits `value` is `certified`.
double Digits(double value, double certified)
{
    auto const error = std::abs(value - certified) / std::abs(certified);
    return error == 0 ? 16 : -std::log10(error);
}

Eigen::VectorXd LeastSquares(RegressionData const& data)
{
    return data.factor.triangularView<Eigen::Upper>().solve(data.target);
}

/// A design of `rows` observations on y, a, b and c.
DesignMatrix Design(Eigen::Index rows)
{
    DesignMatrix design;
    design.columns = {"y", "a", "b", "c"};
    design.values.resize(rows, 4);
    for (Eigen::Index i = 0; i < rows; ++i)
    {
        double const t = static_cast<double>(i);
        design.values.row(i) << std::sin(t), std::cos(t), 0.01 * t - 3.0, std::sin(t * t);
    }
    return design;
}

std::string Refusal(DesignMatrix const& design, bool constant = true)
{
    workbench::Progress progress;
    return ErrorOf([&] { workbench::ReduceRegression(design, constant, progress); });
}
} // namespace

TEST_CASE("least squares by way of the reduced data has the certified digits")
{
    std::map<std::string, double> const digits = {{"Norris", 12},  {"Pontius", 11}, {"NoInt1", 14},
                                                  {"NoInt2", 14},  {"Filip", 7},    {"Longley", 11},
                                                  {"Wampler3", 9}, {"Wampler4", 7}, {"Wampler5", 5}};
    for (auto const& regression : NistRegressions())
    {
        INFO(regression.name);
        auto const data = regression.Reduce();
        auto const beta = LeastSquares(data);
        REQUIRE(beta.size() == static_cast<Eigen::Index>(regression.coefficients.size()));
        double worst = 16;
        for (Eigen::Index i = 0; i < beta.size(); ++i)
            worst =
                std::min(worst, Digits(beta[i], regression.coefficients[static_cast<std::size_t>(i)]));
        CHECK(worst >= digits.at(regression.name));
        double const deviation = std::sqrt(data.squares / regression.Freedom());
        CHECK(Digits(deviation, regression.deviation) >= 8);
    }
}

TEST_CASE("the data come in blocks, and their number does not matter")
{
    for (Eigen::Index const rows : {4, 5, 1023, 1024, 1025, 2048, 2500})
    {
        CAPTURE(rows);
        auto const design = Design(rows);
        workbench::Progress progress;
        auto const data = workbench::ReduceRegression(design, true, progress);
        CHECK(data.observations == rows);
        CHECK(data.regressors == std::vector<std::string>{"constant", "a", "b", "c"});
        Eigen::MatrixXd x(rows, 4);
        x << Eigen::VectorXd::Ones(rows), design.values.rightCols(3);
        Eigen::VectorXd const y = design.values.col(0);
        Eigen::MatrixXd const betas = Eigen::MatrixXd::Random(3, 4);
        auto const squares = data.SquaresAt(betas);
        for (Eigen::Index i = 0; i < 3; ++i)
            CHECK(squares[i] == Approx((y - x * betas.row(i).transpose()).squaredNorm()));
        Eigen::VectorXd const beta = x.householderQr().solve(y);
        CHECK((LeastSquares(data) - beta).norm() < 1e-9 * beta.norm());
        CHECK(data.factor.triangularView<Eigen::StrictlyLower>().toDenseMatrix().isZero());
    }
}

TEST_CASE("without a constant the regressors are the variables alone")
{
    workbench::Progress progress;
    auto const data = workbench::ReduceRegression(Design(10), false, progress);
    CHECK(data.regressors == std::vector<std::string>{"a", "b", "c"});
    CHECK(data.Coefficients() == 3);
}

TEST_CASE("the units of the variables change no digit")
{
    auto design = Design(50);
    workbench::Progress progress;
    auto const plain = workbench::ReduceRegression(design, true, progress);
    design.values.col(2) *= std::ldexp(1.0, 40);
    design.values.col(3) *= std::ldexp(1.0, -60);
    auto const scaled = workbench::ReduceRegression(design, true, progress);
    CHECK(LeastSquares(scaled)[2] == std::ldexp(LeastSquares(plain)[2], -40));
    CHECK(LeastSquares(scaled)[3] == std::ldexp(LeastSquares(plain)[3], 60));
    CHECK(scaled.squares == plain.squares);
}

TEST_CASE("what can't be a linear regression is refused in words")
{
    auto design = Design(10);
    design.values.col(3) = 2.0 * design.values.col(1) - 0.1 * design.values.col(2);
    CHECK(Refusal(design)
          == "the regressor \"c\" is a linear combination of those before it: leave out one of them");
    design.values.col(2).setConstant(7.0);
    CHECK(Refusal(design)
          == "the regressor \"b\" is a linear combination of those before it: leave out one of them");
    CHECK(Refusal(design, false) == "(no error)");
    design.values.col(1).setZero();
    CHECK(Refusal(design) == "the regressor \"a\" is zero everywhere");

    // Units that are far apart make nothing collinear, and nearly collinear is not collinear.
    design = Design(10);
    design.values.col(1) *= 1e100;
    design.values.col(3) = (design.values.col(2).array() + 1e-7 * design.values.col(3).array()) * 1e-100;
    CHECK(Refusal(design) == "(no error)");

    design = Design(10);
    design.values.col(0).setConstant(0.3);
    CHECK(Refusal(design) == "the dependent variable \"y\" has the same value everywhere");
    design = Design(10);
    design.values(4, 2) = -INF;
    CHECK(Refusal(design) == "the variable \"b\" has infinite values");
    design.values(4, 0) = INF;
    CHECK(Refusal(design) == "the variable \"y\" has infinite values");
    design = Design(10);
    design.values(4, 2) = 1e200;
    CHECK(Refusal(design) == "the values of the variable \"b\" are too large to be squared");
    design = Design(10);
    design.values.col(3) *= 1e-200;
    CHECK(Refusal(design) == "the values of the variable \"c\" are too small to be squared");

    CHECK(Refusal(Design(3))
          == "there are fewer observations with values of all variables (3) than "
             "coefficients (4)");
    CHECK(Refusal(Design(3), false) == "(no error)");
    design = Design(5);
    design.values.conservativeResize(5, 1);
    design.columns = {"y"};
    CHECK(Refusal(design, false) == "the regression has no regressor");
    CHECK(Refusal(design) == "(no error)");
    design = Design(5);
    design.columns[2] = "constant";
    CHECK(Refusal(design) == "\"constant\" is given twice");
    CHECK(Refusal(design, false) == "(no error)");
}

TEST_CASE("reducing many observations reports its progress and can be stopped")
{
    auto const design = Design(10000);
    Meter meter;
    workbench::ReduceRegression(design, true, meter);
    CHECK(meter.begun == std::vector<std::string>{"Reducing the observations"});
    CHECK(meter.fractions.size() == 10);
    CHECK(meter.ended == 1);
    for (int stopAt = 1; stopAt <= 10; ++stopAt)
    {
        Meter stopping;
        stopping.stopAt = stopAt;
        CHECK_THROWS_AS(workbench::ReduceRegression(design, true, stopping), workbench::Interrupted);
        CHECK(stopping.ended == 1);
    }
}

TEST_CASE("the factor of no rows is zero, and of few rows as good as of many")
{
    workbench::TriangularFactor factor(3);
    CHECK(factor.R().isZero());
    Eigen::MatrixXd rows(2, 3);
    rows << 1, 2, 3, 4, 5, 6;
    factor.Add(rows.topRows(1));
    factor.Add(rows.bottomRows(1));
    CHECK((factor.R().transpose() * factor.R()).isApprox(rows.transpose() * rows));
}
