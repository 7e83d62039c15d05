#include "workbench/engine/NumpyArray.h"

#include <charconv>
#include <limits>

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "array files are written as memory stands");

namespace workbench
{
namespace
{
constexpr std::string_view MAGIC("\x93NUMPY\x01\x00", 8);
constexpr std::size_t ALIGNMENT = 64;

/// Takes `expected` off the front of `text`.
bool Take(std::string_view& text, std::string_view expected)
{
    if (text.substr(0, expected.size()) != expected)
        return false;
    text.remove_prefix(expected.size());
    return true;
}

bool TakeDimension(std::string_view& text, Eigen::Index& dimension)
{
    // Indices of rows and columns are ints in the toolkit and in the record.
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), dimension);
    if (error != std::errc() || dimension < 0 || dimension > std::numeric_limits<int>::max())
        return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}
} // namespace

std::string WriteNumpyHead(NumpyHead const& head)
{
    std::string text = "{'descr': '<f8', 'fortran_order': ";
    text += head.columnMajor ? "True" : "False";
    text += ", 'shape': (" + std::to_string(head.rows) + ", " + std::to_string(head.cols) + "), }";
    auto const unpadded = NUMPY_PREAMBLE + text.size() + 1;
    text.append((ALIGNMENT - unpadded % ALIGNMENT) % ALIGNMENT, ' ');
    text += '\n';

    std::string result(MAGIC);
    result += static_cast<char>(text.size() & 0xFF);
    result += static_cast<char>(text.size() >> 8);
    return result + text;
}

std::optional<std::size_t> NumpyHeadSize(std::string_view preamble)
{
    if (preamble.size() != NUMPY_PREAMBLE || preamble.substr(0, MAGIC.size()) != MAGIC)
        return std::nullopt;
    auto const low = static_cast<unsigned char>(preamble[8]);
    auto const high = static_cast<unsigned char>(preamble[9]);
    return NUMPY_PREAMBLE + low + 256u * high;
}

std::optional<NumpyHead> ReadNumpyHead(std::string_view text, std::uint64_t dataSize)
{
    auto const size = NumpyHeadSize(text.substr(0, NUMPY_PREAMBLE));
    if (!size || *size != text.size())
        return std::nullopt;
    text.remove_prefix(NUMPY_PREAMBLE);

    NumpyHead head;
    if (!Take(text, "{'descr': '<f8', 'fortran_order': "))
        return std::nullopt;
    head.columnMajor = Take(text, "True");
    if (!head.columnMajor && !Take(text, "False"))
        return std::nullopt;
    if (!Take(text, ", 'shape': (") || !TakeDimension(text, head.rows) || !Take(text, ", ")
        || !TakeDimension(text, head.cols) || !Take(text, "), }"))
        return std::nullopt;
    auto const padding = text.find_first_not_of(' ');
    if (padding == std::string_view::npos || text.substr(padding) != "\n")
        return std::nullopt;

    // Two ints multiply to less than 2^62, so only the last factor could overflow.
    if (static_cast<std::uint64_t>(head.rows) * static_cast<std::uint64_t>(head.cols)
        > std::numeric_limits<std::uint64_t>::max() / sizeof(double))
        return std::nullopt;
    if (head.DataSize() != dataSize)
        return std::nullopt;
    return head;
}
} // namespace workbench
