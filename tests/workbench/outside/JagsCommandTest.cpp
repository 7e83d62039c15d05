#include <catch2/catch.hpp>

#include "engine/Globals.h"
#include "engine/Sentinels.h"
#include "workbench/DataDesk.h"
#include "workbench/FakeProgram.h"
#include "workbench/SampleFolder.h"
#include "workbench/outside/JagsRun.h"

namespace
{
/// A workspace with a matrix and a dataset, and a model file.
struct JagsDesk : DataDesk
{
    JagsDesk()
    {
        Run("A = [1, 2; 3, 4]; N = 3; v = [1; nan; 3]; bad = [1, inf];");
        auto const data = workbench::MakeDataset({"y", "name"}, 3);
        data->data.col(1) << 1.5, std::numeric_limits<double>::quiet_NaN(), 0.1;
        data->data.col(2) << 0, 0, 1;
        data->labelledColumns[2] = {{"a", "b"}, {"a", "a", "b"}};
        workspace.Assign("d", data);
        model = scratch.Write("model.bug", "model { mu ~ dnorm(0, 1) }\n");
    }

    std::string Call(std::string const& data, std::string const& monitors,
                     std::string const& options = "")
    {
        return "m = jags(\"" + model + "\", \"" + data + "\", \"" + monitors + "\"" + options + ");";
    }

    Scratch scratch;
    std::string model;
};

/// A jags of our own: tells its commands and its files, and writes what it is told to.
constexpr char const* TELLING = "cat commands data.R inits*.R; cat model.bug >&2;"
                                "echo 'mu 1 2\nbeta[2] 3 4' > CODAindex.txt;"
                                "printf '3  1.5\n4  -0.25\n3  2e-05\n4  NA\n' > CODAchain1.txt;"
                                "printf '3  0.1\n4  -0\n3  inf\n4  1e+308\n' > CODAchain2.txt";
} // namespace

TEST_CASE("JAGS is handed commands, data, initial values and seeds")
{
    FakeProgram const jags("jags", TELLING);
    JagsDesk desk;
    desk.Run(desk.Call("A, d.y, v, N", "mu, beta[2]",
                       ", \"draws\"=2, \"burnin\"=150, \"chains\"=2, \"thin\"=30, \"seed\"=7, "
                       "\"inits\"=\"| mu = -1, b = [1, 2]\""));
    CHECK(desk.output.terminal
          == "model in \"model.bug\"\n"
             "data in \"data.R\"\n"
             "compile, nchains(2)\n"
             "parameters in \"inits1.R\", chain(1)\n"
             "parameters in \"inits2.R\", chain(2)\n"
             "initialize\n"
             "update 150, by(3)\n"
             "monitor mu, thin(30)\n"
             "monitor beta[2], thin(30)\n"
             "update 60, by(3)\n"
             "coda *\n"
             "exit\n"
             "`A` <- structure(c(1,\n3,\n2,\n4), .Dim = c(2,2))\n"
             "`y` <- c(1.5,\nNA,\n0.1)\n"
             "`v` <- c(1,\nNA,\n3)\n"
             "`N` <- 3\n"
             "`.RNG.name` <- \"base::Mersenne-Twister\"\n"
             "`.RNG.seed` <- 7\n"
             "`mu` <- -1\n"
             "`b` <- c(1,\n2)\n"
             "`.RNG.name` <- \"base::Mersenne-Twister\"\n"
             "`.RNG.seed` <- 1000010\n"
             "model { mu ~ dnorm(0, 1) }\n");
    auto const& model = *desk.workspace.models.at("m");
    CHECK(model.drawNames == std::vector<std::string>{"mu", "beta[2]"});
    CHECK(model.chains == 2);
    CHECK(model.type == "");
    double const na = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    Eigen::MatrixXd expected(4, 2);
    expected << 1.5, 2e-5, -0.25, na, 0.1, inf, -0.0, 1e308;
    CHECK(SameBits(model.draws, expected));
    CHECK(desk.meter.begun == std::vector<std::string>{"Running JAGS", "Summarizing the draws"});
    CHECK(desk.meter.ended == 2);
    CHECK(desk.output.text.find("\nJAGS: draws of 2 quantities\n2 chains of 2 draws\nparameter\t") == 0);
}

