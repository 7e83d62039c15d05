#pragma once

/// Marks a class, function or variable that crosses the border of the shared library.
/// The library is compiled with hidden visibility, so whatever lacks the mark stays inside.
/// Hosts that define the engine's symbols get the same mark through the declarations here,
/// and so keep the definitions visible to the library whatever flags they compile with.
#define ZENQO_API __attribute__((visibility("default")))
