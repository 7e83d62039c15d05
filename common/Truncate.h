#pragma once

#include <cmath>
#include <limits>

namespace zenqo
{
/// `value` truncated toward zero. What lies beyond the range of `Integer` gives its nearest end, and
/// what is no number gives 0: the language itself leaves both undefined.
template <class Integer>
Integer Truncate(double value)
{
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value))
        return 0;
    // The highest integer has no double of its own; one more than it has, a power of two.
    double const beyond = std::ldexp(1.0, Limits::digits);
    if (value >= beyond)
        return Limits::max();
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    return static_cast<Integer>(value);
}
} // namespace zenqo
