#include <catch2/catch.hpp>

#include <cmath>
#include <random>

#include "workbench/analysis/Effects.h"
#include "workbench/analysis/RegressionDesk.h"
#include "workbench/analysis/RegressionDraws.h"

namespace
{
/// What is told of two draws.
Eigen::RowVectorXd SpreadOfTwo(double a, double b)
{
    auto const low = std::min(a, b);
    auto const width = std::abs(a - b);
    Eigen::RowVectorXd spread(5);
    spread << (a + b) / 2, width / std::sqrt(2.0), low + 0.05 * width, low + 0.5 * width, low + 0.95 * width;
    return spread;
}

/// The effects of x and z by the two draws.
Eigen::MatrixXd Table(double x1, double x2, double z1, double z2)
{
    Eigen::MatrixXd table(2, 5);
    table << SpreadOfTwo(x1, x2), SpreadOfTwo(z1, z2);
    return table;
}
} // namespace

TEST_CASE("a marginal effect is the coefficient, wherever it is looked at")
{
    RegressionDesk desk;
    CHECK(desk.Run("e = mfx(m);")
          == "\nModel m, marginal effects dE(y)/dx at the mean of the data: 2 draws\n"
             "x\t     at\tmean\tst.dev.\t  5%\tmedian\t95%\n"
             "x\t2.33333\t   3\t1.41421\t 2.1\t     3\t3.9\n"
             "z\t1.33333\t   0\t1.41421\t-0.9\t     0\t0.9\n");
    auto const expected = Table(2, 4, 1, -1);
    CHECK(Near(desk.Matrix("e"), expected));
    for (auto const* const point : {"\"mean\"", "\"median\"", "\"x_i\"", "[7, -8]", "[7; -8]"})
    {
        desk.Run(std::string("e = mfx(m, \"point\"=") + point + ", \"type\"=1);");
        CHECK(Near(desk.Matrix("e"), expected));
    }
    CHECK(desk.output.warnings.empty());
}

TEST_CASE("semi-elasticities and elasticities at the points of the dialog")
{
    RegressionDesk desk;
    // At the mean 7/3 and 4/3 E(y) is 7 and 11.
    desk.Run("e = mfx(m, \"type\"=2);");
    CHECK(Near(desk.Matrix("e"), Table(2 / 7.0, 4 / 11.0, 1 / 7.0, -1 / 11.0)));
    desk.Run("e = mfx(m, \"point\"=\"mean\", \"type\"=3);");
    CHECK(Near(desk.Matrix("e"), Table(2 / 3.0, 28 / 33.0, 4 / 21.0, -4 / 33.0)));
    // At the median 2 and 1 it is 6 and 10.
    CHECK(desk.Run("e = mfx(m, \"point\"=\"median\", \"type\"=2);")
          == "\nModel m, semi-elasticities dlnE(y)/dx at the median of the data: 2 draws\n"
             "x\tat\t     mean\t  st.dev.\t        5%\t   median\t      95%\n"
             "x\t 2\t 0.366667\t0.0471405\t  0.336667\t 0.366667\t 0.396667\n"
             "z\t 1\t0.0333333\t 0.188562\t-0.0866667\t0.0333333\t 0.153333\n");
    desk.Run("e = mfx(m, \"point\"=\"median\", \"type\"=3);");
    CHECK(Near(desk.Matrix("e"), Table(4 / 6.0, 8 / 10.0, 1 / 6.0, -1 / 10.0)));
    // A point as the dialog writes it.
    CHECK(desk.Run("e = mfx(m,\n\t\"point\"=[2, 1]\n\t, \"type\"=3);")
              .find("elasticities dlnE(y)/dlnx at the given point: 2 draws")
          != std::string::npos);
    CHECK(Near(desk.Matrix("e"), Table(4 / 6.0, 8 / 10.0, 1 / 6.0, -1 / 10.0)));
    CHECK(desk.output.warnings.empty());
}

TEST_CASE("over the observations effects are averaged, not the observations")
{
    RegressionDesk desk;
    auto const first = (1 / 5.0 + 1 / 6.0 + 1 / 10.0) / 3;
    auto const second = (1 / 5.0 + 1 / 10.0 + 1 / 18.0) / 3;
    auto const text = desk.Run("e = mfx(m, \"point\"=\"x_i\", \"type\"=2);");
    CHECK(text.find("\nModel m, semi-elasticities dlnE(y)/dx on average over 3 observations: 2 draws\n"
                    "x\t     mean\t")
          == 0);
    CHECK(Near(desk.Matrix("e"), Table(2 * first, 4 * second, first, -second)));
    desk.Run("e = mfx(m, \"point\"=\"x_i\", \"type\"=3);");
    CHECK(Near(desk.Matrix("e"),
               Table(2 * (1 / 5.0 + 2 / 6.0 + 4 / 10.0) / 3, 4 * (1 / 5.0 + 2 / 10.0 + 4 / 18.0) / 3,
                     (2 / 5.0 + 1 / 6.0 + 1 / 10.0) / 3, -(2 / 5.0 + 1 / 10.0 + 1 / 18.0) / 3)));
}

