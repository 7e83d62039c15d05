#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "engine/Globals.h"
#include "workbench/DataDesk.h"
#include "workbench/SampleFolder.h"

namespace
{
/// A desk with the sample data on cars.
struct CarsDesk : DataDesk
{
    CarsDesk() { Run("cars = import(\"cars.csv\", \",\");"); }

    Model const& Estimated(std::string const& name) const { return *workspace.models.at(name); }

    SampleFolder samples;
};

std::vector<std::string> Lines(std::string const& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// The cells of a line of a table, without the blanks that fill them.
std::vector<std::string> Cells(std::string const& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line);
    for (std::string cell; std::getline(stream, cell, '\t');)
    {
        cell.erase(0, cell.find_first_not_of(' '));
        cells.push_back(cell.substr(0, cell.find(' ')));
    }
    return cells;
}

std::string const SHORT = "\"draws\"=400, \"burnin\"=100, \"chains\"=2, \"thin\"=3, \"seed\"=12345678";
} // namespace

TEST_CASE("regress prints a summary and makes a model")
{
    CarsDesk desk;
    auto const lines =
        Lines(desk.Run("m = regress(cars, \"mpg\", \"wt hp\", \"constant\"=true, " + SHORT + ");"));
    REQUIRE(lines.size() == 11);
    CHECK(lines[0].empty());
    CHECK(lines[1] == "Estimated linear regression of mpg, dataset cars");
    CHECK(lines[2] == "observations: 32, left out: 0");
    CHECK(lines[3] == "2 chains of 400 draws, burn-in 100, thinning 3, seed 12345678");
    CHECK(Cells(lines[4])
          == std::vector<std::string>{"parameter", "mean", "st.dev.", "2.5%", "median", "97.5%", "mcse",
                                      "ess", "R-hat"});
    auto const& model = desk.Estimated("m");
    CHECK(model.drawNames == std::vector<std::string>{"constant", "wt", "hp", "tau", "sigma"});
    REQUIRE(model.draws.rows() == 800);
    for (std::size_t i = 0; i < 5; ++i)
    {
        auto const cells = Cells(lines[5 + i]);
        REQUIRE(cells.size() == 9);
        CHECK(cells[0] == model.drawNames[i]);
        CHECK(std::stod(cells[1])
              == Approx(model.draws.col(static_cast<Eigen::Index>(i)).mean()).epsilon(1e-5));
        CHECK(std::stod(cells[3]) < std::stod(cells[4]));
        CHECK(std::stod(cells[4]) < std::stod(cells[5]));
        CHECK(std::stod(cells[7]) > 300);
        CHECK(std::stod(cells[8]) == Approx(1).margin(0.03));
    }
    CHECK(lines[10].find("log marginal likelihood: -") == 0);
    CHECK(lines[10].find(" (Lewis and Raftery), -") != std::string::npos);
    CHECK(lines[10].find(" (Chib)") + 7 == lines[10].size());

    // What least squares gives, printed by gretl: 37.2273, -3.87783, -0.0317729.
    CHECK(model.draws.col(0).mean() == Approx(37.2273).margin(0.4));
    CHECK(model.draws.col(1).mean() == Approx(-3.87783).margin(0.15));
    CHECK(model.draws.col(2).mean() == Approx(-0.0317729).margin(0.002));
    CHECK(model.results.at("sampler") == (Eigen::MatrixXd(1, 5) << 400, 100, 2, 3, 12345678).finished());
    CHECK(model.dataset == "cars");
}

TEST_CASE("print shows what regress printed, under the model's name")
{
    CarsDesk desk;
    auto const printed = desk.Run("m = regress(cars, \"mpg\", \"wt\", " + SHORT + ");");
    auto expected = printed;
    expected.replace(1, std::string("Estimated ").size(), "Model m: ");
    CHECK(desk.Run("print(m);") == expected);
    CHECK(desk.output.matrices.empty());
}

TEST_CASE("without a name regress prints and keeps nothing")
{
    CarsDesk desk;
    CHECK(desk.Run("regress(cars, \"mpg\", \"wt\", " + SHORT + ");").find("\nwt ") != std::string::npos);
    CHECK(desk.workspace.models.empty());
}

