#pragma once

#include <cstddef>
#include <string_view>

namespace workbench
{
/// The number of bytes of the UTF-8 character that begins at `text[position]`; 0 if none does
/// (overlong forms, surrogates and cut-off characters are none).
std::size_t CharacterLength(std::string_view text, std::size_t position);

bool IsUtf8(std::string_view text);

/// The number of characters; a byte that belongs to none counts as one.
std::size_t CountCharacters(std::string_view text);

/// The first `count` characters of `text`.
std::string_view FirstCharacters(std::string_view text, std::size_t count);
} // namespace workbench
