#include <catch2/catch.hpp>

#include "workbench/outside/BridgeDesk.h"
#include "workbench/outside/Installed.h"

TEST_CASE("R gets and gives matrices and datasets to the last bit")
{
    if (IsMissing("R"))
        return;
    BridgeDesk desk("rproject");
    desk.Run(desk.Call("cat('läuft\\n')\n"
                       "B <- A; e <- d; n <- none; x2 <- x\n"
                       "is <- c(is.nan(A[2,3]), is.na(d$x[2]), !is.nan(d$x[2]), is.na(d$name[2]), 1 / "
                       "A[1,2], 1 / d$x[3])\n"
                       "1:2\n",
                       "A, d, none, d.x", "B, e, n, x2, is"));
    CHECK(desk.output.terminal == "läuft\n[1] 1 2\n");
    desk.CheckCopies();
    double const inf = std::numeric_limits<double>::infinity();
    CHECK(desk.Matrix("is") == (Eigen::MatrixXd(6, 1) << 1, 1, 1, 1, -inf, -inf).finished());
}

TEST_CASE("what R gives becomes a matrix or a dataset by what it is")
{
    if (IsMissing("R"))
        return;
    BridgeDesk desk("rproject");
    desk.Run(desk.Call(
        "rm(list = ls())\n"
        "i <- 1:3; b <- TRUE; m <- matrix(1:4, 2, byrow = TRUE); t <- ts(c(1, 2)); na <- c(1, NA)\n"
        "d <- data.frame(f = factor(c('u', NA, 'ä')), `my end` = c(TRUE, NA, FALSE), x = 1:3, "
        "check.names = FALSE)\n"
        "big <- data.frame(x = numeric(100000), s = 'long')\n",
        "A", "i, b, m, t, na, d, big"));
    CHECK(desk.Matrix("i") == Eigen::MatrixXd(Eigen::Vector3d(1, 2, 3)));
    CHECK(desk.Matrix("b")(0, 0) == 1.0);
    CHECK(desk.Matrix("m") == (Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished());
    CHECK(desk.Matrix("t") == Eigen::MatrixXd(Eigen::Vector2d(1, 2)));
    CHECK(desk.Matrix("na")(0, 0) == 1.0);
    CHECK(std::isnan(desk.Matrix("na")(1, 0)));
    auto const& d = desk["d"];
    CHECK(d.labelledColumns.at(1).labels == std::vector<std::string>{"u", "", "ä"});
    CHECK(d.varNames[2] == "my_end");
    CHECK(d.data(0, 2) == 1.0);
    CHECK(std::isnan(d.data(1, 2)));
    CHECK(d.data.col(3) == Eigen::Vector3d(1, 2, 3));
    CHECK(desk["big"].data.rows() == 100000);
    CHECK(desk["big"].labelledColumns.at(2).levels == std::vector<std::string>{"long"});
    CHECK(desk.output.warnings.size() == 1);
}

TEST_CASE("what R can't do is one error in its own words")
{
    if (IsMissing("R"))
        return;
    BridgeDesk desk("rproject");
    auto const failure = [&](auto const&... names) { return desk.FailureOf(names...); };
    CHECK(Has(failure("stop('boom')\n", "", ""), "Line 1, column 1: R ended with status 1: Error in"));
    CHECK(Has(failure("stop('boom')\n", "", ""), ": boom\n"));
    CHECK(Has(failure("x <- c(1,\ny <- }\n", "", ""), "2:6: unexpected '}'"));
    CHECK(Has(failure("", "", "x"), "Error: the script made no \"x\" that could be handed back"));
    CHECK(Has(failure("x <- list(1)", "", "x"), "Error: \"x\" is a list, which can't be handed back"));
    CHECK(Has(failure("x <- 1i", "", "x"), "Error: \"x\" is a complex, which can't be handed back"));
    CHECK(Has(failure("x <- array(1, c(2, 2, 2))", "", "x"),
              "Error: \"x\" is a array, which can't be handed back"));
    CHECK(Has(failure("x <- data.frame(a = Sys.Date())", "", "x"),
              "Error: the column \"a\" holds neither numbers nor text, but Date"));
    CHECK(Has(failure("x <- data.frame()", "", "x"),
              "a dataset that comes back needs a variable and an observation at least"));
    CHECK(failure("quit()", "", "x")
          == "Line 1, column 1: R handed back no \"x\": the script ended it before");
}

TEST_CASE("a script of R that never ends can be interrupted")
{
    if (IsMissing("R"))
        return;
    BridgeDesk desk("rproject");
    desk.CheckInterrupted("repeat {}");
}