TEST_CASE("draws whose expected value has no logarithm are left out and told")
{
    RegressionDesk desk;
    auto const text = desk.Run("e = mfx(m, \"point\"=[-0.6, 0], \"type\"=2);"); // E(y) is -0.2 and 0.6
    CHECK(text
          == "\nModel m, semi-elasticities dlnE(y)/dx at the given point: 1 draw\n"
             "x\t  at\t     mean\tst.dev.\t       5%\t   median\t      95%\n"
             "x\t-0.6\t  6.66667\t      .\t  6.66667\t  6.66667\t  6.66667\n"
             "z\t   0\t -1.66667\t      .\t -1.66667\t -1.66667\t -1.66667\n");
    CHECK(desk.output.warnings
          == std::vector<std::string>{"Left out: 1 draw of 2, in which the expected value of \"y\" is not "
                                      "positive and has no logarithm."});
    CHECK(desk.Failure("mfx(m, \"point\"=[-1, 0], \"type\"=2);")
          == "Line 1, column 1: the expected value of \"y\" is positive in no draw, and so has no logarithm");
}

TEST_CASE("a variable that is not positive has no elasticity")
{
    RegressionDesk desk;
    auto const text = desk.Run("mfx(m, \"point\"=[1, 0], \"type\"=3);");
    CHECK(text.find("\nz\t 0\t        .\t") != std::string::npos);
    CHECK(desk.output.warnings
          == std::vector<std::string>{"There is no elasticity with respect to \"z\", which is not positive there "
                                      "and has no logarithm."});
}

TEST_CASE("many draws and points give what each by itself does")
{
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> uniform(0.1, 1.0);
    auto const numbers = [&](Eigen::Index rows, Eigen::Index columns)
    { return Eigen::MatrixXd::NullaryExpr(rows, columns, [&] { return uniform(random); }).eval(); };
    auto const points = numbers(2100, 2);
    auto draws = numbers(300, 5);
    draws.col(0).array() -= 0.5; // In some draws E(y) is not positive somewhere.
    auto const model = RegressionOfDraws("y", {"constant", "a", "b"}, draws);
    workbench::RegressionDraws const regression(*model, "m");
    workbench::Progress progress;
    for (auto const type : {workbench::EffectType::SemiElasticity, workbench::EffectType::Elasticity})
    {
        auto const effects = workbench::EffectsAt(regression, points, type, progress);
        Eigen::Index kept = 0;
        for (Eigen::Index draw = 0; draw < draws.rows(); ++draw)
        {
            Eigen::ArrayXd const expected = draws(draw, 0) + points.col(0).array() * draws(draw, 1)
                                            + points.col(1).array() * draws(draw, 2);
            if (expected.minCoeff() <= 0.0)
                continue;
            Eigen::RowVector2d factors = Eigen::RowVector2d::Constant(expected.inverse().mean());
            if (type == workbench::EffectType::Elasticity)
                factors << (points.col(0).array() / expected).mean(), (points.col(1).array() / expected).mean();
            Eigen::RowVector2d const effect = draws.block(draw, 1, 1, 2).cwiseProduct(factors);
            CHECK((effects.draws.row(kept++) - effect).cwiseAbs().maxCoeff() < 1e-9 * effect.norm());
        }
        CHECK(effects.draws.rows() == kept);
        CHECK(effects.omitted == draws.rows() - kept);
        CHECK(effects.omitted > 0);
    }
}

TEST_CASE("effects that can't be had are one error with its place")
{
    RegressionDesk desk;
    auto const refusal = [&](std::string const& options) { return desk.Failure("mfx(m" + options + ");"); };
    CHECK(desk.Failure("mfx(bare);")
          == "Line 1, column 1: the model \"bare\" is no linear regression, and of another model no more is "
             "known than its draws");
    CHECK(desk.Failure("mfx(mean);")
          == "Line 1, column 1: the model \"mean\" has no regressor but the constant");
    CHECK(desk.Failure("mfx(lost);")
          == "Line 1, column 1: the dataset \"gone\", on which the model \"lost\" was estimated, is not in the "
             "workspace");
    for (auto const* const type : {"0", "4", "1.5", "-1"})
        CHECK(refusal(std::string(", \"type\"=") + type)
              == "Line 1, column 15: the type is a whole number from 1 to 3");
    CHECK(refusal(", \"point\"=\"mode\"")
          == "Line 1, column 16: expected \"mean\", \"median\", \"x_i\" or a matrix as the point, but found "
             "\"mode\"");
    CHECK(refusal(", \"point\"=[1, 2, 3]")
          == "Line 1, column 16: expected 2 values as the point, one for each regressor other than the "
             "constant, but found a matrix of 1 by 3");
    CHECK(refusal(", \"point\"=[]")
          == "Line 1, column 16: expected 2 values as the point, one for each regressor other than the "
             "constant, but found a matrix of 0 by 0");
    CHECK(refusal(", \"point\"=[1, nan]")
          == "Line 1, column 16: a point has no missing and no infinite values");
    CHECK(refusal(", \"point\"=nowhere").find("there is nothing called \"nowhere\"") != std::string::npos);
    desk.meter = Meter();
    desk.meter.stopAt = 1;
    CHECK(refusal(", \"type\"=2") == "Line 1, column 1: interrupted; the statement changed nothing");

    desk.Run("create(d, \"z\", \"d.z / 0\");");
    CHECK(refusal("") == "Line 1, column 1: the variable \"z\" has infinite values");
    desk.Run("drop(d, \"z\");");
    CHECK(refusal("") == "Line 1, column 1: the dataset has no variable \"z\"");
    desk.Run("mfx(m, \"point\"=[1, 2], \"type\"=3);"); // needs no data
}
