#pragma once

#include <string>
#include <vector>

#include "engine/Dataset.h"
#include "engine/Model.h"

namespace workbench
{
class Progress;

/// The kinds of plot, those of datasets in the order of the dialog that asks for one.
enum class PlotType
{
    Histogram,
    Scatter,
    History,
    Density,
    Lines,
    Correlogram,
    All ///< Histogram, history, density and correlogram of each variable.
};

/// Their names in scripts, in their order.
std::vector<std::string> const& PlotTypeNames();

/// From where to where an axis goes.
struct Range
{
    double low = 0.0;
    double high = 1.0;
};

/// What is drawn of one row of points.
struct Series
{
    enum class Style
    {
        Line,     ///< Through the points; a y that is NaN breaks it.
        Marks,    ///< A disc at each point.
        Bars,     ///< As wide as `width`, from 0 up, their middle at x.
        Impulses, ///< A thick stroke from 0 to y.
        Area,     ///< Between 0 and the points.
        Dashes,   ///< A dashed line through the points.
        Rule      ///< A thin grey line through the points.
    };

    explicit Series(Style kind = Style::Line, int colourNumber = 0) : style(kind), colour(colourNumber) {}

    Style style;
    int colour;         ///< The number of its colour.
    std::vector<double> x;
    std::vector<double> y;
    std::string name;   ///< In the legend; empty if it is not there.
    double width = 1.0; ///< Of a bar, in units of x.
};

/// A pair of axes with what is drawn between them.
struct Panel
{
    std::string xLabel;
    std::string yLabel;
    std::string note;  ///< A few words above the panel: how it was computed.
    Range x;
    Range y;
    bool wholeX = false; ///< Only whole numbers mean something on the axis.
    bool wholeY = false;
    std::vector<Series> series;
};

/// All that is to be drawn. It keeps the numbers, so it stays as it is when the dataset changes.
struct Figure
{
    std::string title;       ///< Names the figure in a list; it is not drawn.
    std::vector<Panel> panels;
    int columns = 1;         ///< How many panels stand side by side.
    std::string description; ///< Lines of text: what was computed, and how many values were left out.
};

/// The most variables that one figure takes.
constexpr std::size_t MOST_PLOTTED = 25;

/// Makes the figure of variables of `dataset`.
///
/// Histogram, Density, History and Correlogram have a panel for each variable, All has four, Scatter
/// one for each variable but the last, and Lines one panel for all; Scatter and Lines have the last variable
/// on the horizontal axis. Values that are missing or infinite are left out, by Scatter and Lines
/// observations that have one. A line is broken where one is left out.
///
/// Throws an Error if there are too few or too many variables, if one is not there, is given twice or
/// holds text, or if there is nothing to compute or to draw.
Figure MakeFigure(Dataset const& dataset, std::vector<std::string> const& variables, PlotType type,
                  Progress& progress);

/// The same of the draws of `model`, which has some. A history shows the chains one behind the other;
/// the autocorrelations are those within the chains.
Figure MakeFigure(Model const& model, std::vector<std::string> const& draws, PlotType type,
                  Progress& progress);
} // namespace workbench
