#include "workbench/outside/JagsText.h"

#include <catch2/catch.hpp>

#include <cmath>
#include <limits>

#include "workbench/Scratch.h"
#include "workbench/outside/NameList.h"

using namespace workbench;
using Names = std::vector<std::string>;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();

std::string FileOf(Eigen::MatrixXd const& value) { return JagsFile({{"x", value}}); }

/// The initial values of a single chain.
Eigen::MatrixXd ValueOf(std::string const& text)
{
    auto const chains = ReadInitialValues("x = " + text);
    REQUIRE(chains.size() == 1);
    REQUIRE(chains[0].size() == 1);
    CHECK(chains[0][0].name == "x");
    return chains[0][0].value;
}

std::string Refused(std::string const& text)
{
    return ErrorOf([&] { ReadInitialValues(text); });
}
} // namespace

TEST_CASE("lists are cut outside of brackets")
{
    CHECK(Split("a, b[1,2], c(3,4)", ",") == Names{"a", "b[1,2]", "c(3,4)"});
    CHECK(Split("", ",") == Names{""});
    CHECK(Split(" a | | b |", "|") == Names{"a", "", "b", ""});
    CHECK(SplitNames("\"mu\", \"tau\", \"beta[2:4]\"") == Names{"mu", "tau", "beta[2:4]"});
    CHECK(SplitNames(" mat1,mat2 ;\n dat1.var2,, ") == Names{"mat1", "mat2", "dat1.var2"});
    CHECK(SplitNames(" \n ").empty());
    CHECK(JoinNames({"a", "b"}) == "a, b");
    CHECK(JoinNames({}) == "");
}

