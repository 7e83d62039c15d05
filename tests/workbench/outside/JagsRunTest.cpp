#include <catch2/catch.hpp>

#include <cmath>

#include "workbench/DataDesk.h"
#include "workbench/Scratch.h"
#include "workbench/outside/Installed.h"

namespace
{
/// A workspace for runs of the real program, with the models that a test writes.
struct JagsDesk : DataDesk
{
    std::string Call(std::string const& model, std::string const& data, std::string const& monitors,
                     std::string const& options = SHORT)
    {
        return "m = jags(\"" + scratch.Write("ein Modell's *ä.bug", model) + "\", \"" + data + "\", \""
               + monitors + "\", " + options + ");";
    }

    /// Runs a model and gives what it drew.
    std::shared_ptr<Model> Draw(std::string const& call)
    {
        Run(call);
        return workspace.models.at("m");
    }

    static constexpr char const* SHORT =
        "\"draws\"=50, \"burnin\"=20, \"chains\"=2, \"thin\"=2, \"seed\"=3";

    Scratch scratch;
};

constexpr char const* NORMAL_MEAN = "model {\n"
                                    "  for (i in 1:length(y)) { y[i] ~ dnorm(mu, 0.25) }\n"
                                    "  mu ~ dnorm(1, 0.01)\n"
                                    "  for (j in 1:4) { beta[j] ~ dnorm(mu, j) }\n"
                                    "}\n";

bool Has(std::string const& text, std::string const& piece)
{
    return text.find(piece) != std::string::npos;
}
} // namespace

TEST_CASE("JAGS finds the posterior of a normal mean")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("y = [2.5; -0.75; 3.25; 4; 1.5; 0.25; 2; 5.75];");
    auto const model =
        desk.Draw(desk.Call(NORMAL_MEAN, "y", "mu",
                            "\"draws\"=20000, \"burnin\"=500, \"chains\"=2, \"thin\"=1, \"seed\"=1"));
    REQUIRE(model->drawNames == std::vector<std::string>{"mu"});
    REQUIRE(model->draws.rows() == 40000);
    // Known precisions add up: 8 observations of precision 1/4, and the prior's 1/100 around 1.
    double const precision = 8 * 0.25 + 0.01;
    double const mean = (0.25 * 18.5 + 0.01 * 1.0) / precision;
    double const deviation = 1.0 / std::sqrt(precision);
    Eigen::ArrayXd const draws = model->draws.col(0).array();
    double const drawnMean = draws.mean();
    double const drawnDeviation = std::sqrt((draws - drawnMean).square().mean());
    // The draws are independent here: four standard errors of each.
    CHECK(std::abs(drawnMean - mean) < 4 * deviation / std::sqrt(40000.0));
    CHECK(std::abs(drawnDeviation - deviation) < 4 * deviation / std::sqrt(2 * 40000.0));
    CHECK(Has(desk.output.terminal, "Compiling model graph\n"));
    CHECK_FALSE(Has(desk.output.terminal, "**"));
    CHECK(desk.output.errors.empty());
}

TEST_CASE("chains differ, and the same seed gives the same draws")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("y = [2.5; -0.75; 3.25];");
    auto const call = desk.Call(NORMAL_MEAN, "y", "mu, beta[2:4]");
    auto const first = desk.Draw(call);
    auto const again = desk.Draw(call);
    CHECK(first->drawNames == std::vector<std::string>{"mu", "beta[2]", "beta[3]", "beta[4]"});
    CHECK(first->chains == 2);
    REQUIRE(first->draws.rows() == 100);
    CHECK(SameBits(first->draws, again->draws));
    CHECK(first->draws.topRows(50) != first->draws.bottomRows(50));
    auto other = call;
    other.replace(other.find("\"seed\"=3"), 8, "\"seed\"=4");
    CHECK(desk.Draw(other)->draws != first->draws);
}

