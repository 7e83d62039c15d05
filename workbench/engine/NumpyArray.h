#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <Eigen/Core>

namespace workbench
{
/// The head of a NumPy array file (".npy", version 1.0): two dimensions, float64, little-endian.
struct NumpyHead
{
    Eigen::Index rows = 0;
    Eigen::Index cols = 0;
    bool columnMajor = true; ///< The order in which the values follow the head.

    std::uint64_t DataSize() const
    {
        return static_cast<std::uint64_t>(rows) * static_cast<std::uint64_t>(cols) * sizeof(double);
    }
};

/// The bytes of a head, a multiple of 64.
std::string WriteNumpyHead(NumpyHead const& head);

/// The first bytes of a file hold its version and the length of its head: so many.
inline constexpr std::size_t NUMPY_PREAMBLE = 10;

/// The length of the whole head that begins with `preamble`; nothing if that begins no array file.
std::optional<std::size_t> NumpyHeadSize(std::string_view preamble);

/// Reads a whole head; nothing if it is malformed, tells of another kind of array, or of
/// dimensions whose values would not be `dataSize` bytes.
std::optional<NumpyHead> ReadNumpyHead(std::string_view head, std::uint64_t dataSize);
} // namespace workbench
