#include <catch2/catch.hpp>

#include <algorithm>
#include <filesystem>

#include <sys/wait.h>
#include <wx/image.h>
#include <wx/mstream.h>

#include "support/Stage.h"
#include "workbench/FakeProgram.h"
#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/plot/Figure.h"
#include "workbench/plot/Gnuplot.h"

using namespace workbench;

namespace
{
Figure Make(PlotType type, std::vector<std::string> const& names = {"a_b", "x"}, Eigen::Index rows = 50)
{
    auto data = MakeDataset(names, rows);
    for (Eigen::Index j = 1; j < data->data.cols(); ++j)
        for (Eigen::Index i = 0; i < rows; ++i)
            data->data(i, j) = std::sin(static_cast<double>(i * j)) + 0.01 * static_cast<double>(i);
    Progress progress;
    return MakeFigure(*data, names, type, progress);
}

std::string Drawn(Figure const& figure, Picture const& picture)
{
    Progress progress;
    return Draw(figure, picture, progress);
}

std::string Failure()
{
    return ErrorOf([] { Drawn(Make(PlotType::History), {PictureFormat::Png, 300, 200, 1.0}); });
}

wxImage ImageOf(std::string const& bytes)
{
    wxMemoryInputStream stream(bytes.data(), bytes.size());
    return wxImage(stream, wxBITMAP_TYPE_PNG);
}

bool Has(std::string const& text, std::string const& piece) { return text.find(piece) != std::string::npos; }

/// Whether a child process of this one is left.
bool HasChild() { return waitpid(-1, nullptr, WNOHANG) >= 0; }

constexpr PlotType ALL_TYPES[] = {PlotType::Histogram, PlotType::Scatter, PlotType::History,
                                  PlotType::Density,   PlotType::Lines,   PlotType::Correlogram};
} // namespace

TEST_CASE("a figure of every type is a picture of the stated size with something on it")
{
    for (auto const type : ALL_TYPES)
    {
        auto const& name = PlotTypeNames()[static_cast<std::size_t>(type)];
        INFO(name);
        auto const figure = Make(type);
        auto const png = ImageOf(Drawn(figure, FilePicture(figure, PictureFormat::Png)));
        REQUIRE(png.IsOk());
        CHECK(png.GetSize() == wxSize(1440, 960));
        CHECK(png.CountColours() > 20);
        Keep(png, "plot-" + name);

        auto const svg = Drawn(figure, FilePicture(figure, PictureFormat::Svg));
        CHECK(Has(svg, "width=\"720\" height=\"480\""));
        CHECK(Has(svg, "viewBox=\"0 0 720 480\""));
        CHECK(Has(svg, "<path"));
        bool const isTime = type == PlotType::History;
        bool const isLag = type == PlotType::Correlogram;
        CHECK(Has(svg, isTime ? "<text>Observation</text>" : isLag ? "<text>Lag</text>" : "<text>x</text>"));
        CHECK(Has(svg, isLag ? "<text>ACF of a_b</text>" : "<text>a_b</text>"));

        auto const pdf = Drawn(figure, FilePicture(figure, PictureFormat::Pdf));
        CHECK(pdf.compare(0, 5, "%PDF-") == 0);
        CHECK(Has(pdf, "MediaBox [ 0 0 540 360 ]"));
        CHECK(Has(pdf, "%%EOF"));
    }
    CHECK_FALSE(HasChild());
}

TEST_CASE("a figure of many panels is larger")
{
    auto const all = Make(PlotType::All, {"a_b", "x"}, 1000);
    auto const rows = ImageOf(Drawn(all, FilePicture(all, PictureFormat::Png)));
    REQUIRE(rows.IsOk());
    CHECK(rows.GetSize() == wxSize(2560, 960));
    Keep(rows, "plot-all");

    std::vector<std::string> names;
    for (int i = 1; i <= 25; ++i)
        names.push_back("v" + std::to_string(i));
    auto const figure = Make(PlotType::Density, names);
    CHECK(figure.columns == 5);
    auto const picture = FilePicture(figure, PictureFormat::Png);
    CHECK(picture.width == 3200);
    CHECK(picture.height == 2200);
    auto const image = ImageOf(Drawn(figure, picture));
    CHECK(image.GetSize() == wxSize(3200, 2200));
    Keep(image, "plot-25-densities");
}

TEST_CASE("a picture for a window has the window's size, however small or large")
{
    for (auto const& size : {wxSize(60, 60), wxSize(333, 77), wxSize(2500, 1400)})
        for (auto const type : ALL_TYPES)
        {
            auto const image = ImageOf(Drawn(Make(type), {PictureFormat::Png, size.x, size.y, 1.0}));
            CHECK(image.GetSize() == size);
        }
}