TEST_CASE("data and initial values reach JAGS to the last bit, missing ones as missing")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    auto const data = workbench::MakeDataset({"y"}, 3);
    data->data.col(1) << 1.0000000000000002, std::numeric_limits<double>::quiet_NaN(), -3;
    desk.workspace.Assign("d", data);
    desk.Run(
        "A = [1, 2; 3, 1024.0000000000002]; big = 1.7976931348623157e308; row = [5, 6, 7]; one = 0.1;");
    // JAGS takes constants for one that differ by less than 4e-15, so what is left of the two does not.
    auto const model = desk.Draw(desk.Call("model {\n"
                                           "  for (i in 1:3) { y[i] ~ dnorm(mu, 1) }\n"
                                           "  mu ~ dnorm(0, 1)\n"
                                           "  a <- (y[1] - 1) * pow(2, 52)\n"
                                           "  b <- (A[2,2] - 1024) * pow(2, 42)\n"
                                           "  c <- A[2,1] * 10 + A[1,2]\n"
                                           "  d <- big / 1.7976931348623157E+308 + row[1,3]\n"
                                           "  e <- equals(one, 0.1)\n"
                                           "}\n",
                                           "d.y, A, big, row, one", "a, b, c, d, e, y[2]"));
    REQUIRE(model->draws.rows() == 100);
    CHECK(model->draws.col(0).isConstant(1.0));
    CHECK(model->draws.col(1).isConstant(1.0));
    CHECK(model->draws.col(2).isConstant(32.0));
    CHECK(model->draws.col(3).isConstant(8.0));
    CHECK(model->draws.col(4).isConstant(1.0));
    CHECK_FALSE(model->draws.col(5).isConstant(model->draws(0, 5)));
}

TEST_CASE("initial values are where the chains begin")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("four = 4;");
    // The square of x is 4: a chain finds the root at which it begins, and not the other.
    auto const model =
        desk.Draw(desk.Call("model { four ~ dnorm(x * x, 1.0E+8)\n x ~ dunif(-100, 100)\n"
                            "for (j in 1:2) { b[j] ~ dnorm(0, 1) } }",
                            "four", "x",
                            "\"draws\"=10, \"burnin\"=10, \"chains\"=3, \"seed\"=1, "
                            "\"inits\"=\"x = -2, b = zeros(2,1) | x = 2, b = [1, 2] | x = -2.0001\""));
    CHECK(model->draws.col(0).head(10).isApproxToConstant(-2, 0.01));
    CHECK(model->draws.col(0).segment(10, 10).isApproxToConstant(2, 0.01));
    CHECK(model->draws.col(0).tail(10).isApproxToConstant(-2, 0.01));
    CHECK(Has(desk.Failure(desk.Call("model { x ~ dunif(0, 1) }", "", "x",
                                     "\"draws\"=1, \"inits\"=\"x = [1, 2]\"")),
              "JAGS ended with status 1: "));
}

TEST_CASE("the deviance can be monitored")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("y = [2.5; -0.75; 3.25];");
    CHECK(desk.Draw(desk.Call(NORMAL_MEAN, "y", "deviance"))->drawNames
          == std::vector<std::string>{"deviance"});
}

TEST_CASE("what JAGS can't do is one error in its own words")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("y = [2.5; -0.75; 3.25];");
    auto const failure = [&](std::string const& model, std::string const& data,
                             std::string const& monitors, std::string const& options = JagsDesk::SHORT)
    { return desk.Failure(desk.Call(model, data, monitors, options)); };
    CHECK(failure("model {\n mu ~ ~ dnorm(0, 1)\n}\n", "y", "mu")
          == "Line 1, column 1: JAGS ended with status 1: Error parsing model file:\nsyntax error on "
             "line 2 near \"~\"");
    CHECK(Has(failure("model { for (i in 1:N) { y[i] ~ dnorm(0, 1) } }", "y", "mu"),
              "Unknown variable N"));
    CHECK(Has(failure(NORMAL_MEAN, "y", "mu, nu"), "could not monitor all that was asked for"));
    CHECK(Has(failure(NORMAL_MEAN, "y", "mu, nu"), "Variable nu not found"));
    CHECK(
        Has(failure(NORMAL_MEAN, "y", "beta[2:9]"), "Cannot get subset beta[2:9]. Range out of bounds"));
    CHECK(Has(failure("model { y ~ dnorm(mu, tau); tau <- -1; mu ~ dnorm(0, 1) }", "y", "mu"),
              "JAGS ended with status 1"));
    CHECK(Has(failure("", "y", "mu"), "JAGS ended with status 1"));
}

TEST_CASE("a long run of JAGS can be interrupted")
{
    if (IsMissing("jags"))
        return;
    JagsDesk desk;
    desk.Run("y = [2.5; -0.75; 3.25];");
    desk.meter.stopAt = 5;
    CHECK(desk.Failure(desk.Call(NORMAL_MEAN, "y", "mu", "\"draws\"=1, \"burnin\"=2000000000"))
          == "Line 1, column 1: interrupted; the statement changed nothing");
}
