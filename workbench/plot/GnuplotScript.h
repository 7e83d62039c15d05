#pragma once

#include <string>

namespace workbench
{
struct Figure;

/// The kinds of file that a figure can become.
enum class PictureFormat
{
    Png,
    Svg,
    Pdf
};

/// What a figure is to be drawn as.
struct Picture
{
    PictureFormat format = PictureFormat::Png;
    int width = 0;  ///< In pixels of PNG, units of SVG, points of PDF (1/72 of an inch).
    int height = 0;
    double scale = 1.0; ///< Of letters and lines; 1 is made for a screen.
};

/// The format that the extension of `path` names, in upper or lower case. Throws an Error if it names
/// none.
PictureFormat FormatOf(std::string const& path);

/// The picture that a file of `figure` holds. A figure of one panel is 720 by 480 units: PNG has two
/// pixels for each, so that it stays sharp on a screen, and PDF 3/4 of a point, so that it fits on a
/// page. A figure of many panels is larger.
Picture FilePicture(Figure const& figure, PictureFormat format);

/// A picture of so many pixels on a screen of 90 dots per inch, and as large on paper.
Picture SizedPicture(PictureFormat format, int width, int height);

/// The commands that make gnuplot write `figure` on its standard output.
std::string GnuplotScript(Figure const& figure, Picture const& picture);
} // namespace workbench