TEST_CASE("names are shown as they are")
{
    Scratch scratch;
    auto const made = scratch.Path("made");
    auto figure = Make(PlotType::Lines, {"y", "z", "x"});
    auto& panel = figure.panels[0];
    panel.xLabel = "a_b^2 {/Bold it's} \\n \"q\" \\";
    panel.yLabel = "`touch " + made + "` @x $y %z ~!";
    panel.series[0].name = "Größe €/m² <&> Δλ";
    panel.note = "'; system \"touch " + made + "\"; '";
    panel.series[2].name = "two\nlines";
    auto const svg = Drawn(figure, FilePicture(figure, PictureFormat::Svg));
    CHECK(Has(svg, "<text>a_b^2 {/Bold it's} \\n \"q\" \\</text>"));
    CHECK(Has(svg, "<text>`touch " + made.substr(0, 29)));
    CHECK(Has(svg, "<text>Größe €/m² &lt;&amp;> Δλ</text>"));
    CHECK(Has(svg, "<text>two lines</text>"));
    CHECK(Has(svg, "<text>'; system \"touch "));
    CHECK_FALSE(std::filesystem::exists(made));
    Keep(ImageOf(Drawn(figure, FilePicture(figure, PictureFormat::Png))), "plot-names");

    panel.xLabel = "\"-1'2.3`4(5)6\\7±0.49-x$1";
    CHECK(Has(Drawn(figure, FilePicture(figure, PictureFormat::Svg)), "<text>" + panel.xLabel + "</text>"));
    panel.xLabel = "";
    for (int i = 0; i < 60; ++i)
        panel.xLabel += "ä";
    std::string cut;
    for (int i = 0; i < 37; ++i)
        cut += "ä";
    CHECK(Has(Drawn(figure, FilePicture(figure, PictureFormat::Svg)), "<text>" + cut + "...</text>"));
}

TEST_CASE("many points are drawn")
{
    auto const figure = Make(PlotType::History, {"x"}, 200000);
    CHECK(ImageOf(Drawn(figure, FilePicture(figure, PictureFormat::Png))).IsOk());
}

TEST_CASE("values of any size give a figure")
{
    for (double const size : {1e-300, 1e-150, 1e-5, 1e12, 1e149})
        for (auto const type : ALL_TYPES)
        {
            INFO(size << PlotTypeNames()[static_cast<std::size_t>(type)]);
            auto data = MakeDataset({"x", "y"}, 5);
            data->data.col(1) << 1, 2, 3, 4, 5.5;
            data->data.col(2) << -1, 1, -2, 5, 2;
            data->data.rightCols(2) *= size;
            Progress progress;
            auto const figure = MakeFigure(*data, {"x", "y"}, type, progress);
            CHECK(ImageOf(Drawn(figure, {PictureFormat::Png, 400, 300, 1.0})).CountColours() > 10);
        }
}

TEST_CASE("a file's ending tells its format")
{
    CHECK(FormatOf("a/b.png") == PictureFormat::Png);
    CHECK(FormatOf("b.c.SVG") == PictureFormat::Svg);
    CHECK(FormatOf("b.Pdf") == PictureFormat::Pdf);
    for (std::string const path : {"", "b", "b.jpg", ".png", "png", "b.png/c"})
        CHECK(ErrorOf([&] { FormatOf(path); })
              == "a figure is written as .png, .svg or .pdf, but \"" + path + "\" has none of these endings");
}

TEST_CASE("a gnuplot that isn't there is one clear error")
{
    FakeGnuplot const none;
    CHECK(Failure()
          == "gnuplot, which draws the figures, cannot be started: No such file or directory; is it "
             "installed?");
}

TEST_CASE("a gnuplot that fails tells why")
{
    {
        FakeGnuplot const silent("exit 1");
        CHECK(Failure() == "gnuplot could not draw the figure: it ended with status 1");
    }
    {
        FakeGnuplot const telling("echo first >&2; echo 'line 7: no such font' >&2; echo >&2; exit 3");
        CHECK(Failure() == "gnuplot could not draw the figure: line 7: no such font");
    }
    {
        FakeGnuplot const killed("kill -9 $$");
        CHECK(Failure() == "gnuplot could not draw the figure: it was ended by the signal 9");
    }
    {
        FakeGnuplot const empty("exit 0");
        CHECK(Failure() == "gnuplot could not draw the figure: what it gave is no picture");
    }
    {
        FakeGnuplot const torn("printf '\\211PNG and no more'");
        CHECK(Failure() == "gnuplot could not draw the figure: what it gave is no picture");
    }
    CHECK_FALSE(HasChild());
}

TEST_CASE("a gnuplot that writes without end is ended")
{
    FakeGnuplot const endless("exec yes");
    CHECK(Failure() == "gnuplot could not draw the figure: it gave more than any picture holds");
    CHECK_FALSE(HasChild());
}

TEST_CASE("a gnuplot that says much is heard to its end, the last line kept")
{
    FakeGnuplot const talking("yes much to say | head -n 150000 >&2; echo the end >&2; exit 1");
    CHECK(Failure() == "gnuplot could not draw the figure: the end");
}

TEST_CASE("a gnuplot that hangs can be interrupted, and is gone then")
{
    FakeGnuplot const hanging("exec sleep 1000");
    Meter meter;
    meter.stopAt = 3;
    CHECK_THROWS_AS(Draw(Make(PlotType::History), {PictureFormat::Png, 300, 200, 1.0}, meter), Interrupted);
    CHECK_FALSE(HasChild());
}

TEST_CASE("a gnuplot that closes its output and hangs can be interrupted too")
{
    FakeGnuplot const hanging("exec sleep 1000 >&- 2>&-");
    Meter meter;
    meter.stopAt = 10;
    CHECK_THROWS_AS(Draw(Make(PlotType::History), {PictureFormat::Png, 300, 200, 1.0}, meter), Interrupted);
    CHECK_FALSE(HasChild());
}

TEST_CASE("a gnuplot that doesn't read its commands harms nobody")
{
    FakeGnuplot const deaf("exec <&-; exit 1");
    auto const figure = Make(PlotType::History, {"x"}, 100000);
    CHECK(ErrorOf([&] { Drawn(figure, {PictureFormat::Png, 300, 200, 1.0}); })
          == "gnuplot could not draw the figure: it ended with status 1");
}
