#include "common/RemainingTime.h"

#include <cmath>
#include <limits>

namespace zenqo
{
unsigned long ToUnsigned(double seconds)
{
    using Limits = std::numeric_limits<unsigned long>;
    // 2 to the power of the number of bits: the first number too large.
    double const end = std::ldexp(1.0, Limits::digits);
    if (!std::isfinite(seconds))
        return 0;
    if (seconds >= end)
        return Limits::max();
    if (seconds >= 0)
        return static_cast<unsigned long>(seconds);
    return seconds <= -end ? 0 : 0 - static_cast<unsigned long>(-seconds);
}

unsigned long EstimateRemaining(int value, unsigned long elapsed)
{
    auto const passed = static_cast<double>(elapsed);
    // The gauge's initial range, whatever range the host has set since.
    if (value == 0)
        return 0;
    return ToUnsigned(std::round(90.0 / value * passed) - passed);
}

unsigned long SmoothRemaining(unsigned long estimate, unsigned long last)
{
    if (last <= 1)
        return estimate;
    return ToUnsigned(
        std::round(0.5 * static_cast<double>(estimate) + 0.5 * static_cast<double>(last - 1)));
}
} // namespace zenqo
