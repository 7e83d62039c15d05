#include "common/Number.h"

#include <array>
#include <charconv>
#include <string_view>

namespace zenqo
{
namespace
{
/// "-1.79769e+308" is the longest text there is.
using Buffer = std::array<char, 32>;

std::string_view Write(double value, Buffer& buffer)
{
    auto const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::general, 6)
                         .ptr;
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}
} // namespace

std::string FormatNumber(double value)
{
    Buffer buffer;
    return std::string(Write(value, buffer));
}

wxString FormatNumberWide(double value)
{
    Buffer buffer;
    auto const text = Write(value, buffer);
    return wxString::FromAscii(text.data(), text.size());
}

wxString const& NumberText::Of(double value)
{
    Buffer buffer;
    auto const text = Write(value, buffer);
    m_wide.assign(text.begin(), text.end());
    return m_text = m_wide;
}
} // namespace zenqo