TEST_CASE("without options JAGS runs with the defaults of the sampler, without data without data")
{
    auto const kept = Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs;
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs = (Eigen::VectorXd(5) << 2, 0, 2, 5, 42).finished();
    FakeProgram const jags("jags",
                           TELLING + std::string("; echo 'mu 1 2 deviance 3 4' > CODAindex.txt"));
    JagsDesk desk;
    desk.Run("jags(\"" + desk.model + "\", \"\", \"mu, deviance\");");
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs = kept;
    CHECK(desk.output.terminal.find("load dic\nmodel in \"model.bug\"\ncompile, nchains(2)\n") == 0);
    CHECK(desk.output.terminal.find("initialize\nmonitor mu, thin(5)\n") != std::string::npos);
    CHECK(desk.output.terminal.find("update 10, by(1)\ncoda *\n") != std::string::npos);
    CHECK(desk.output.terminal.find("seed` <- 42\n") != std::string::npos);
    CHECK(desk.workspace.models.empty());
}

TEST_CASE("the seeds of the chains are apart, and never too large for JAGS")
{
    CHECK(workbench::JagsSeed(42, 1) == 42);
    CHECK(workbench::JagsSeed(42, 2) == 1000045);
    CHECK(workbench::JagsSeed(2147483646, 1) == 2147483646);
    CHECK(workbench::JagsSeed(2147483647, 1) == 0);
    CHECK(workbench::JagsSeed(std::uint64_t{1} << 53, 98) < 2147483647);
}

TEST_CASE("the marks that JAGS sets move the gauge and stay off the console")
{
    FakeProgram const jags(
        "jags", std::string("echo Updating 4; echo '--| 4'; echo '** 100%'; echo '| 1'; echo '--| 4'; printf '*';")
                    + TELLING);
    JagsDesk desk;
    desk.Run(desk.Call("", "mu", ", \"draws\"=2, \"burnin\"=2, \"chains\"=2, \"thin\"=1"));
    CHECK(desk.output.terminal.find("Updating 4\nload") == std::string::npos);
    CHECK(desk.output.terminal.find("Updating 4\n") == 0);
    CHECK(desk.output.terminal.find("100%") == std::string::npos);
    CHECK(desk.output.terminal.find("| ") == std::string::npos);
    REQUIRE_FALSE(desk.meter.fractions.empty());
    for (double const fraction : desk.meter.fractions)
        CHECK((fraction >= 0.0 && fraction <= 1.0));
}

TEST_CASE("what can't be asked of JAGS is one error, and nothing changes")
{
    FakeProgram const jags("jags", TELLING);
    JagsDesk desk;
    auto const failure =
        [&](std::string const& data, std::string const& monitors, std::string const& options = "")
    { return desk.Failure(desk.Call(data, monitors, options)); };
    CHECK(failure("A, X", "mu").find("there is nothing called \"X\" in the workspace")
          != std::string::npos);
    CHECK(
        failure("d", "mu").find("\"d\" can't be handed to JAGS; what can are matrices and variables of "
                                "datasets, written as dataset.variable")
        != std::string::npos);
    CHECK(failure("A.y", "mu").find("\"A\" is no dataset, so it has no variables") != std::string::npos);
    CHECK(failure("d.z", "mu") == "Line 1, column 1: the dataset has no variable \"z\"");
    CHECK(failure("d.name", "mu") == "Line 1, column 1: the variable \"name\" holds text");
    CHECK(failure("A, A", "mu") == "Line 1, column 1: two values are called \"A\"");
    CHECK(failure("bad", "mu")
          == "Line 1, column 1: \"bad\" holds an infinite value, which JAGS does not take");
    CHECK(failure("A", " ") == "Line 1, column 1: no parameters are given to be monitored");
    CHECK(failure("A", "mu, 2b")
          == "Line 1, column 1: \"2b\" can't be monitored; what can is written as mu, beta[2] or "
             "beta[2:4]");
    CHECK(failure("A", "mu", ", \"chains\"=1, \"inits\"=\"mu = 1 | mu = 2\"")
          == "Line 1, column 1: initial values are given for chain 2, but the number of chains is 1");
    CHECK(failure("A", "mu", ", \"inits\"=\"mu 1\"")
          == "Line 1, column 1: \"mu 1\" is no initial value; one is written as tau = 10, beta = "
             "zeros(3,1), beta = "
             "ones(3,1), or beta = [1, 2, 3]");
    CHECK(failure("A", "mu", ", \"draws\"=100000, \"thin\"=100000")
          == "Line 1, column 1: burn-in, draws and thinning make more iterations than JAGS can count, "
             "which are "
             "2147483647");
    for (std::string const key : {"draws", "chains", "thin"})
        CHECK(failure("A", "mu", ", \"" + key + "\"=0")
                  .find("\"" + key + "\" is a whole number of at least 1")
              != std::string::npos);
    desk.model = desk.scratch.Path("none.bug");
    CHECK(failure("A", "mu")
          == "Line 1, column 1: \"" + desk.model + "\" cannot be read: No such file or directory");
    CHECK(desk.output.terminal.empty());
}

