// What it takes to hand objects to a program of others and back, beside that program's own files.

#include <memory>
#include <random>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "benchmarks/Process.h"
#include "benchmarks/Silence.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/outside/RunFolder.h"
#include "workbench/script/Interpreter.h"

namespace benchmarks
{
namespace
{
constexpr Eigen::Index ROWS = 100000;
constexpr Eigen::Index COLUMNS = 20;

/// The seconds of a run of GNU Octave by hand. The code has single quotes for none.
double ByHand(std::string const& code)
{
    return Run("octave --quiet --no-gui --no-history --eval '" + code + "'").seconds;
}
} // namespace

void MeasureOutside(Table& table)
{
    Claim const wholeClaim{"octave, 100,000 x 20 there and back: against load and save", 1.5};
    Claim const aloneClaim{"octave, less an empty run, there and back: against both", 1.5};
    if (!table.Wants(wholeClaim.name) && !table.Wants(aloneClaim.name))
        return;
    workbench::RunFolder const folder;
    folder.Write("nothing.m", "");
    std::mt19937_64 random(1);
    std::normal_distribution<double> normal;
    workbench::Workspace workspace;
    workspace.Assign("X", std::make_shared<Eigen::MatrixXd>(Eigen::MatrixXd::NullaryExpr(
                              ROWS, COLUMNS, [&] { return normal(random); })));
    Silence output;
    workbench::Progress progress;
    workbench::Interpreter interpreter(workspace, output, progress);
    auto const script = [&](std::string const& names)
    {
        auto const statement =
            "octave(\"" + folder.Path("nothing.m") + "\", \"" + names + "\", \"" + names + "\");";
        return Seconds([&] { interpreter.Run(statement, workbench::Interpreter::Echo::None); });
    };
    auto const inFile = "\"" + folder.Path("in") + "\"";
    auto const outFile = "\"" + folder.Path("out") + "\"";
    ByHand("X = randn (100000, 20); save (\"-binary\", " + inFile + ", \"X\");");
    auto const byHand = [&]
    { return ByHand("load (" + inFile + "); save (\"-binary\", " + outFile + ", \"X\");"); };
    auto const nothingByHand = [] { return ByHand(""); };
    script("X");
    byHand();

    Rounds whole;
    Rounds alone;
    for (int i = 0; i < 9; ++i)
    {
        double const ours = script("X");
        double const theirs = byHand();
        double const oursEmpty = script("");
        double const theirsEmpty = nothingByHand();
        whole.Take([&] { return ours; }, [&] { return theirs; });
        alone.Take([&] { return ours - oursEmpty; }, [&] { return theirs - theirsEmpty; });
    }
    table.Add(wholeClaim, whole);
    table.Add(aloneClaim, alone);
}
} // namespace benchmarks
