#include "workbench/script/PlotCommands.h"

#include <algorithm>

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
    auto figure = MakeFigure(*arguments.DatasetAt(0), arguments.Names(1), type, context.progress);
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