TEST_CASE("without options the defaults hold, and there is no constant")
{
    CarsDesk desk;
    desk.Run("m = regress(cars, \"mpg\", \"wt\");");
    auto const& model = desk.Estimated("m");
    CHECK(model.drawNames == std::vector<std::string>{"wt", "tau", "sigma"});
    CHECK(model.results.at("sampler") == Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs.head(5).transpose());
    CHECK(model.draws.rows() == 20000);
    CHECK(model.results.at("prior_mean") == Eigen::MatrixXd::Zero(1, 1));
    CHECK(model.results.at("prior_precision") == Eigen::MatrixXd::Constant(1, 1, 0.0001));
    CHECK(model.results.at("prior_tau") == Eigen::MatrixXd(Eigen::RowVector2d(0.001, 0.001)));
    desk.Run("m = regress(cars, \"mpg\", \"wt\", \"constant\"=false);");
    CHECK(desk.Estimated("m").drawNames.size() == 3);
    desk.Run("m = regress(cars, \"mpg\", \"\", \"constant\"=true);");
    CHECK(desk.Estimated("m").drawNames == std::vector<std::string>{"constant", "tau", "sigma"});
}

TEST_CASE("the prior is the one that is given")
{
    CarsDesk desk;
    desk.Run("m = [1, 2]; P = [4, 1; 1, 3]; "
             "a = regress(cars, \"mpg\", \"wt\", \"constant\"=true, \"mean\"=m, \"precision\"=P, "
             "\"shape\"=2, \"rate\"=0.5, "
             + SHORT
             + "); b = regress(cars, \"mpg\", \"wt\", \"constant\"=true, \"mean\"=[1; 2], "
               "\"precision\"=[4, 1; 1, 3], \"rate\"=0.5, \"shape\"=2, "
             + SHORT + ");");
    for (auto const* const name : {"a", "b"})
    {
        auto const& results = desk.Estimated(name).results;
        CHECK(results.at("prior_mean") == Eigen::MatrixXd(Eigen::Vector2d(1, 2)));
        CHECK(results.at("prior_precision") == (Eigen::MatrixXd(2, 2) << 4, 1, 1, 3).finished());
        CHECK(results.at("prior_tau") == Eigen::MatrixXd(Eigen::RowVector2d(2, 0.5)));
    }
    CHECK(desk.Estimated("a").draws == desk.Estimated("b").draws);
    // A prior that is sure of one coefficient.
    desk.Run("s = regress(cars, \"mpg\", \"wt\", \"mean\"=3, \"precision\"=1e12, " + SHORT + ");");
    CHECK(desk.Estimated("s").draws.col(0).mean() == Approx(3).margin(1e-4));
}

TEST_CASE("what regress cannot do is told, at its place, and changes nothing")
{
    CarsDesk desk;
    auto const failure = [&](std::string const& rest)
    { return desk.Failure("m = regress(" + rest + ");"); };
    std::string const cars = "cars, \"mpg\", \"wt\"";
    CHECK(failure("nothing, \"mpg\", \"wt\"")
          == "Line 1, column 13: there is nothing called \"nothing\" in the workspace; the names are: "
             "cars");
    CHECK(failure("cars, \"mpg\", \"\"") == "Line 1, column 1: the regression has no regressor");
    CHECK(failure("cars, \"mgp\", \"wt\"") == "Line 1, column 1: the dataset has no variable \"mgp\"");
    CHECK(failure("cars, \"mpg\", \"wt model\"")
          == "Line 1, column 1: the variable \"model\" holds text");
    CHECK(failure("cars, \"mpg\", \"wt wt\"") == "Line 1, column 1: \"wt\" is given twice");
    CHECK(failure(cars + ", \"draws\"=0")
          == "Line 1, column 40: \"draws\" is a whole number of at least 1");
    CHECK(failure(cars + ", \"burnin\"=-1")
          == "Line 1, column 41: \"burnin\" is a whole number of at least 0");
    CHECK(failure(cars + ", \"chains\"=0")
          == "Line 1, column 41: \"chains\" is a whole number of at least 1");
    CHECK(failure(cars + ", \"chains\"=3e9") == "Line 1, column 1: the number of chains is too large");
    CHECK(failure(cars + ", \"thin\"=0")
          == "Line 1, column 39: \"thin\" is a whole number of at least 1");
    CHECK(failure(cars + ", \"seed\"=0")
          == "Line 1, column 39: \"seed\" is a whole number of at least 1");
    CHECK(failure(cars + ", \"draws\"=1e13")
              .find("of memory, which is too much here: choose fewer draws or chains")
          != std::string::npos);
    CHECK(failure(cars + ", \"shape\"=0")
          == "Line 1, column 1: the shape of the prior of tau must be a positive number");
    CHECK(failure(cars + ", \"mean\"=[1, 2; 3, 4]")
          == "Line 1, column 39: the prior mean is a row or a column");
    CHECK(failure(cars + ", \"mean\"=[1, 2]")
          == "Line 1, column 1: the prior mean has 2 elements, but the number of coefficients is 1");
    CHECK(failure(cars + ", \"precision\"=[1, 2; 2, 1]")
          == "Line 1, column 1: the prior precision is 2 x 2, but should be 1 x 1");
    CHECK(failure(cars + ", \"precision\"=-1")
          == "Line 1, column 1: the prior precision is not positive definite");
    CHECK(failure(cars + ", \"constant\"=1").find("expected true or false as the option \"constant\"")
          != std::string::npos);
    CHECK(desk.output.text.empty());
}