TEST_CASE("a JAGS that is missing, fails, or gives nothing is one error")
{
    JagsDesk desk;
    auto const failure = [&]
    { return desk.Failure(desk.Call("A", "mu", ", \"draws\"=2, \"chains\"=1")); };
    {
        FakeProgram const none("jags");
        CHECK(failure()
              == "Line 1, column 1: JAGS (\"jags\") cannot be started: No such file or directory; "
                 "install it, or set "
                 "its path among the paths to external programs");
    }
    {
        FakeProgram const failing("jags", "echo 'RUNTIME ERROR:' >&2; echo 'no mu' >&2; exit 1");
        CHECK(failure() == "Line 1, column 1: JAGS ended with status 1: RUNTIME ERROR:\nno mu");
    }
    {
        FakeProgram const silent("jags", "exit 0");
        CHECK(failure() == "Line 1, column 1: JAGS gave no draws");
    }
    {
        FakeProgram const deaf("jags",
                               std::string("echo 'Failed to set trace monitor for nu' >&2;") + TELLING);
        CHECK(failure().find(
                  "Line 1, column 1: JAGS could not monitor all that was asked for: Failed to set trace "
                  "monitor for nu")
              == 0);
    }
    for (std::string const torn :
         {"echo mu 1 3 > CODAindex.txt", "echo mu 1 2 > CODAindex.txt; echo '3 1.5' > CODAchain1.txt",
          "echo mu 1 2 > CODAindex.txt; printf '3 1\n4 x\n' > CODAchain1.txt",
          "echo mu 1 2 > CODAindex.txt; printf '3 1\n4 2\n5 3\n' > CODAchain1.txt"})
    {
        FakeProgram const jags("jags", torn);
        CHECK(failure() == "Line 1, column 1: JAGS wrote its draws in a form that is not known");
    }
    {
        FakeProgram const other("jags",
                                "echo nu 1 2 > CODAindex.txt; printf '3 1\n4 2\n' > CODAchain1.txt");
        CHECK(failure() == "Line 1, column 1: JAGS gave no draws of \"mu\"");
    }
    {
        FakeProgram const hanging("jags", "exec sleep 1000");
        desk.meter.stopAt = static_cast<int>(desk.meter.fractions.size()) + 2;
        CHECK(failure() == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.meter.ended == static_cast<int>(desk.meter.begun.size()));
}

TEST_CASE("the path that the user has set is the one that is started")
{
    Scratch const scratch;
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryJAGS =
        scratch.WriteProgram("my jägs \"4\"", std::string("echo mine;") + TELLING);
    JagsDesk desk;
    desk.Run(desk.Call("", "mu, beta[2]", ", \"draws\"=2, \"chains\"=2"));
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryJAGS = zenqo::DEFAULT_STRING;
    CHECK(desk.output.terminal.find("mine\n") == 0);
}
