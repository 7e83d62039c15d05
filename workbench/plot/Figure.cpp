#include "workbench/plot/Figure.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <set>
#include <utility>

#include "common/Number.h"
#include "workbench/analysis/Draws.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Variables.h"
#include "workbench/plot/Autocorrelation.h"
#include "workbench/plot/Distribution.h"

namespace workbench
{
namespace
{
constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();

/// The number of points of a density.
constexpr int DENSITY_POINTS = 512;

/// A line of more points than this has no marks at its points.
constexpr std::size_t MARKED_POINTS = 100;

/// Beyond this an axis can't be divided.
constexpr double LARGEST = 1e150;

/// A figure of all types has so many panels for each variable.
constexpr std::size_t ALL_PANELS = 4;

/// What the plotted values are called.
struct Words
{
    std::string one;  ///< What has the values.
    std::string many;
    std::string row; ///< What has a value of each.
    std::string rows;
    std::string axis;
};

Words const OF_DATA{"variable", "variables", "observation", "observations", "Observation"};
Words const OF_DRAWS{"draw", "draws", "draw", "draws", "Draw"};

/// A variable, or the draws of a quantity, as they are plotted.
struct Variable
{
    std::string name;
    Words const* words = nullptr;
    Eigen::Index chain = 0; ///< So many values are of one chain.
    Eigen::VectorXd values; ///< NaN where there is none, or an infinite one.
    Eigen::Index missing = 0;
    Eigen::Index infinite = 0;

    Eigen::Index Count() const { return values.size() - missing - infinite; }

