#include "workbench/plot/GnuplotScript.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <string_view>

#include "workbench/engine/Error.h"
#include "workbench/engine/Utf8.h"
#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
/// Names longer than this would leave no room for what they name.
constexpr std::size_t LONGEST_LABEL = 40;

/// In units of the picture. Drawing on Cairo gnuplot takes sizes for points of 4/3 units.
constexpr double FONT_SIZE = 14.0;
constexpr double NOTE_SIZE = 12.0;
constexpr char const* CAIRO_FONT_SCALE = " fontscale 0.75";

/// Colours that stay apart in print and for the colour-blind: M. Okabe and K. Ito, "Color Universal
/// Design" (2008), from the darkest on.
char const* const COLOURS[] = {"#0072b2", "#d55e00", "#009e73", "#cc79a7", "#56b4e9", "#e69f00", "#404040"};

/// How the lines of one colour differ once the colours begin anew.
char const* const DASHES[] = {"solid", "'-'", "'.'", "'_.'"};

void Append(std::string& text, double value)
{
    char buffer[32];
    auto const end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    text.append(buffer, end);
}

std::string Text(double value)
{
    std::string text;
    Append(text, value);
    return text;
}

/// A text that gnuplot takes as it stands: all but letters and digits is written as its bytes'
/// octal codes, so that nothing in it can mean anything.
std::string Quote(std::string const& text)
{
    std::string_view shown = text;
    bool const tooLong = CountCharacters(text) > LONGEST_LABEL;
    if (tooLong)
        shown = FirstCharacters(text, LONGEST_LABEL - 3);
    std::string quoted = "\"";
    for (char const c : shown)
    {
        auto const byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F)
            quoted += ' ';
        else if (byte < 0x80 && std::isalnum(byte))
            quoted += c;
        else
        {
            // A code that begins with 0 is read up to four digits, any other up to three.
            quoted += byte < 0100 ? "\\0" : "\\";
            for (int const shift : {6, 3, 0})
                quoted += std::to_string(byte >> shift & 7);
        }
    }
    return quoted + (tooLong ? "...\"" : "\"");
}

char const* ColourOf(Series const& series)
{
    return COLOURS[static_cast<std::size_t>(series.colour) % std::size(COLOURS)];
}

char const* DashOf(Series const& series)
{
    return DASHES[static_cast<std::size_t>(series.colour) / std::size(COLOURS) % std::size(DASHES)];
}

/// The least of 1, 2 and 5 times a power of ten that is no less than `step`.
double RoundStep(double step)
{
    double const power = std::pow(10.0, std::floor(std::log10(step)));
    for (double const factor : {1.0, 2.0, 5.0})
        if (factor * power >= step * (1.0 - 1e-9))
            return factor * power;
    return 10.0 * power;
}

/// The commands that divide an axis: gnuplot would not see when its numbers run into each other.
std::string Axis(char const* axis, Range const& range, double mostTics, bool whole)
{
    double step = RoundStep((range.high - range.low) / mostTics);
    if (whole)
        step = std::max(1.0, step);
    double const size = std::max(std::abs(range.low), std::abs(range.high));
    int const digits = static_cast<int>(std::clamp(std::log10(size / step) + 2.0, 6.0, 15.0));
    std::string const name = axis;
    return "set " + name + "range [" + Text(range.low) + ":" + Text(range.high) + "]\n"
           + "set " + name + "tics " + Text(step) + "\n"
           + "set format " + name + " '%." + std::to_string(digits) + "g'\n";
}

std::string BlockName(std::size_t panel, std::size_t series)
{
    return "$d" + std::to_string(panel) + "_" + std::to_string(series);
}

/// The points as a block of data. An empty line in it breaks a line.
void AppendBlock(std::string& script, std::string const& name, Series const& series)
{
    script += name + " << END\n";
    for (std::size_t i = 0; i < series.x.size(); ++i)
    {
        if (!std::isnan(series.y[i]))
        {
            Append(script, series.x[i]);
            script += ' ';
            Append(script, series.y[i]);
            script += '\n';
        }
        // More than one in a row would begin another set of data.
        else if (i > 0 && !std::isnan(series.y[i - 1]))
            script += '\n';
    }
    script += "END\n";
}

/// How a series is drawn; `size` is that of the panel beside one made for the screen.
std::string StyleOf(Series const& series, double size)
{
    std::string const colour = " lc rgb '" + std::string(ColourOf(series)) + "'";
    switch (series.style)
    {
    case Series::Style::Line:
        // Lines of many points would run together.
        return "with lines lw " + std::string(series.x.size() > 2000 ? "1" : "1.8") + colour + " dt "
               + DashOf(series);
    case Series::Style::Marks:
        return "with points pt 7 ps " + Text((series.x.size() > 2000 ? 0.25 : series.x.size() > 200 ? 0.4 : 0.6) * size)
               + colour;
    case Series::Style::Bars:
        return "using 1:2:(" + Text(series.width) + ") with boxes fs solid 0.65 border lc rgb '#ffffff'"
               + " fc rgb '" + ColourOf(series) + "' lw 0.7";
    case Series::Style::Impulses:
        return "with impulses lw " + Text(3.0 * size) + colour;
    case Series::Style::Area:
        return "with filledcurves y1=0 fs solid 0.15 noborder fc rgb '" + std::string(ColourOf(series)) + "'";
    case Series::Style::Dashes:
        return "with lines lw 1.2 dt '-'" + colour;
    case Series::Style::Rule:
        break;
    }
    return "with lines lw 1 lc rgb '#808080'";
}

