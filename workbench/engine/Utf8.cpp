#include "workbench/engine/Utf8.h"

#include <algorithm>

namespace workbench
{
namespace
{
bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// How far `text` goes on to a text of at most `count` characters, and how many those are.
struct Walk
{
    std::size_t bytes = 0;
    std::size_t characters = 0;
};

Walk WalkCharacters(std::string_view text, std::size_t count)
{
    Walk walk;
    while (walk.bytes < text.size() && walk.characters < count)
    {
        walk.bytes += std::max<std::size_t>(1, CharacterLength(text, walk.bytes));
        ++walk.characters;
    }
    return walk;
}
} // namespace

std::size_t CharacterLength(std::string_view text, std::size_t position)
{
    auto const byte = [&](std::size_t offset) -> unsigned char {
        return position + offset < text.size() ? static_cast<unsigned char>(text[position + offset]) : 0;
    };

    unsigned char const lead = byte(0);
    if (position >= text.size())
        return 0;
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return IsContinuation(byte(1)) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF)
    {
        bool const overlong = lead == 0xE0 && byte(1) < 0xA0;
        bool const surrogate = lead == 0xED && byte(1) > 0x9F;
        return !overlong && !surrogate && IsContinuation(byte(1)) && IsContinuation(byte(2)) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4)
    {
        bool const overlong = lead == 0xF0 && byte(1) < 0x90;
        bool const beyond = lead == 0xF4 && byte(1) > 0x8F;
        return !overlong && !beyond && IsContinuation(byte(1)) && IsContinuation(byte(2))
                       && IsContinuation(byte(3))
                   ? 4
                   : 0;
    }
    return 0;
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();)
    {
        auto const length = CharacterLength(text, position);
        if (length == 0)
            return false;
        position += length;
    }
    return true;
}

std::size_t CountCharacters(std::string_view text)
{
    return WalkCharacters(text, text.size()).characters;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count)
{
    return text.substr(0, WalkCharacters(text, count).bytes);
}
} // namespace workbench
