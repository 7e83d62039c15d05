#include "workbench/script/PlotCommands.h"

#include <algorithm>

#include "workbench/analysis/Draws.h"
#include "workbench/engine/Progress.h"
#include "workbench/plot/Figure.h"
#include "workbench/plot/Gnuplot.h"
#include "workbench/script/Nearest.h"
#include "workbench/script/Output.h"

namespace workbench
{
namespace
{
/// The size of the first drawing for a window, which draws again for its own.
constexpr int WINDOW_WIDTH = 720;
constexpr int WINDOW_HEIGHT = 480;

PlotType TypeAt(Arguments const& arguments, std::size_t index)
{
    auto const& names = PlotTypeNames();
    auto const& name = arguments.Text(index);
    auto const found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        throw ScriptError("there is no type of plot \"" + name + "\"" + Suggestion(name, names, "types"),
                          arguments.PositionOf(index));
    return static_cast<PlotType>(found - names.begin());
}
/// The figure of what is named: variables of a dataset, or draws of a model.
Figure FigureOf(Arguments const& arguments, PlotType type, Progress& progress)
{
    auto const object = arguments.AnyObject(0);
    auto const names = arguments.Names(1);
    if (auto const* const dataset = std::get_if<std::shared_ptr<Dataset>>(&object))
        return MakeFigure(**dataset, names, type, progress);
    auto const* const model = std::get_if<std::shared_ptr<Model>>(&object);
    if (!model)
        throw ScriptError("expected the name of a dataset or a model, but \"" + arguments.Text(0) + "\" is none",
                          arguments.PositionOf(0));
    CheckDraws(**model, arguments.Text(0));
    return MakeFigure(**model, names, type, progress);
}
} // namespace

Outcome RunPlot(Context const& context, Arguments const& arguments)
{
    bool const toFile = arguments.Count() > 3;
    auto const type = TypeAt(arguments, 2);
    auto const format = toFile ? FormatOf(arguments.Text(3)) : PictureFormat::Png;
    if (!toFile && !context.output.ShowsFigures())
        throw Error("there is no window that could show the figure; give the path of a file as the "
                    "fourth argument, which ends in .png, .svg or .pdf");

    ProgressScope progress(context.progress, "Drawing the figure");
    auto figure = FigureOf(arguments, type, context.progress);
    figure.title = arguments.Text(0) + ": " + figure.title;
    auto const picture
        = toFile ? FilePicture(figure, format) : Picture{format, WINDOW_WIDTH, WINDOW_HEIGHT, 1.0};
    auto const drawn = Draw(figure, picture, context.progress);
    if (toFile)
        WritePicture(arguments.Text(3), drawn);
    context.output.Text("\nPlot of " + figure.title + "\n" + figure.description);
    if (!toFile)
        context.output.ShowFigure(std::make_shared<Figure>(std::move(figure)), drawn);
    return {};
}
} // namespace workbench
