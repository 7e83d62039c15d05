#pragma once

#include <string>

namespace benchmarks
{
/// The seconds from the start of a program until its first window stands painted on the screen.
///
/// The window is looked at from outside, every millisecond and the same way for every program: it
/// counts as painted when the window manager shows it and no point of a grid all over it is black,
/// as the screen behind is. Throws std::runtime_error if that does not come within a minute.
double SecondsToFirstPaint(std::string const& program);
} // namespace benchmarks
