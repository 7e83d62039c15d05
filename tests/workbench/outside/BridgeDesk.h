#pragma once

#include <limits>
#include <string>

#include "workbench/DataDesk.h"
#include "workbench/Scratch.h"

/// A workspace with something to hand to scripts of other programs, and the scripts that a test writes.
struct BridgeDesk : DataDesk
{
    explicit BridgeDesk(std::string const& call) : command(call)
    {
        double const na = std::numeric_limits<double>::quiet_NaN();
        double const inf = std::numeric_limits<double>::infinity();
        auto const data = workbench::MakeDataset({"x", "name", "end"}, 3);
        data->data.col(1) << 0.1, na, -0.0;
        data->data.col(2) << 0, na, 1;
        data->data.col(3) << inf, 5e-324, 1e308;
        data->labelledColumns[2] = {{"ä b", "c"}, {"ä b", "", "c"}};
        workspace.Assign("d", data);
        auto const matrix = std::make_shared<Eigen::MatrixXd>(2, 3);
        *matrix << 1.0000000000000002, -0.0, inf, 5e-324, -inf, na;
        workspace.Assign("A", matrix);
        workspace.Assign("none", std::make_shared<Eigen::MatrixXd>(0, 3));
    }

    /// The statement that runs `script`, which lies in a folder with a troublesome name.
    std::string Call(std::string const& script, std::string const& out, std::string const& back) const
    {
        return command + "(\"" + scratch.Write("ein Skript's $HOME *ä", script) + "\", \"" + out
               + "\", \"" + back + "\");";
    }

    /// What is told of a script that fails.
    std::string FailureOf(std::string const& script, std::string const& out, std::string const& back)
    {
        return Failure(Call(script, out, back));
    }

    /// Interrupts a script that never ends.
    void CheckInterrupted(std::string const& script)
    {
        meter.stopAt = 12;
        CHECK(FailureOf(script, "A", "")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }

    /// Looks whether the script has handed back copies: `B` of A, `e` of d, `n` of none, `x2` of d.x.
    void CheckCopies()
    {
        CHECK(SameBits(Matrix("B"), Matrix("A")));
        auto back = (*this)["e"];
        back.name = "d";
        CHECK(SameBits(back, (*this)["d"]));
        CHECK(Matrix("n").rows() == 0);
        CHECK(Matrix("n").cols() == 3);
        CHECK(SameBits(Matrix("x2"), (*this)["d"].data.col(1)));
    }

    Eigen::MatrixXd const& Matrix(std::string const& name) const { return *workspace.matrices.at(name); }

    std::string command;
    Scratch scratch;
};

inline bool Has(std::string const& text, std::string const& piece)
{
    return text.find(piece) != std::string::npos;
}
