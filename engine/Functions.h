#pragma once

#include <string>

#include "engine/Export.h"

/// Breaks `text` into lines that fit the console. `flag` is true for a message that the console
/// prints behind a prefix of its own (a warning), the only use the widgets make of it.
ZENQO_API std::string BreakLongMassage(std::string const& text, bool flag);

/// Brings `text` to the long display form in which the console shows a model's detail.
ZENQO_API std::string ExpandContractStringLong(std::string const& text);

/// True if `id` is a legal name of the script language.
ZENQO_API bool CheckID(std::string const& id);

/// Rewrites `id` in place into a legal name: a file's base name goes in, the proposal for a
/// dataset's name comes out.
ZENQO_API void ProcessID(std::string& id);