TEST_CASE("regress can be stopped while it reads, samples and sums up")
{
    CarsDesk desk;
    desk.meter.fractions.clear();
    desk.meter.begun.clear();
    desk.meter.ended = 0;
    desk.Run("m = regress(cars, \"mpg\", \"wt\", " + SHORT + ");");
    CHECK(desk.meter.begun
          == std::vector<std::string>{"Reducing the observations", "Sampling 400 draws of 2 chains",
                                      "Summarizing the draws"});
    CHECK(desk.meter.ended == 3);
    desk.output.text.clear();
    for (int const stopAt : {1, 2, 3})
    {
        desk.meter.stopAt = stopAt;
        desk.meter.fractions.clear();
        CHECK(desk.Failure("m = regress(cars, \"mpg\", \"wt\", \"draws\"=100000, \"thin\"=1000000);")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    desk.meter.stopAt = 0;
    CHECK(desk.output.text.empty());
}

TEST_CASE("a copy of a model shares nothing with it")
{
    CarsDesk desk;
    desk.Run("m = regress(cars, \"mpg\", \"wt\", " + SHORT + "); copy = m;");
    auto& copy = *desk.workspace.models.at("copy");
    CHECK(copy.draws == desk.Estimated("m").draws);
    CHECK(copy.chains == 2);
    CHECK(copy.type == "linear regression");
    CHECK(copy.dataset == "cars");
    CHECK(copy.dependent == "mpg");
    CHECK(copy.independent == std::vector<std::string>{"wt"});
    copy.draws(0, 0) = 99;
    CHECK(desk.Estimated("m").draws(0, 0) != 99);
}

TEST_CASE("any model with draws prints a summary, and what else it holds")
{
    DataDesk desk;
    auto const model = std::make_shared<Model>();
    model->drawNames = {"beta[2]"};
    model->draws = Eigen::VectorXd::LinSpaced(5, 1, 5);
    model->results["deviance"] = Eigen::MatrixXd::Constant(1, 1, 3);
    desk.workspace.models["m"] = model;
    auto const lines = Lines(desk.Run("print(m);"));
    REQUIRE(lines.size() == 7);
    CHECK(lines[1] == "Model m: draws of 1 quantity");
    CHECK(lines[2] == "1 chain of 5 draws");
    CHECK(Cells(lines[4])[0] == "beta[2]");
    CHECK(Cells(lines[4])[1] == "3");
    CHECK(lines[6] == "Matrix m, deviance: 1 row, 1 column");
    REQUIRE(desk.output.matrices.size() == 1);

    // Draws that do not fit the names, and results of other sizes, are no reason to fail.
    model->draws.resize(4, 3);
    model->type = "linear regression";
    model->results["observations"] = Eigen::MatrixXd::Zero(0, 0);
    model->results["sampler"] = Eigen::MatrixXd::Constant(1, 5, std::nan(""));
    model->results["logML"] = Eigen::RowVector2d(std::nan(""), -7.5);
    auto const text = desk.Run("print(m);");
    CHECK(text.find("\n1 chain of 4 draws, burn-in ., thinning ., seed .\n") != std::string::npos);
    CHECK(text.find("\nlog marginal likelihood: not known (Lewis and Raftery), -7.5 (Chib)\n")
          != std::string::npos);
}