TEST_CASE("values are written with all their digits, by their shape")
{
    CHECK(FileOf(Eigen::MatrixXd::Constant(1, 1, 0.1)) == "`x` <- 0.1\n");
    CHECK(FileOf(Eigen::Vector3d(1.0000000000000002, -2e-5, 1e308))
          == "`x` <- c(1.0000000000000002,\n-2e-05,\n1e+308)\n");
    CHECK(FileOf(Eigen::Vector3d(NA, -0.0, 5e-324)) == "`x` <- c(NA,\n-0,\n5e-324)\n");
    CHECK(FileOf(Eigen::RowVector2d(1, 2)) == "`x` <- structure(c(1,\n2), .Dim = c(1,2))\n");
    CHECK(FileOf((Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished())
          == "`x` <- structure(c(1,\n3,\n2,\n4), .Dim = c(2,2))\n");
    CHECK(JagsFile({}) == "");
    CHECK(JagsFile({{"a", Eigen::MatrixXd::Ones(1, 1)}, {"b", Eigen::MatrixXd::Zero(1, 1)}})
          == "`a` <- 1\n`b` <- 0\n");
}

TEST_CASE("what JAGS can't be told is an error")
{
    CHECK(ErrorOf([] { FileOf(Eigen::Vector2d(1, -std::numeric_limits<double>::infinity())); })
          == "\"x\" holds an infinite value, which JAGS does not take");
    CHECK(ErrorOf([] { FileOf(Eigen::MatrixXd(0, 0)); }) == "\"x\" has no elements");
    CHECK(ErrorOf(
              [] {
                  JagsFile({{"a", Eigen::MatrixXd::Ones(1, 1)}, {"a", Eigen::MatrixXd::Ones(1, 1)}});
              })
          == "two values are called \"a\"");
}

TEST_CASE("a monitor is a name, perhaps with a range")
{
    for (std::string const good : {"mu", "beta[2:4]", "x.y_1[1,2:3]", "b[ 1 , 2 ]", "deviance"})
        CHECK_NOTHROW(CheckMonitor(good));
    for (std::string const bad : {"", "1x", "mu tau", "mu, thin(2)", "beta[", "beta[]", "beta[i]",
                                  "beta[1]]", "beta[1] x", "_x", "m\nexit"})
        CHECK(ErrorOf([&] { CheckMonitor(bad); })
              == "\"" + bad + "\" can't be monitored; what can is written as mu, beta[2] or beta[2:4]");
}

TEST_CASE("initial values are numbers and matrices")
{
    CHECK(ValueOf("10") == Eigen::MatrixXd::Constant(1, 1, 10));
    CHECK(ValueOf(" -1.5e-3 ") == Eigen::MatrixXd::Constant(1, 1, -1.5e-3));
    CHECK(ValueOf("+.5") == Eigen::MatrixXd::Constant(1, 1, 0.5));
    CHECK(std::isnan(ValueOf("NA")(0, 0)));
    CHECK(ValueOf("zeros(3,1)") == Eigen::MatrixXd::Zero(3, 1));
    CHECK(ValueOf("ones ( 2 , 3 )") == Eigen::MatrixXd::Ones(2, 3));
    CHECK(ValueOf("[1, 2, 3]") == Eigen::MatrixXd(Eigen::Vector3d(1, 2, 3)));
    CHECK(ValueOf("[1; 2; 3]") == Eigen::MatrixXd(Eigen::Vector3d(1, 2, 3)));
    CHECK(ValueOf("[1 -2 +3]") == Eigen::MatrixXd(Eigen::Vector3d(1, -2, 3)));
    CHECK(ValueOf("[1, 2; 3, 4; 5, 6]") == (Eigen::MatrixXd(3, 2) << 1, 2, 3, 4, 5, 6).finished());
    CHECK(ValueOf("[ ; 1, 2; 3, 4; ]") == (Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished());
    CHECK(ValueOf("[7]") == Eigen::MatrixXd::Constant(1, 1, 7));
}

TEST_CASE("initial values of several chains have bars between them")
{
    auto const chains = ReadInitialValues("beta = zeros(3,1), tau = 10 | | tau = 1; x.y=2,");
    REQUIRE(chains.size() == 3);
    REQUIRE(chains[0].size() == 2);
    CHECK(chains[0][0].name == "beta");
    CHECK(chains[0][1].name == "tau");
    CHECK(chains[0][1].value(0, 0) == 10);
    CHECK(chains[1].empty());
    REQUIRE(chains[2].size() == 2);
    CHECK(chains[2][1].name == "x.y");
    CHECK(ReadInitialValues("").at(0).empty());
}

TEST_CASE("what is no initial value is quoted")
{
    for (std::string const bad : {"10",
                                  "tau",
                                  "tau = ",
                                  "= 3",
                                  "tau == 3",
                                  "2x = 3",
                                  ".RNG.seed = 3",
                                  "x = y",
                                  "x = 1 2",
                                  "x = 1e999",
                                  "x = inf",
                                  "x = zeros(3)",
                                  "x = zeros(0,1)",
                                  "x = zeros(1.5,1)",
                                  "x = zeros(100000,100000)",
                                  "x = []",
                                  "x = [1, 2; 3]",
                                  "x = [1; 2, 3]",
                                  "x = [;]",
                                  "x = [1, a]",
                                  "x = zeros(2,1) + 1",
                                  "x[1] = 2"})
        CHECK(Refused("a = 1, " + bad)
              == "\"" + std::string(bad == "tau = " ? "tau =" : bad)
                     + "\" is no initial value; one is written as tau = 10, beta = zeros(3,1), beta = "
                       "ones(3,1), or "
                       "beta = [1, 2, 3]");
    CHECK(Refused("x = [1, 2").find("\"x = [1, 2\" is no initial value") == 0);
}

TEST_CASE("what a user typed for the chains becomes one line")
{
    CHECK(InitialValuesText({}) == "");
    CHECK(InitialValuesText({{"chain1", "beta = zeros(3,1), tau = 10"}})
          == "beta = zeros(3,1), tau = 10");
    CHECK(InitialValuesText({{"chain1", "beta = zeros(3,1)\r\ntau = 10;\n\n"}, {"chain3", "tau = 1,"}})
          == "beta = zeros(3,1), tau = 10 | | tau = 1");
    CHECK(InitialValuesText({{"chain2", "tau = 1"}}) == "| tau = 1");
    CHECK(InitialValuesText({{"chain1", " \n"}, {"chain3", "tau = 1"}}) == "| | tau = 1");
    CHECK(InitialValuesText({{"chain10", "x = 10"}, {"chain9", "x = 9"}})
          == "| | | | | | | | x = 9 | x = 10");
    CHECK(InitialValuesText({{"chain1", "b = [1, 2\n 3, 4;\n 5,\n 6]\nc = zeros(2,\n1)"}})
          == "b = [1, 2; 3, 4;  5,  6], c = zeros(2, 1)");
    auto const chains =
        ReadInitialValues(InitialValuesText({{"chain2", "b = [1, 2\n 3, 4\n]\ntau = 2"}}));
    REQUIRE(chains.size() == 2);
    CHECK(chains[1].at(0).value == (Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished());
    CHECK(chains[1].at(1).value(0, 0) == 2);
}
