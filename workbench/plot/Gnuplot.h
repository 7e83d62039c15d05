#pragma once

#include <string>

#include "workbench/outside/Process.h"
#include "workbench/plot/GnuplotScript.h"

namespace workbench
{
class Progress;

/// A running gnuplot that draws one picture. It works beside this process: whoever owns this lets it
/// go on with `Wait`. The program is looked for in PATH and started without a shell, takes its commands
/// from its standard input, and reads no settings of the user's.
class Gnuplot
{
public:
    /// Starts the drawing of `figure`. Throws an Error if gnuplot can't be started.
    Gnuplot(Figure const& figure, Picture const& picture);

    /// Takes what the program has drawn; waits for more up to so long. True once it is done.
    bool Wait(int milliseconds);

    /// The bytes of the picture, when it is done. Throws an Error that says why there is none.
    std::string const& Result() const;

private:
    PictureFormat m_format;
    Process m_process;
    bool m_tooMuch = false;
    std::string m_picture;
    std::string m_messages; ///< The last that it said.
};

/// Draws `figure` and gives the bytes of the picture. While it waits `progress` hears of it, and may
/// interrupt. Throws an Error that says why there is no picture.
std::string Draw(Figure const& figure, Picture const& picture, Progress& progress);

/// Writes the bytes of a picture to a file, whole or not at all (see AtomicFile).
void WritePicture(std::string const& path, std::string const& picture);
} // namespace workbench
