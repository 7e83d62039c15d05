#pragma once

#include <wx/bitmap.h>

namespace zenqo
{
/// The PNG picture `file` of the installation's "System Files/Icons", or no picture, in silence, if
/// it is missing or damaged. The host need not have installed the toolkit's image handlers.
wxBitmap SystemIcon(char const* file);
} // namespace zenqo
