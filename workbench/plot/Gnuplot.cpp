#include "workbench/plot/Gnuplot.h"

#include <algorithm>
#include <cstring>

#include "workbench/engine/AtomicFile.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/outside/TerminalText.h"
#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
constexpr std::size_t LARGEST_PICTURE = std::size_t{1} << 28;
constexpr std::size_t KEPT_MESSAGES = 4096;
constexpr std::size_t LONGEST_REASON = 200;
constexpr int STEP_MS = 20;

[[noreturn]] void FailToDraw(std::string const& reason)
{
    throw Error("gnuplot could not draw the figure: " + reason);
}

/// The last line that is not empty.
std::string LastLine(std::string const& text)
{
    char const* const blanks = " \t\r\n";
    auto const end = text.find_last_not_of(blanks);
    if (end == std::string::npos)
        return {};
    auto const before = text.find_last_of('\n', end);
    auto const begin = text.find_first_not_of(blanks, before == std::string::npos ? 0 : before);
    return text.substr(begin, std::min(end + 1 - begin, LONGEST_REASON));
}

bool IsPicture(std::string const& bytes, PictureFormat format)
{
    auto const begins = [&](char const* text) { return bytes.compare(0, std::strlen(text), text) == 0; };
    switch (format)
    {
    case PictureFormat::Png: return begins("\x89PNG") && bytes.find("IEND") != std::string::npos;
    case PictureFormat::Svg: return begins("<?xml") && bytes.find("</svg>") != std::string::npos;
    case PictureFormat::Pdf: return begins("%PDF") && bytes.rfind("%%EOF") != std::string::npos;
    }
    return false;
}

Process StartGnuplot(std::string const& script)
{
    try
    {
        return Process({"gnuplot", {"--default-settings"}, {}, {}, script});
    }
    catch (StartError const& error)
    {
        throw Error(std::string("gnuplot, which draws the figures, cannot be started: ") + error.what()
                    + (error.isMissing ? "; is it installed?" : ""));
    }
}
} // namespace

Gnuplot::Gnuplot(Figure const& figure, Picture const& picture)
    : m_format(picture.format), m_process(StartGnuplot(GnuplotScript(figure, picture)))
{
}

bool Gnuplot::Wait(int milliseconds)
{
    bool const ended = m_process.Wait(milliseconds);
    m_picture += m_process.TakeOutput();
    m_messages = LastLines(m_messages + m_process.TakeMessages(), KEPT_MESSAGES);
    m_tooMuch = m_picture.size() > LARGEST_PICTURE;
    if (m_tooMuch)
        m_process.End();
    return ended || m_tooMuch;
}

std::string const& Gnuplot::Result() const
{
    if (m_tooMuch)
        FailToDraw("it gave more than any picture holds");
    auto const reason = LastLine(m_messages);
    auto const failure = m_process.Failure();
    if (!failure.empty())
        FailToDraw(reason.empty() ? "it " + failure : reason);
    if (!IsPicture(m_picture, m_format))
        FailToDraw(reason.empty() ? "what it gave is no picture" : reason);
    return m_picture;
}

std::string Draw(Figure const& figure, Picture const& picture, Progress& progress)
{
    Gnuplot gnuplot(figure, picture);
    while (!gnuplot.Wait(STEP_MS))
        progress.Update(0.5);
    return gnuplot.Result();
}

void WritePicture(std::string const& path, std::string const& picture)
{
    AtomicFile file(path);
    file.Write(picture.data(), picture.size());
    file.Commit();
}
} // namespace workbench
