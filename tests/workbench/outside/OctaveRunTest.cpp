#include <catch2/catch.hpp>

#include "workbench/outside/BridgeDesk.h"
#include "workbench/outside/Installed.h"

TEST_CASE("GNU Octave gets and gives matrices and datasets to the last bit")
{
    if (IsMissing("octave"))
        return;
    BridgeDesk desk("octave");
    desk.Run(
        desk.Call("disp (\"läuft\");\n"
                  "B = A; e = d; n = none; x2 = x; t = d.(\"end\")(3) == 1e308;\n"
                  "isna = [isnan(A(2,3)), isnan(d.x(2)), isempty(d.name{2}), 1 / A(1,2), 1 / d.x(3)];\n",
                  "A, d, none, d.x", "B, e, n, x2, t, isna"));
    CHECK(desk.output.terminal == "läuft\n");
    desk.CheckCopies();
    CHECK(desk.Matrix("t")(0, 0) == 1.0);
    double const inf = std::numeric_limits<double>::infinity();
    CHECK(desk.Matrix("isna") == (Eigen::MatrixXd(1, 5) << 1, 1, 1, -inf, -inf).finished());
}

TEST_CASE("what GNU Octave gives becomes a matrix or a dataset by what it is")
{
    if (IsMissing("octave"))
        return;
    BridgeDesk desk("octave");
    desk.Run(
        desk.Call("clear all\n"
                  "i = int32 ([1, 2; 3, 4]); b = true; s = sparse ([0, 5]); f = single (0.1); r = 1:3;\n"
                  "t.a = [1, 2]; t.b = {\"u\", \"ä\"}; t.c = [true; false];\n"
                  "function y = twice (x)\n  y = 2 * x;\nendfunction\n"
                  "y = twice (21);\n",
                  "A", "i, b, s, f, r, t, y"));
    CHECK(desk.Matrix("i") == (Eigen::MatrixXd(2, 2) << 1, 2, 3, 4).finished());
    CHECK(desk.Matrix("b")(0, 0) == 1.0);
    CHECK(desk.Matrix("s") == Eigen::MatrixXd(Eigen::RowVector2d(0, 5)));
    CHECK(desk.Matrix("f")(0, 0) == static_cast<double>(0.1f));
    CHECK(desk.Matrix("r") == Eigen::MatrixXd(Eigen::RowVector3d(1, 2, 3)));
    CHECK(desk.Matrix("y")(0, 0) == 42.0);
    auto const& t = desk["t"];
    CHECK(t.data.col(1) == Eigen::Vector2d(1, 2));
    CHECK(t.labelledColumns.at(2).labels == std::vector<std::string>{"u", "ä"});
    CHECK(t.data.col(3) == Eigen::Vector2d(1, 0));
}

TEST_CASE("what GNU Octave can't do is one error in its own words")
{
    if (IsMissing("octave"))
        return;
    BridgeDesk desk("octave");
    auto const failure = [&](auto const&... names) { return desk.FailureOf(names...); };
    CHECK(Has(failure("x = 1;\nerror (\"boom %d\", 3);\n", "", ""),
              "Line 1, column 1: GNU Octave ended with status 1: error: boom 3"));
    auto const unread = failure("x = [1 2\ny = }\n", "", "");
    CHECK(Has(unread, "Line 1, column 1: GNU Octave ended with status 1: error: parse error near line 2 "
                      "of file "
                          + desk.scratch.Path("ein Skript's $HOME *ä")));
    CHECK(Has(unread, ">>> y = }\n"));
    CHECK(Has(failure("x = undefined_thing;\n", "", ""), "'undefined_thing' undefined"));
    CHECK(failure("", "", "x")
          == "Line 1, column 1: GNU Octave ended with status 1: error: the script made no \"x\" that "
             "could be handed back");
    CHECK(failure("x = {1, 2};", "", "x")
          == "Line 1, column 1: GNU Octave ended with status 1: error: \"x\" is of class cell and size "
             "1 by 2, and can't be "
             "handed back: what can is a matrix of real numbers, or a struct of columns as a dataset");
    CHECK(Has(failure("x = 1 + 2i;", "", "x"), "\"x\" is of class double, complex and size 1 by 1"));
    CHECK(Has(failure("x = zeros (2, 2, 2);", "", "x"), "size 2 by 2 by 2"));
    CHECK(Has(failure("x = \"text\";", "", "x"), "\"x\" is of class char"));
    CHECK(Has(failure("x.a = [1, 2]; x.b = 1;", "", "x"), "\"x.b\" is no column of a dataset"));
    CHECK(Has(failure("x = struct ();", "", "x"),
              "a dataset that comes back needs a variable and an observation at least"));
    CHECK(failure("exit", "", "x")
          == "Line 1, column 1: GNU Octave handed back no \"x\": the script ended it before");
    desk.Run("end = 1;");
    CHECK(Has(failure("", "end", ""), "keyword 'end'"));
}

TEST_CASE("a script of GNU Octave that never ends can be interrupted")
{
    if (IsMissing("octave"))
        return;
    BridgeDesk desk("octave");
    desk.CheckInterrupted("while (true) endwhile");
}