    SortedValues Sorted() const
    {
        SortedValues sorted;
        std::copy_if(values.begin(), values.end(), std::back_inserter(sorted),
                     [](double v) { return !std::isnan(v); });
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }
};

/// "the variable "x""
std::string Named(Variable const& variable)
{
    return "the " + variable.words->one + " \"" + variable.name + "\"";
}

/// `variable` has its name and its values; the rest is found here.
Variable Checked(Variable variable)
{
    for (double& value : variable.values)
    {
        variable.missing += std::isnan(value);
        variable.infinite += std::isinf(value);
        if (std::isinf(value))
            value = NOTHING;
        if (std::abs(value) > LARGEST)
            throw Error(Named(variable) + " has values beyond " + zenqo::FormatNumber(LARGEST)
                        + " in size, too large to be drawn");
    }
    if (variable.Count() == 0)
        throw Error(Named(variable) + " has no value that can be plotted");
    return variable;
}

std::string Counted(Eigen::Index count, char const* one, char const* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

/// The note above a panel.
std::string Note(Variable const& variable, char const* what, double number)
{
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.4g", number);
    return "n = " + std::to_string(variable.Count()) + ", " + what + digits;
}

/// The line about one variable.
std::string Describe(Variable const& variable, std::string const& computed)
{
    std::string text = variable.name + ": " + Counted(variable.Count(), "value", "values");
    if (variable.missing > 0)
        text += ", " + std::to_string(variable.missing) + " missing";
    if (variable.infinite > 0)
        text += ", " + std::to_string(variable.infinite) + " infinite and left out";
    return text + (computed.empty() ? "" : "; " + computed) + "\n";
}

/// The range of an axis for values from `low` to `high`, with some room at both ends.
Range Around(double low, double high)
{
    double const size = std::max(std::abs(low), std::abs(high));
    double room = 0.04 * (high - low);
    // An axis must not be shorter than what its numbers can tell apart.
    if (high - low < 1e-9 * size || high - low < 1e-290)
        room = size > 1e-280 ? 0.1 * size : 1.0;
    return {low - room, high + room};
}

/// The range of the values that are there, of which there is at least one.
Range RangeOf(std::vector<double> const& values)
{
    Range range{std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()};
    for (double const value : values)
        if (!std::isnan(value))
            range = {std::min(range.low, value), std::max(range.high, value)};
    return range;
}

/// The points at which a line has its marks: all if they are few, else those that no line meets.
Series MarksOf(Series const& line)
{
    Series marks(Series::Style::Marks, line.colour);
    auto const there = [&](std::size_t i) { return i < line.y.size() && !std::isnan(line.y[i]); };
    for (std::size_t i = 0; i < line.y.size(); ++i)
        if (there(i) && (line.y.size() <= MARKED_POINTS || (!there(i + 1) && (i == 0 || !there(i - 1)))))
        {
            marks.x.push_back(line.x[i]);
            marks.y.push_back(line.y[i]);
        }
    return marks;
}

void AddLine(Panel& panel, Series line)
{
    auto marks = MarksOf(line);
    panel.series.push_back(std::move(line));
    if (!marks.x.empty())
        panel.series.push_back(std::move(marks));
}

Panel HistogramPanel(Variable const& variable, std::string& description, Progress&)
{
    auto const histogram = MakeHistogram(variable.Sorted());
    Series bars(Series::Style::Bars);
    bars.width = histogram.width;
    for (std::size_t k = 0; k < histogram.counts.size(); ++k)
    {
        bars.x.push_back(histogram.start + (static_cast<double>(k) + 0.5) * histogram.width);
        bars.y.push_back(histogram.counts[k]);
    }
    auto const bins = static_cast<Eigen::Index>(histogram.counts.size());
    std::string const width = zenqo::FormatNumber(histogram.width);
    description += Describe(variable, Counted(bins, "bin", "bins") + " of width " + width
                                          + " (Freedman-Diaconis)");

    Panel panel;
    panel.xLabel = variable.name;
    panel.yLabel = "Frequency";
    panel.note = Note(variable, "bin width ", histogram.width);
    panel.x = Around(histogram.start, histogram.start + static_cast<double>(bins) * histogram.width);
    panel.y = {0.0, 1.06 * RangeOf(bars.y).high};
    panel.wholeY = true;
    panel.series.push_back(std::move(bars));
    return panel;
}

Panel DensityPanel(Variable const& variable, std::string& description, Progress& progress)
{
    auto const values = variable.Sorted();
    double const bandwidth = SilvermanBandwidth(values);
    if (!(bandwidth > 0.0))
        throw Error(Named(variable) + " has the same value at all " + variable.words->rows
                    + ", and such values have no density");
    Series curve(Series::Style::Line);
    double const start = values.front() - 3.0 * bandwidth;
    double const step = (values.back() + 3.0 * bandwidth - start) / (DENSITY_POINTS - 1);
    for (int i = 0; i < DENSITY_POINTS; ++i)
    {
        curve.x.push_back(start + i * step);
        curve.y.push_back(KernelDensity(values, bandwidth, curve.x.back()));
        progress.Update(0.0);
    }
    std::string const width = zenqo::FormatNumber(bandwidth);
    description += Describe(variable, "bandwidth " + width + " (Silverman)");

    Panel panel;
    panel.xLabel = variable.name;
    panel.yLabel = "Density";
    panel.note = Note(variable, "bandwidth ", bandwidth);
    panel.x = {curve.x.front(), curve.x.back()};
    panel.y = {0.0, 1.06 * RangeOf(curve.y).high};
    Series area = curve;
    area.style = Series::Style::Area;
    panel.series = {std::move(area), std::move(curve)};
    return panel;
}

Panel HistoryPanel(Variable const& variable, std::string& description, Progress&)
{
    Series line(Series::Style::Line);
    line.y.assign(variable.values.begin(), variable.values.end());
    for (std::size_t i = 1; i <= line.y.size(); ++i)
        line.x.push_back(static_cast<double>(i));
    description += Describe(variable, "");

    Panel panel;
    panel.xLabel = variable.words->axis;
    panel.yLabel = variable.name;
    // From the first observation to the last, with room for the marks.
    double const length = line.x.back() - 1.0;
    double const room = std::max(0.01 * length, 0.2);
    panel.x = {1.0 - room, line.x.back() + room};
    auto const y = RangeOf(line.y);
    panel.y = Around(y.low, y.high);
    panel.wholeX = true;
    AddLine(panel, std::move(line));
    return panel;
}

/// A level line over the whole of an axis.
Series Across(Range const& x, double height, Series line)
{
    line.x = {x.low, x.high};
    line.y = {height, height};
    return line;
}

/// The values with `lags` missing ones between two chains, so that no pair is of both.
Eigen::VectorXd ChainsApart(Variable const& variable, int lags)
{
    auto const chains = variable.values.size() / variable.chain;
    Eigen::MatrixXd apart = Eigen::MatrixXd::Constant(variable.chain + lags, chains, NOTHING);
    apart.topRows(variable.chain) = variable.values.reshaped(variable.chain, chains);
    return apart.reshaped().head(apart.size() - lags);
}

Panel CorrelogramPanel(Variable const& variable, std::string& description, Progress&)
{
    if (variable.Count() < 2)
        throw Error(Named(variable) + " has one value only, and needs two at least for a correlogram");
    int const lags = CorrelogramLags(variable.Count());
    auto const correlations = Autocorrelations(ChainsApart(variable, lags), lags);
    Series strokes(Series::Style::Impulses);
    for (int lag = 1; lag <= lags; ++lag)
        if (!std::isnan(correlations[lag - 1]))
        {
            strokes.x.push_back(lag);
            strokes.y.push_back(correlations[lag - 1]);
        }
    if (strokes.x.empty())
        throw Error(Named(variable) + " has the same value at all " + variable.words->rows
                    + ", or no two near each other, and so no autocorrelations");
    double const band = WhiteNoiseBand(variable.Count());
    std::string const half = zenqo::FormatNumber(band);
    description += Describe(variable, Counted(lags, "lag", "lags") + ", 95% band of white noise -" + half
                                          + " to " + half);

    Panel panel;
    panel.xLabel = "Lag";
    panel.yLabel = "ACF of " + variable.name;
    panel.note = Note(variable, "95% band ±", band);
    panel.x = {0.0, lags + 1.0};
    // In every correlogram the same, but of two or three values the band is wider than this.
    double const edge = std::max(1.0, 1.1 * band);
    panel.y = {-edge, edge};
    panel.wholeX = true;
    panel.series = {Across(panel.x, 0.0, Series(Series::Style::Rule)),
                    Across(panel.x, band, Series(Series::Style::Dashes, 1)),
                    Across(panel.x, -band, Series(Series::Style::Dashes, 1)), std::move(strokes)};
    return panel;
}

/// The points of two variables; where one of the two is left out y is NaN.
Series Pairs(Variable const& x, Variable const& y, std::string& description)
{
    Series pairs;
    Eigen::Index count = 0;
    for (Eigen::Index i = 0; i < x.values.size(); ++i)
    {
        bool const complete = !std::isnan(x.values[i]) && !std::isnan(y.values[i]);
        count += complete;
        // What has no place on the axis breaks a line just as well at any other.
        pairs.x.push_back(complete ? x.values[i] : 0.0);
        pairs.y.push_back(complete ? y.values[i] : NOTHING);
    }
    if (count == 0)
        throw Error("no " + x.words->row + " has values of both \"" + y.name + "\" and \"" + x.name
                    + "\" that can be plotted");
    description += y.name + " and " + x.name + ": "
                   + Counted(count, x.words->row.c_str(), x.words->rows.c_str()) + ", "
                   + std::to_string(x.values.size() - count) + " left out\n";
    return pairs;
}

/// The panel's axes, made to hold the points of its series.
void Frame(Panel& panel)
{
    std::vector<double> x;
    std::vector<double> y;
    for (auto const& series : panel.series)
        for (std::size_t i = 0; i < series.x.size(); ++i)
            if (!std::isnan(series.y[i]))
            {
                x.push_back(series.x[i]);
                y.push_back(series.y[i]);
            }
    auto const xRange = RangeOf(x);
    auto const yRange = RangeOf(y);
    panel.x = Around(xRange.low, xRange.high);
    panel.y = Around(yRange.low, yRange.high);
}

Panel ScatterPanel(Variable const& x, Variable const& y, std::string& description)
{
    auto const pairs = Pairs(x, y, description);
    Series marks(Series::Style::Marks);
    for (std::size_t i = 0; i < pairs.y.size(); ++i)
        if (!std::isnan(pairs.y[i]))
        {
            marks.x.push_back(pairs.x[i]);
            marks.y.push_back(pairs.y[i]);
        }
    Panel panel;
    panel.xLabel = x.name;
    panel.yLabel = y.name;
    panel.series.push_back(std::move(marks));
    Frame(panel);
    return panel;
}

/// One panel with a line for each variable but the last.
Panel LinesPanel(std::vector<Variable> const& variables, std::string& description)
{
    Panel panel;
    panel.xLabel = variables.back().name;
    for (std::size_t k = 0; k + 1 < variables.size(); ++k)
    {
        auto line = Pairs(variables.back(), variables[k], description);
        line.colour = static_cast<int>(k);
        // One line is told by the axis.
        if (variables.size() > 2)
            line.name = variables[k].name;
        else
            panel.yLabel = variables[k].name;
        AddLine(panel, std::move(line));
    }
    Frame(panel);
    return panel;
}

using PanelMaker = Panel (*)(Variable const&, std::string&, Progress&);

/// What makes the panels of one variable; nothing for the types that need two.
std::vector<PanelMaker> MakersOf(PlotType type)
{
    switch (type)
    {
    case PlotType::Histogram: return {HistogramPanel};
    case PlotType::Density: return {DensityPanel};
    case PlotType::History: return {HistoryPanel};
    case PlotType::Correlogram: return {CorrelogramPanel};
    case PlotType::All: return {HistogramPanel, HistoryPanel, DensityPanel, CorrelogramPanel};
    case PlotType::Scatter:
    case PlotType::Lines: break;
    }
    return {};
}

std::string TypeName(PlotType type) { return PlotTypeNames()[static_cast<std::size_t>(type)]; }

std::string TitleOf(std::vector<std::string> const& names, PlotType type)
{
    bool const pairs = MakersOf(type).empty();
    std::string title = TypeName(type) + (type == PlotType::All ? " plots of " : " of ");
    for (std::size_t i = 0; i < names.size(); ++i)
        title += (i == 0 ? "" : pairs && i + 1 == names.size() ? " against " : ", ") + names[i];
    return title;
}

void CheckNames(std::vector<std::string> const& names, PlotType type, Words const& words)
{
    if (names.empty())
        throw Error("no " + words.many + " are given to be plotted");
    if (names.size() < 2 && MakersOf(type).empty())
        throw Error("a plot of type \"" + TypeName(type) + "\" needs two " + words.many
                    + " at least; the last one goes on the horizontal axis");
    auto const most = type == PlotType::All ? MOST_PLOTTED / ALL_PANELS : MOST_PLOTTED;
    if (names.size() > most)
        throw Error(std::string("a figure ") + (type == PlotType::All ? "of all types " : "")
                    + "takes at most " + std::to_string(most) + " " + words.many + ", but "
                    + std::to_string(names.size()) + " are given");
    std::set<std::string> seen;
    for (auto const& name : names)
        if (!seen.insert(name).second)
            throw Error("\"" + name + "\" is given twice");
}

/// How many panels stand side by side. Histories stand one above the other, as time is common to all,
/// and so do variables of which all is shown.
int ColumnsFor(std::size_t panels, PlotType type)
{
    double const count = static_cast<double>(panels);
    if (type == PlotType::All && panels > ALL_PANELS)
        return ALL_PANELS;
    return static_cast<int>(type == PlotType::History ? std::ceil(count / 5.0) : std::ceil(std::sqrt(count)));
}

/// `take` gives the variable of a name.
template <class Take>
Figure MakeFigureOf(std::vector<std::string> const& names, PlotType type, Words const& words,
                    Take const& take, Progress& progress)
{
    CheckNames(names, type, words);
    std::vector<Variable> variables;
    for (auto const& name : names)
    {
        variables.push_back(take(name));
        variables.back().name = name;
        variables.back().words = &words;
        variables.back() = Checked(std::move(variables.back()));
    }

    Figure figure;
    figure.title = TitleOf(names, type);
    for (auto const& variable : variables)
        for (auto const& make : MakersOf(type))
            figure.panels.push_back(make(variable, figure.description, progress));
    if (type == PlotType::Lines)
        figure.panels.push_back(LinesPanel(variables, figure.description));
    if (type == PlotType::Scatter)
        for (std::size_t k = 0; k + 1 < variables.size(); ++k)
            figure.panels.push_back(ScatterPanel(variables.back(), variables[k], figure.description));
    figure.columns = ColumnsFor(figure.panels.size(), type);
    return figure;
}
} // namespace

std::vector<std::string> const& PlotTypeNames()
{
    static std::vector<std::string> const names{"histogram", "scatter",     "history", "density",
                                                "lines",     "correlogram", "all"};
    return names;
}

Figure MakeFigure(Dataset const& dataset, std::vector<std::string> const& names, PlotType type,
                  Progress& progress)
{
    auto const take = [&](std::string const& name)
    {
        Variable variable;
        variable.values = dataset.data.col(NumberColumnOf(dataset, name));
        variable.chain = variable.values.size();
        return variable;
    };
    return MakeFigureOf(names, type, OF_DATA, take, progress);
}

Figure MakeFigure(Model const& model, std::vector<std::string> const& names, PlotType type,
                  Progress& progress)
{
    auto const take = [&](std::string const& name)
    {
        auto const column = FindDraw(model, name);
        if (column < 0)
            throw Error("the model has no draw \"" + name + "\"");
        Variable variable;
        variable.values = model.draws.col(column);
        variable.chain = variable.values.size() / ChainsOf(model);
        return variable;
    };
    return MakeFigureOf(names, type, OF_DRAWS, take, progress);
}
} // namespace workbench
