#include <catch2/catch.hpp>

#include <cmath>

#include "workbench/analysis/RegressionDesk.h"

namespace
{
/// The draws of the desk's model without an error.
struct ExactDesk : RegressionDesk
{
    ExactDesk()
    {
        for (auto const* const name : {"m", "mean", "lost"})
            workspace.models.at(name)->draws.rightCols(1).setZero();
    }
};
} // namespace

TEST_CASE("without values of their own the regressors stay at their means")
{
    ExactDesk desk;
    CHECK(desk.Run("f = forecast(m, 2);")
          == "\nForecast of y by m, regressors at the mean of the data, 2 draws\n"
             "period\tmean\tst.dev.\t 5%\tmedian\t 95%\n"
             "T+1   \t   9\t2.82843\t7.2\t     9\t10.8\n"
             "T+2   \t   9\t2.82843\t7.2\t     9\t10.8\n");
    Eigen::RowVectorXd row(5);
    row << 9, 4 / std::sqrt(2.0), 7.2, 9, 10.8;
    CHECK(Near(desk.Matrix("f"), row.replicate(2, 1)));
    desk.Run("f = forecast(mean, 1);");
    row << 2, 2 / std::sqrt(2.0), 1.1, 2, 2.9;
    CHECK(Near(desk.Matrix("f"), row));
}

TEST_CASE("values of the regressors are written as the dialog writes them")
{
    ExactDesk desk;
    CHECK(desk.Run("f = forecast(lost, 2,\n\t\"W\"=[\t1, 2;\n2, 1]\n\t);")
          == "\nForecast of y by lost, 2 draws\n"
             "period\tmean\tst.dev.\t 5%\tmedian\t95%\n"
             "T+1   \t   5\t      0\t  5\t     5\t  5\n"
             "T+2   \t   8\t2.82843\t6.2\t     8\t9.8\n");
    desk.Run("W = [1, 2; 2, 1]; g = forecast(m, 2, \"W\"=W);");
    CHECK(Near(desk.Matrix("f"), desk.Matrix("g")));
}

TEST_CASE("each draw has an error of its own, the same in each run")
{
    RegressionDesk desk;
    Eigen::MatrixXd draws = Eigen::MatrixXd::Zero(20000, 3);
    draws.col(2).setConstant(2);
    desk.workspace.Assign("noise", RegressionOfDraws("y", {"constant"}, draws));
    desk.Run("f = forecast(noise, 3); g = forecast(noise, 3); h = forecast(noise, 1);");
    auto const& f = desk.Matrix("f");
    CHECK(f == desk.Matrix("g"));
    CHECK(f.topRows(1) == desk.Matrix("h"));
    CHECK(f.row(0) != f.row(1));
    for (Eigen::Index period = 0; period < 3; ++period)
    {
        CHECK(f(period, 0) == Approx(0).margin(4 * 2 / std::sqrt(20000)));
        CHECK(f(period, 1) == Approx(2).epsilon(0.02));
        CHECK(f(period, 2) == Approx(-3.2897).epsilon(0.03));
        CHECK(f(period, 3) == Approx(0).margin(0.07));
        CHECK(f(period, 4) == Approx(3.2897).epsilon(0.03));
    }
}

TEST_CASE("a forecast that can't be made is one error with its place")
{
    RegressionDesk desk;
    CHECK(desk.Failure("forecast(bare, 1);")
          == "Line 1, column 1: the model \"bare\" is no linear regression, and of another model no more is "
             "known than its draws");
    for (auto const* const periods : {"0", "-1", "1.5", "100001"})
        CHECK(desk.Failure(std::string("forecast(m, ") + periods + ");")
              == "Line 1, column 13: the number of periods is a whole number from 1 to 100000");
    CHECK(desk.Failure("forecast(lost, 1);")
          == "Line 1, column 1: the dataset \"gone\", on which the model \"lost\" was estimated, is not in the "
             "workspace");
    CHECK(desk.Failure("forecast(m, 2, \"W\"=[1, 2]);")
          == "Line 1, column 20: expected a matrix of 2 by 2 as \"W\", a row for each period and a column for "
             "each regressor other than the constant, but found a matrix of 1 by 2");
    CHECK(desk.Failure("forecast(m, 1, \"W\"=[\t]\n\t);")
          == "Line 1, column 20: expected a matrix of 1 by 2 as \"W\", a row for each period and a column for "
             "each regressor other than the constant, but found a matrix of 0 by 0");
    CHECK(desk.Failure("forecast(m, 1, \"W\"=[1, inf]);")
          == "Line 1, column 20: \"W\" has no missing and no infinite values");
    desk.meter.stopAt = 1;
    desk.meter.fractions.clear();
    CHECK(desk.Failure("forecast(m, 1);") == "Line 1, column 1: interrupted; the statement changed nothing");
    desk.Run("drop(d, \"x\");");
    CHECK(desk.Failure("forecast(m, 1);") == "Line 1, column 1: the dataset has no variable \"x\"");
    CHECK(desk.output.text.empty());
}
