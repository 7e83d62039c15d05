#include <catch2/catch.hpp>

#include <filesystem>

#include <wx/image.h>

#include "workbench/FakeProgram.h"
#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/analysis/ModelMaking.h"
#include "workbench/engine/Workspace.h"
#include "workbench/plot/Figure.h"
#include "workbench/script/Interpreter.h"

namespace
{
/// An output with a window for figures.
class Album : public Recorder
{
public:
    bool ShowsFigures() const override { return true; }
    void ShowFigure(std::shared_ptr<workbench::Figure const> const& figure, std::string const& png) override
    {
        figures.push_back(figure);
        pictures.push_back(png);
    }

    std::vector<std::shared_ptr<workbench::Figure const>> figures;
    std::vector<std::string> pictures;
};

template <class Output> struct Desk
{
    Desk()
    {
        auto data = workbench::MakeDataset({"x", "y"}, 4);
        data->data.col(1) << 1, 2, 3, 5;
        data->data.col(2) << 2, 1, 4, 4;
        workspace.Assign("d", data);
    }

    bool Run(std::string const& script)
    {
        output.errors.clear();
        return interpreter.Run(script, workbench::Interpreter::Echo::None);
    }

    std::string Failure(std::string const& script)
    {
        if (Run(script))
            return "(no error)";
        return output.errors.size() == 1 ? output.errors[0] : "(not one error)";
    }

    workbench::Workspace workspace;
    Output output;
    Meter meter;
    workbench::Interpreter interpreter{workspace, output, meter};
};
} // namespace

TEST_CASE("a plot with a path is written there and told, and shown nowhere")
{
    Scratch const scratch;
    Desk<Album> desk;
    REQUIRE(desk.Run("plot(d, \"x y\", \"scatter\", \"" + scratch.Path("f.png") + "\");"));
    CHECK(wxImage(scratch.Path("f.png"), wxBITMAP_TYPE_PNG).GetSize() == wxSize(1440, 960));
    CHECK(desk.output.figures.empty());
    CHECK(desk.output.text == "\nPlot of d: scatter of x against y\nx and y: 4 observations, 0 left out\n");
    REQUIRE(desk.Run("plot(d, \" y  x \", \"history\", \"" + scratch.Path("f.SVG") + "\");"));
    CHECK(ReadFile(scratch.Path("f.SVG")).find("</svg>") != std::string::npos);
    CHECK(scratch.CountFiles() == 2);
    CHECK(desk.meter.begun == std::vector<std::string>{"Drawing the figure", "Drawing the figure"});
    CHECK(desk.meter.ended == 2);
}

TEST_CASE("a plot without a path goes to the window, and keeps its numbers")
{
    Desk<Album> desk;
    REQUIRE(desk.Run("plot(d, \"x\", \"history\"); clear(d);"));
    REQUIRE(desk.output.figures.size() == 1);
    CHECK(desk.output.figures[0]->title == "d: history of x");
    CHECK(desk.output.figures[0]->panels.at(0).series.at(0).y == std::vector<double>{1, 2, 3, 5});
    CHECK(desk.output.pictures[0].compare(1, 3, "PNG") == 0);
}

TEST_CASE("the draws of a model are plotted like variables")
{
    Scratch const scratch;
    Desk<Album> desk;
    Eigen::MatrixXd draws(6, 1);
    draws << 3, 1, 4, 1, 5, 9;
    desk.workspace.Assign("m", ModelOfDraws({"beta[1]"}, draws, 2));
    desk.workspace.Assign("bare", std::make_shared<Model>());
    REQUIRE(desk.Run("plot(m, \"beta[1]\", \"all\"); clear(m);"));
    REQUIRE(desk.output.figures.size() == 1);
    CHECK(desk.output.figures[0]->title == "m: all plots of beta[1]");
    CHECK(desk.output.figures[0]->panels.size() == 4);
    CHECK(desk.Failure("plot(bare, \"x\", \"all\");") == "Line 1, column 1: the model \"bare\" has no draws");
    CHECK(desk.Failure("a = [1]; plot(a, \"x\", \"all\");")
          == "Line 1, column 15: expected the name of a dataset or a model, but \"a\" is none");
}

TEST_CASE("without a window a plot needs a path")
{
    Desk<Recorder> desk;
    CHECK(desk.Failure("plot(d, \"x\", \"history\");")
          == "Line 1, column 1: there is no window that could show the figure; give the path of a file as "
             "the fourth argument, which ends in .png, .svg or .pdf");
}

TEST_CASE("a plot that can't be made is one error with its place, and changes nothing")
{
    Scratch const scratch;
    auto const file = scratch.Write("old.png", "old");
    Desk<Album> desk;
    auto const plot = [&](std::string const& arguments) { return desk.Failure("plot(" + arguments + ");"); };
    CHECK(plot("d, \"x\", \"histgram\"")
          == "Line 1, column 14: there is no type of plot \"histgram\"; did you mean \"histogram\"?");
    CHECK(plot("d, \"x\", \"pie\"")
          == "Line 1, column 14: there is no type of plot \"pie\"; the types are: histogram, scatter, history, "
             "density, lines, correlogram, all");
    CHECK(plot("e, \"x\", \"lines\"")
          == "Line 1, column 6: there is nothing called \"e\" in the workspace; the names are: d");
    CHECK(plot("d, \"z\", \"history\", \"" + file + "\"")
          == "Line 1, column 1: the dataset has no variable \"z\"");
    CHECK(plot("d, \" \", \"history\"") == "Line 1, column 1: no variables are given to be plotted");
    CHECK(plot("d, \"x\", \"scatter\", \"" + file + "\"")
          == "Line 1, column 1: a plot of type \"scatter\" needs two variables at least; the last one goes on "
             "the horizontal axis");
    CHECK(plot("d, \"x\", \"history\", \"f.jpg\"")
          == "Line 1, column 1: a figure is written as .png, .svg or .pdf, but \"f.jpg\" has none of these "
             "endings");
    CHECK(plot("d, \"x\", \"history\", \"/nowhere/at/all.png\"")
          == "Line 1, column 1: \"/nowhere/at/all.png\" cannot be written: No such file or directory");
    CHECK(desk.Failure("f = plot(d, \"x\", \"history\");")
          == "Line 1, column 5: \"plot\" gives nothing that could have a name; expected plot(name, "
             "\"variables\", \"type\", [\"path\"]);");
    {
        FakeGnuplot const none;
        CHECK(plot("d, \"x\", \"history\", \"" + file + "\"")
              == "Line 1, column 1: gnuplot, which draws the figures, cannot be started: No such file or "
                 "directory; is it installed?");
        CHECK(plot("d, \"x\", \"history\"")
              == "Line 1, column 1: gnuplot, which draws the figures, cannot be started: No such file or "
                 "directory; is it installed?");
    }
    {
        FakeGnuplot const hanging("exec sleep 1000");
        desk.meter.stopAt = static_cast<int>(desk.meter.fractions.size()) + 2;
        CHECK(plot("d, \"x\", \"history\", \"" + file + "\"")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(ReadFile(file) == "old");
    CHECK(scratch.CountFiles() == 1);
    CHECK(desk.output.figures.empty());
    CHECK(desk.output.text.empty());
    CHECK(desk.meter.ended == static_cast<int>(desk.meter.begun.size()));
}
