#pragma once

#include <wx/font.h>

namespace zenqo
{
/// The monospaced face of the details that must line up, upright and of normal weight.
wxFont TypewriterFont(int points);
} // namespace zenqo
