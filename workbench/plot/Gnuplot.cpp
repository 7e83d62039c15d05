#include "workbench/plot/Gnuplot.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "workbench/engine/AtomicFile.h"
#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"
#include "workbench/plot/Figure.h"

extern char** environ;

namespace workbench
{
namespace
{
constexpr std::size_t LARGEST_PICTURE = std::size_t{1} << 28;
constexpr std::size_t KEPT_MESSAGES = 4096;
constexpr std::size_t LONGEST_REASON = 200;
constexpr int STEP_MS = 20;

[[noreturn]] void FailToStart(int error)
{
    throw Error(std::string("gnuplot, which draws the figures, cannot be started: ") + std::strerror(error)
                + (error == ENOENT ? "; is it installed?" : ""));
}

[[noreturn]] void FailToDraw(std::string const& reason)
{
    throw Error("gnuplot could not draw the figure: " + reason);
}

void Close(int& descriptor)
{
    if (descriptor >= 0)
        close(std::exchange(descriptor, -1));
}

/// A file without a name that holds `text`, to be read from its beginning. Unlike a pipe it takes the
/// whole text at once, and nobody's end breaks it.
int FileOf(std::string const& text)
{
    int descriptor = memfd_create("zenqo-figure", MFD_CLOEXEC);
    for (std::size_t done = 0; descriptor >= 0 && done < text.size();)
    {
        auto const written
            = pwrite(descriptor, text.data() + done, text.size() - done, static_cast<off_t>(done));
        if (written > 0)
            done += static_cast<std::size_t>(written);
        else if (written == 0 || errno != EINTR)
            Close(descriptor);
    }
    return descriptor;
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
} // namespace

Gnuplot::Gnuplot(Figure const& figure, Picture const& picture) : m_format(picture.format)
{
    Start(GnuplotScript(figure, picture));
}

Gnuplot::~Gnuplot() { End(); }

void Gnuplot::Start(std::string const& script)
{
    int input = FileOf(script);
    int drawn[2] = {-1, -1};
    int said[2] = {-1, -1};
    int error = 0;
    if (input < 0 || pipe2(drawn, O_CLOEXEC | O_NONBLOCK) != 0 || pipe2(said, O_CLOEXEC | O_NONBLOCK) != 0)
        error = errno;
    else
    {
        // The program's own ends wait as usual.
        fcntl(drawn[1], F_SETFL, 0);
        fcntl(said[1], F_SETFL, 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, drawn[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, said[1], STDERR_FILENO);
        std::array<std::string, 2> words{"gnuplot", "--default-settings"};
        std::array<char*, 3> arguments{words[0].data(), words[1].data(), nullptr};
        error = posix_spawnp(&m_process, "gnuplot", &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
    }
    Close(input);
    Close(drawn[1]);
    Close(said[1]);
    m_drawn = drawn[0];
    m_said = said[0];
    if (error != 0)
    {
        m_process = -1;
        End();
        FailToStart(error);
    }
}

void Gnuplot::Read()
{
    std::array<char, 65536> buffer;
    for (auto [descriptor, kept] : {std::pair(&m_drawn, &m_picture), std::pair(&m_said, &m_messages)})
        while (*descriptor >= 0)
        {
            auto const got = read(*descriptor, buffer.data(), buffer.size());
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0 && errno == EAGAIN)
                break;
            if (got <= 0)
                Close(*descriptor);
            else
                kept->append(buffer.data(), static_cast<std::size_t>(got));
            if (m_messages.size() > KEPT_MESSAGES)
                m_messages.erase(0, m_messages.size() - KEPT_MESSAGES);
            if (m_picture.size() > LARGEST_PICTURE)
            {
                m_tooMuch = true;
                return;
            }
        }
}

bool Gnuplot::Wait(int milliseconds)
{
    if (m_isDone)
        return true;
    pollfd ready[2] = {{m_drawn, POLLIN, 0}, {m_said, POLLIN, 0}};
    poll(ready, 2, milliseconds);
    // What it wrote before its end is there to be read behind it.
    bool const ended = waitpid(m_process, &m_status, WNOHANG) != 0;
    if (ended)
        m_process = -1;
    Read();
    if (ended || m_tooMuch)
    {
        End();
        m_isDone = true;
    }
    return m_isDone;
}

void Gnuplot::End()
{
    if (m_process > 0)
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        m_process = -1;
    }
    Close(m_drawn);
    Close(m_said);
}

std::string const& Gnuplot::Result() const
{
    if (m_tooMuch)
        FailToDraw("it gave more than any picture holds");
    if (WIFSIGNALED(m_status))
        FailToDraw("it was ended by the signal " + std::to_string(WTERMSIG(m_status)));
    auto const reason = LastLine(m_messages);
    if (m_status != 0)
        FailToDraw(reason.empty() ? "it ended with status " + std::to_string(WEXITSTATUS(m_status)) : reason);
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