std::string Terminal(Picture const& picture, double lettering)
{
    std::string const size = Text(picture.width) + "," + Text(picture.height);
    std::string const font = " font 'sans-serif," + Text(FONT_SIZE * lettering) + "'";
    switch (picture.format)
    {
    case PictureFormat::Svg:
        return "set terminal svg noenhanced size " + size + " fixed background '#ffffff'" + font
               + " linewidth " + Text(picture.scale) + "\n";
    case PictureFormat::Pdf:
        return "set terminal pdfcairo noenhanced size " + Text(picture.width / 72.0) + "in,"
               + Text(picture.height / 72.0) + "in background '#ffffff'" + font + CAIRO_FONT_SCALE + " linewidth "
               + Text(2.0 * picture.scale) + "\n";
    case PictureFormat::Png:
        break;
    }
    return "set terminal pngcairo noenhanced size " + size + " background '#ffffff'" + font
           + CAIRO_FONT_SCALE + " linewidth " + Text(picture.scale) + "\n";
}
} // namespace

PictureFormat FormatOf(std::string const& path)
{
    auto extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".png")
        return PictureFormat::Png;
    if (extension == ".svg")
        return PictureFormat::Svg;
    if (extension == ".pdf")
        return PictureFormat::Pdf;
    throw Error("a figure is written as .png, .svg or .pdf, but \"" + path + "\" has none of these endings");
}

Picture FilePicture(Figure const& figure, PictureFormat format)
{
    int const columns = figure.columns;
    int const rows = (static_cast<int>(figure.panels.size()) + columns - 1) / columns;
    double const unit = format == PictureFormat::Png ? 2.0 : format == PictureFormat::Pdf ? 0.75 : 1.0;
    auto const units = [unit](int count) { return static_cast<int>(std::lround(unit * count)); };
    return {format, units(std::max(720, 320 * columns)), units(std::max(480, 220 * rows)), unit};
}

Picture SizedPicture(PictureFormat format, int width, int height)
{
    double const unit = format == PictureFormat::Pdf ? 72.0 / 90.0 : 1.0;
    auto const units = [unit](int pixels) { return std::max(1, static_cast<int>(std::lround(unit * pixels))); };
    return {format, units(width), units(height), unit};
}

std::string GnuplotScript(Figure const& figure, Picture const& picture)
{
    int const columns = figure.columns;
    int const rows = (static_cast<int>(figure.panels.size()) + columns - 1) / columns;
    double const panelWidth = picture.width / picture.scale / columns;
    double const panelHeight = picture.height / picture.scale / rows;
    // In a small panel letters and marks are smaller too.
    double const size = std::clamp(std::min(panelWidth / 300.0, panelHeight / 200.0), 0.5, 1.0);
    double const lettering = size * picture.scale;

    std::string script = "set encoding utf8\n" + Terminal(picture, lettering)
                         + "set border 3 lw 0.8 lc rgb '#606060'\n"
                           "set tics nomirror out scale 0.6 textcolor rgb '#202020'\n"
                           "set grid lt 1 lw 0.5 lc rgb '#e4e4e4'\n"
                           "set style fill solid\n"
                           "set key noenhanced top left Left reverse samplen 2 opaque\n";
    for (std::size_t p = 0; p < figure.panels.size(); ++p)
        for (std::size_t s = 0; s < figure.panels[p].series.size(); ++s)
            AppendBlock(script, BlockName(p, s), figure.panels[p].series[s]);

    // Panels above each other share their left edge, so that one can read down along time.
    if (columns == 1 && rows > 1)
        script += "set lmargin 11\n";
    script += "set multiplot layout " + std::to_string(rows) + "," + std::to_string(columns) + "\n";
    for (std::size_t p = 0; p < figure.panels.size(); ++p)
    {
        auto const& panel = figure.panels[p];
        script += Axis("x", panel.x, std::max(2.0, panelWidth / size / 85.0), panel.wholeX);
        script += Axis("y", panel.y, std::max(2.0, panelHeight / size / 55.0), panel.wholeY);
        script += "set xlabel " + Quote(panel.xLabel) + " noenhanced\n";
        script += "set ylabel " + Quote(panel.yLabel) + " noenhanced\n";
        script += "unset label\n";
        if (!panel.note.empty())
            script += "set label " + Quote(panel.note) + " at graph 1, graph 1 right offset 0,0.6 noenhanced "
                      "textcolor rgb '#606060' font 'sans-serif," + Text(NOTE_SIZE * lettering) + "'\n";
        script += "plot ";
        for (std::size_t s = 0; s < panel.series.size(); ++s)
        {
            auto const& series = panel.series[s];
            script += (s > 0 ? ", " : "") + BlockName(p, s) + " " + StyleOf(series, lettering)
                      + (series.name.empty() ? " notitle" : " title " + Quote(series.name));
        }
        script += "\n";
    }
    return script + "unset multiplot\n";
}
} // namespace workbench
